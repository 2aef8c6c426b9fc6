#include "storyboard/AudioObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/SourceFileObject.h"
#include "support/StoryboardFixture.h"

#include <sstream>

using std::string;
using namespace vantrel;

namespace {

/// Sets a field of a new object: the one element of `change` differs in its file, and the field is
/// there again when that is read.
template <class Object, class Part, class T, class Value>
void Keeps(T Part::*field, const Value& value, const string& change)
{
    const auto tokens = [](Object& object) {
        std::istringstream text(WrittenObject(object));
        std::vector<string> found;
        for (string token; std::getline(text, token, '<');)
            found.push_back(token);
        return found;
    };
    Object before, after, again;
    after.*field = value;
    const auto was = tokens(before), is = tokens(after);
    ASSERT_EQ(was.size(), is.size()) << change;
    string changes;
    for (std::size_t i = 0; i < is.size(); ++i)
        changes += was[i] == is[i] ? "" : is[i];
    EXPECT_EQ(changes, change);
    ReadObject(again, WrittenObject(after).insert(2, " xmlns:dt='urn:dt'"));
    EXPECT_EQ(again.*field, static_cast<T>(value)) << change;
}

} // namespace

// clang-format off
TEST(Members, OfASound)
{
    using A = CAudioObject;
    Keeps<A>(&A::m_volumeLevel, 2, R"(volumeLevel dt:dt="r8">2)");
    Keeps<A>(&A::m_channels, 6, R"(channels dt:dt="i4">6)");
    Keeps<A>(&A::m_inputChannel, 4, R"(inputChannel dt:dt="i4">4)");
    Keeps<A>(&A::m_audioStream, 3, R"(audioStream dt:dt="i4">3)");
    Keeps<A>(&A::m_fadeIn, 2, R"(fadeIn dt:dt="r8">2)");
    Keeps<A>(&A::m_fadeOut, 3, R"(fadeOut dt:dt="r8">3)");
    Keeps<A>(&A::m_fadeInLevel, 0.5, R"(fadeInLevel dt:dt="r8">0.5)");
    Keeps<A>(&A::m_fadeOutLevel, 0.25, R"(fadeOutLevel dt:dt="r8">0.25)");
    Keeps<A>(&A::m_canRepeat, true, R"(canRepeat dt:dt="boolean">1)");
    Keeps<A>(&A::m_audioType, 7U, R"(audioType dt:dt="ui2">7)");
    Keeps<A>(&A::m_startSamplingTime, 4, R"(StartSamplingTime dt:dt="r8">4)");
    Keeps<A>(&A::m_samplingDuration, 5, R"(SamplingDuration dt:dt="r8">5)");
    Keeps<A>(&A::m_proxyFilterFile, "p", R"(ProxyFilterFile dt:dt="string">p)");
    Keeps<A>(&A::m_nativeFilterFile, "n", R"(NativeFilterFile dt:dt="string">n)");
    Keeps<A>(&A::m_currentEqualizer, 9, R"(CurrentEqualizer dt:dt="i4">9)");
    Keeps<A>(&A::m_startOffset, 1, R"(startOffset dt:dt="r8">1)");
    Keeps<A>(&A::m_endOffset, 2, R"(endOffset dt:dt="r8">2)");
    Keeps<A>(&A::m_mute, true, R"(mute dt:dt="boolean">1)");
}

TEST(Members, OfASourceFile)
{
    using F = CSourceFileObject;
    Keeps<F>(&F::m_fileName, "f", R"(fileName dt:dt="string">f)");
    Keeps<F>(&F::m_inPoint, 1, R"(inPoint dt:dt="r8">1)");
    Keeps<F>(&F::m_outPoint, 2, R"(outPoint dt:dt="r8">2)");
    Keeps<F>(&F::m_fileDuration, 3, R"(fileDuration dt:dt="r8">3)");
    Keeps<F>(&F::m_fileSize, 4, R"(fileSize dt:dt="r8">4)");
    Keeps<F>(&F::m_dataRate, 5, R"(dataRate dt:dt="r8">5)");
    Keeps<F>(&F::m_volLabel, "v", R"(volLabel dt:dt="string">v)");
    Keeps<F>(&F::m_cdDrive, "c", R"(cdDrive dt:dt="string">c)");
    Keeps<F>(&F::m_type, std::int16_t{ 6 }, R"(type dt:dt="i2">6)");
    Keeps<F>(&F::m_repeat, true, R"(repeat dt:dt="boolean">1)");
    Keeps<F>(&F::m_rotation, 90, R"(rotation dt:dt="i4">90)");
    Keeps<F>(&F::m_stretchToFit, true, R"(stretchToFit dt:dt="boolean">1)");
    Keeps<F>(&F::m_sceneStart, 7, R"(sceneStart dt:dt="r8">7)");
    Keeps<F>(&F::m_sceneEnd, 8, R"(sceneEnd dt:dt="r8">8)");
    Keeps<F>(&F::m_scene, true, R"(scene dt:dt="boolean">1)");
    Keeps<F>(&F::m_albumID, 9, R"(albumID dt:dt="i4">9)");
    Keeps<F>(&F::m_aspectRatio, 1.5, R"(aspectRatio dt:dt="r8">1.5)");
    Keeps<F>(&F::m_interlacedType, 2UL, R"(interlacedType dt:dt="ui4">2)");
    Keeps<F>(&F::m_interlacedInfo, 3UL, R"(interlacedInfo dt:dt="ui4">3)");
    Keeps<F>(&F::m_isTivo, true, R"(isTivo dt:dt="boolean">1)");
    Keeps<F>(&F::m_sourceType3D, 4U, R"(SourceType3D dt:dt="ui4">4)");
    Keeps<F>(&F::m_isLeftEyePrecedence, false, R"(isLeftEyePrecedence dt:dt="boolean">0)");
}
// clang-format on
