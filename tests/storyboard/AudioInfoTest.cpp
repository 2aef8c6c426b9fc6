#include "storyboard/AudioInfo.h"

#include "storyboard/AudioObject.h"
#include "storyboard/TimeAdjust.h"
#include "support/StoryboardFixture.h"

#include <limits>
#include <vector>

using namespace vantrel;

namespace {

std::string AudioInfoText(CAudioObject& audio)
{
    const EmptyXml xml{ "O" };
    EXPECT_EQ(audio.SaveXML(xml.root()), status::kOk);
    return TextOf(xml.root()->children);
}

} // namespace

TEST(AudioInfo, NewOneWritesEverything)
{
    CAudioObject audio;
    EXPECT_EQ(
        AudioInfoText(audio),
        R"(<audioInfo><volumeLevel dt:dt="r8">1</volumeLevel><channels dt:dt="i4">1</channels>)"
        R"(<inputChannel dt:dt="i4">-1</inputChannel><audioStream dt:dt="i4">0</audioStream>)"
        R"(<fadeIn dt:dt="r8">0.1</fadeIn><fadeOut dt:dt="r8">0.1</fadeOut>)"
        R"(<fadeInLevel dt:dt="r8">1</fadeInLevel><fadeOutLevel dt:dt="r8">1</fadeOutLevel>)"
        R"(<canRepeat dt:dt="boolean">0</canRepeat><audioType dt:dt="ui2">1</audioType>)"
        R"(<NoiseFilter><StartSamplingTime dt:dt="r8">-1</StartSamplingTime>)"
        R"(<SamplingDuration dt:dt="r8">1</SamplingDuration>)"
        R"(<ProxyFilterFile dt:dt="string"></ProxyFilterFile>)"
        R"(<NativeFilterFile dt:dt="string"></NativeFilterFile></NoiseFilter>)"
        R"(<!--Audio Envelope Points List--><mixLevels/><!--Audio Equalizer Settings-->)"
        R"(<Equalizer><CurrentEqualizer dt:dt="i4">-1</CurrentEqualizer></Equalizer></audioInfo>)");
}

TEST(AudioInfo, LaterLevelsAndFirstModelsWin)
{
    CAudioObject audio;
    audio.m_mixLevels = { { 9.0, 9.0 } };
    ReadObject(audio, "<O><audioInfo><audioType>65535</audioType><mixLevels>"
                      "<level><time>2</time><value>1</value></level><level><time>1</time></level>"
                      "<level><time>2</time><value>0.5</value></level></mixLevels><Equalizer>"
                      "<EqualizerModel><Bands>1</Bands><FFTLeng>8</FFTLeng></EqualizerModel>"
                      "<EqualizerModel><Bands>1</Bands><FFTLeng>9</FFTLeng></EqualizerModel>"
                      "</Equalizer></audioInfo></O>");
    EXPECT_EQ(audio.m_mixLevels, (std::map<double, double>{ { 1.0, 0.0 }, { 2.0, 0.5 } }));
    EXPECT_EQ(audio.m_audioType, 65535U);
    ASSERT_EQ(audio.m_equalizers.size(), 1U);
    EXPECT_EQ(audio.m_equalizers[1]->m_fftLength, 8);
    audio.m_equalizers[7]; // no model
    AudioInfoText(audio);
}

TEST(EqualizerModels, AreValidWhenEveryBandMakesSense)
{
    const struct
    {
        const char* content;
        Status result;
        bool valid;
        long length;
        std::vector<float> frequencies; ///< empty for no arrays
    } cases[] = {
        { "<Bands>2</Bands><FFTLeng>512</FFTLeng><Band_1><Valu>2</Valu><Freq>20</Freq></Band_1>"
          "<Band_0><Freq>10</Freq><Valu>1</Valu></Band_0>",
          status::kOk,
          true,
          512,
          { 10.0F, 20.0F } },
        { "<Bands>3</Bands><FFTLeng>512</FFTLeng><Band_0><Valu>1</Valu><Freq>10</Freq></Band_0>"
          "<Band_2><Valu>3</Valu><Freq>30</Freq></Band_2>"
          "<Band_02><Valu>3</Valu><Freq>40</Freq></Band_02>"
          "<Band_2><Valu>3</Valu><Freq>50</Freq></Band_2>"
          "<Band_3><Valu>3</Valu><Freq>60</Freq></Band_3>",
          status::kOk,
          true,
          512,
          { 10.0F, 30.0F, 0.0F } },
        { "<Bands>1</Bands><FFTLeng>512</FFTLeng><Band_0><Valu>1</Valu></Band_0>",
          status::kOk,
          false,
          512,
          { 0.0F } },
        { "<Bands>1</Bands><Band_0><Valu>1</Valu><Freq>1e300</Freq></Band_0>",
          status::kNothingDone,
          false,
          2048,
          { std::numeric_limits<float>::infinity() } },
        { "<Bands>0</Bands>", status::kOk, true, 16, {} },
        { "", status::kNothingDone, false, 16, {} },
        { "<Bands>-1</Bands>", status::kBadArgument, false, 16, {} },
        { "<Bands>65537</Bands>", status::kBadArgument, false, 16, {} },
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.content);
        const XmlText xml{ std::string("<O>") + c.content + "</O>" };
        EQualizerModel model(xml.root());
        EXPECT_EQ(model.PersistToXML(xml.root(), false), c.result);
        EXPECT_EQ(model.m_isValid, c.valid);
        EXPECT_EQ(model.m_fftLength, c.length);
        ASSERT_EQ(model.m_frequencies != nullptr, !c.frequencies.empty());
        for (std::size_t i = 0; i < c.frequencies.size(); ++i)
            EXPECT_EQ(model.m_frequencies[i], c.frequencies[i]) << i;
        const EmptyXml out{ "O" };
        EXPECT_EQ(model.PersistToXML(out.root(), true), status::kOk);
    }
}

TEST(EqualizerModels, NullIsNoModel)
{
    EQualizerModel model(nullptr);
    EXPECT_FALSE(model.m_isValid);
    EXPECT_EQ(model.PersistToXML(nullptr, true), status::kFailure);
}

TEST(TimeAdjust, TurnsSecondsIntoFrames)
{
    const CVCUTimeAdjust frames(25.0);
    EXPECT_EQ(frames.FrameNumber(1.0), 25);
    EXPECT_EQ(frames.Frame2Start(25), 1.0);
    EXPECT_DOUBLE_EQ(frames.FrameMid(0.0), 0.02);
    EXPECT_DOUBLE_EQ(frames.FrameStart(1.03), 1.0);
    EXPECT_EQ(frames.FrameNumber(-0.01), -1);
    EXPECT_EQ(frames.FrameNumber(1e300), std::numeric_limits<long>::max());
    EXPECT_EQ(frames.FrameNumber(-1e300), std::numeric_limits<long>::min());
    EXPECT_EQ(frames.FrameNumber(std::numeric_limits<double>::quiet_NaN()), 0);
    for (const double rate : { 0.0, -1.0, std::numeric_limits<double>::quiet_NaN() })
        EXPECT_EQ(CVCUTimeAdjust(rate).m_frameLength, 1.0 / 29.97);
}
