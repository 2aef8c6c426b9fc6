#include "transform/VCPKeyframeData.h"

#include "support/XmlFixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

using std::string;
using vantrel::kAllKeyframes;
using vantrel::ULongTrack;
using vantrel::VectorTrack;
using namespace vantrel;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;
constexpr auto P = KVC_KEYFRAME_PERCENTAGE;
constexpr auto kNoType = static_cast<KVC_KEYFRAME_TYPE>(3);

/// A track from keys as "S1=10 E.5=-3": the type, the time and the value in x.
VectorTrack TrackOf(const string& keys)
{
    VectorTrack track;
    std::istringstream in(keys);
    char type = 0, equals = 0;
    double time = 0;
    for (float x = 0; in >> type >> time >> equals >> x;) {
        const auto kind = type == 'S' ? S : type == 'P' ? P : KVC_KEYFRAME_END_OFFSET;
        EXPECT_EQ(track.SetValue(time, kind, { x, -x, 1 }, 7), status::kOk);
    }
    return track;
}

/// All keys as "1@2 ": the type and the time, in the order of `GetAllKeyTimes`.
string KeysOf(const VectorTrack& track)
{
    int count = 0;
    track.GetKeyCount(&count);
    double times[9];
    KVC_KEYFRAME_TYPE types[9];
    EXPECT_EQ(track.GetAllKeyTimes(times, types), status::kOk);
    std::ostringstream keys;
    for (int i = 0; i < count; ++i)
        keys << types[i] << '@' << times[i] << ' ';
    return keys.str();
}

unsigned long OpacityAt(const ULongTrack& track, double time)
{
    unsigned long value = 1;
    EXPECT_EQ(track.GetInterpolatedValue(time, &value), status::kOk);
    return value;
}

} // namespace

struct TrackSampling
{
    const char* name;
    double duration;
    string keys, samples; ///< samples are clip times and expected values, as "2=10"
};

class TrackInterpolation : public testing::TestWithParam<TrackSampling>
{};

TEST_P(TrackInterpolation, GivesValueAtClipTime)
{
    VectorTrack track = TrackOf(GetParam().keys);
    track.SetDuration(GetParam().duration);
    std::istringstream in(GetParam().samples);
    char equals = 0;
    float x = 0;
    for (double time = 0; in >> time >> equals >> x;) {
        D3DXVECTOR3 value;
        ASSERT_EQ(track.GetInterpolatedValue(time, &value), status::kOk) << time;
        EXPECT_FLOAT_EQ(value.x, x) << time;
        EXPECT_FLOAT_EQ(value.y, -x) << time;
        EXPECT_FLOAT_EQ(value.z, 1) << time;
    }
    EXPECT_TRUE(in.eof());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tracks, TrackInterpolation, testing::Values(
    TrackSampling{ "StartKeyAlone", 10, "S2=5", "-1=5 0=5 2=5 9=5" },
    TrackSampling{ "EndKeyAlone", 10, "E2=5", "0=5 8=5 9=5 11=5" },
    TrackSampling{ "PercentageKeyAlone", 10, "P.2=5", "0=5 2=5 9=5" },
    TrackSampling{ "StartKeys", 10, "S1=0 S3=8 S4=-4", "0=0 1=0 1.5=2 3=8 3.25=5 4=-4 9=-4" },
    TrackSampling{ "EndKeys", 10, "E1=0 E3=8 E4=-4", "0=-4 6=-4 6.75=5 7=8 8.5=2 9=0 10=0" },
    TrackSampling{ "PercentageKeys", 20, "P.1=0 P.3=8 P.4=-4", "0=0 2=0 3=2 6=8 6.5=5 8=-4 19=-4" },
    TrackSampling{ "StartThenEnd", 10, "S0=10 E0=20", "0=10 2.5=12.5 5=15 10=20" },
    TrackSampling{ "BlendBetweenStartAndEndKeys", 10, "S1=10 S2=20 E2=40 E3=30",
              "1.5=15 2=20 4.5=25 7=30 7.5=35 8=40 9=40" },
    TrackSampling{ "PercentageHoldsBackToStart", 10, "S1=10 P.5=20 P.6=30",
              "0=10 1=10 3=20 5=20 5.5=25 8=30" },
    TrackSampling{ "BlendFromFirstPercentageToEnd", 10, "P.2=10 P.4=20 E1=50",
              "0=10 3=15 4=20 5.5=30 9=50 9.5=50" },
    TrackSampling{ "PercentageBetweenStartAndEnd", 10, "S1=10 P.4=20 E1=50",
              ".5=10 2.5=20 4=20 6=32 9=50 10=50" },
    TrackSampling{ "EndGoesBeforePercentage", 10, "E4=10 P.8=30", "3=30 6=10 8=10" },
    TrackSampling{ "StartKeyBehindPercentage", 10, "P.2=10 S5=20 E1=60", "1=20 5=20 7=40 9=60" },
    TrackSampling{ "ClipShorterThanItsKeys", 2, "S1=10 S4=40 E3=70", "0=10 2=20 3=30 4.5=70" },
    TrackSampling{ "ClipMadeLonger", 30, "S1=10 P.5=20 E2=30", "1=10 15=20 21.5=25 28=30" },
    TrackSampling{ "NegativeStartKeyCountsAsNone", 10, "S-2=10 E2=30", "-2=10 3=30" },
    TrackSampling{ "NoDuration", 0, "P.25=10 P.5=20", "0=10 5=10" },
    TrackSampling{ "NegativeDuration", -4, "P.25=10 E1=20", "0=20 -5=20 -7=10" },
    TrackSampling{ "DurationThatIsNoNumber", NAN, "P.25=10", "0=10 5=10" },
    TrackSampling{ "KeysFurtherApartThanADouble", 10, "S-1.7e308=10 S1.7e308=20",
              "-1e308=10 1e308=20" }),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST(Track, ClipTimeOfAPercentageKeyTakesItsValue)
{
    // the division of the product by 29.97 rounds past 0.16 and short of 0.43
    for (const double fraction : { 0.16, 0.43 }) {
        ULongTrack track;
        track.SetDuration(29.97);
        track.SetValue(fraction, P, 255, 0);
        EXPECT_EQ(OpacityAt(track, fraction * 29.97), 255U); // the last key
        track.SetValue(fraction - 0.01, P, 0, 0);
        track.SetValue(fraction + 0.01, P, 0, 0);
        EXPECT_EQ(OpacityAt(track, fraction * 29.97), 255U); // not blended and truncated
    }
}

TEST(Track, OpacityIsTruncatedAndStaysInRange)
{
    ULongTrack track;
    const unsigned long values[] = { 0, 255, ~0UL, ~0UL };
    for (int i = 0; i < 4; ++i)
        track.SetValue(i, S, values[i], 0);
    EXPECT_EQ(OpacityAt(track, 0.5), 127U);
    EXPECT_EQ(OpacityAt(track, 2.5), ~0UL);
}

TEST(Track, FailuresLeaveTheValueAlone)
{
    ULongTrack track;
    unsigned long value = 9;
    EXPECT_EQ(track.GetInterpolatedValue(0, &value), status::kFailure);
    EXPECT_EQ(track.GetValue(0, S, &value, nullptr), status::kBadArgument); // an empty map
    track.SetValue(0, S, 1, 0);
    EXPECT_EQ(track.GetInterpolatedValue(NAN, &value), status::kBadArgument);
    EXPECT_EQ(track.GetValue(NAN, S, &value, nullptr), status::kNothingDone);
    EXPECT_EQ(track.GetValue(0, kNoType, &value, nullptr), status::kBadArgument);
    EXPECT_EQ(track.GetValue(0, S, nullptr, nullptr), status::kNullPointer);
    EXPECT_EQ(value, 9U);
}

TEST(Track, MovesReplacesAndDeletesKeys)
{
    VectorTrack track = TrackOf("E2=0 P.5=0 S2=20 S1=9 S1=8");
    EXPECT_EQ(track.MoveKey(S, 1, 1.0005), status::kOk); // too near to count
    EXPECT_EQ(track.MoveKey(S, 5, 6), status::kNothingDone);
    EXPECT_EQ(track.MoveKey(kNoType, 1, 6), status::kBadArgument);
    for (const double time : { double(NAN), double(INFINITY) }) { // can't be ordered
        EXPECT_EQ(track.MoveKey(S, 1, time), status::kBadArgument);
        EXPECT_EQ(track.SetValue(time, S, { 1, 2, 3 }, 0), status::kBadArgument);
        EXPECT_EQ(track.SetValue(1, S, { 1, float(time), 3 }, 0), status::kBadArgument);
    }
    EXPECT_EQ(KeysOf(track), "1@1 1@2 4@0.5 2@2 ");

    EXPECT_EQ(track.MoveKey(S, 1, 2), status::kOk);
    D3DXVECTOR3 value;
    unsigned long caps = 0;
    EXPECT_EQ(track.GetValue(2, S, &value, &caps), status::kOk);
    EXPECT_EQ(value.x, 8);
    EXPECT_EQ(caps, 7U);
    EXPECT_EQ(track.DeleteKey(2, P), status::kNothingDone);
    EXPECT_EQ(track.DeleteKey(2, kAllKeyframes), status::kBadArgument);
    EXPECT_EQ(track.DeleteKey(2, S), status::kOk);
    EXPECT_EQ(KeysOf(track), "4@0.5 2@2 ");
}

TEST(TrackXml, ReadsTheFirstKeyOfATimeAndWritesAllInOrder)
{
    const XmlText xml{ R"(<d><Scaling><PercentageElements>
        <KeyFrame><Time>.5</Time><Vector><x>1</x><z>nan</z></Vector></KeyFrame><Other/>
        <KeyFrame><Time>.5</Time><Vector><x>2</x></Vector></KeyFrame></PercentageElements>
        <StartOffsetElements><KeyFrame><Time>1e999</Time><Caps>5</Caps></KeyFrame>
        <KeyFrame><Time>nan</Time></KeyFrame></StartOffsetElements></Scaling>
        <Crop><PresetID>7</PresetID><EditMode/></Crop></d>)" };
    VectorTrack track;
    track.SetName("Scaling");
    EXPECT_EQ(track.LoadXML(nullptr), status::kNothingDone);
    track.LoadXML(xml.root());
    EXPECT_EQ(track.SaveXML(xml.root()), status::kOk);
    EXPECT_EQ(KeysOf(track), "1@0 4@0.5 ");
    EXPECT_EQ(TextOf(xml.root()->last),
              R"(<Scaling><EditMode dt:dt="i4">0</EditMode><PresetID dt:dt="i4">7</PresetID>)"
              R"(<StartOffsetElements><KeyFrame><Time dt:dt="r8">0</Time><Caps dt:dt="ui4">5)"
              R"(</Caps><Vector Name=""><x dt:dt="r4">0</x><y dt:dt="r4">0</y><z dt:dt="r4">0</z>)"
              R"(</Vector></KeyFrame></StartOffsetElements><PercentageElements><KeyFrame>)"
              R"(<Time dt:dt="r8">0.5</Time><Caps dt:dt="ui4">0</Caps><Vector Name="">)"
              R"(<x dt:dt="r4">1</x><y dt:dt="r4">0</y><z dt:dt="r4">0</z></Vector></KeyFrame>)"
              R"(</PercentageElements></Scaling>)");
    track.DeleteAllKeys(kAllKeyframes);
    track.SaveXML(xml.root());
    EXPECT_FALSE(vantrel::FindChildElement(xml.root(), "Scaling"));
}
