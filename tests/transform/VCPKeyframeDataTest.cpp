#include "transform/VCPKeyframeData.h"

#include "core/Number.h"
#include "support/XmlFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

using std::string;
using std::vector;
using vantrel::kAllKeyframes;
using vantrel::ULongTrack;
using vantrel::VectorTrack;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;
constexpr auto E = KVC_KEYFRAME_END_OFFSET;
constexpr auto P = KVC_KEYFRAME_PERCENTAGE;
constexpr auto kNoType = static_cast<KVC_KEYFRAME_TYPE>(3);

struct Key
{
    KVC_KEYFRAME_TYPE type;
    double time;
    float value;
};

VectorTrack TrackOf(const vector<Key>& keys)
{
    VectorTrack track;
    for (const Key& key : keys)
        EXPECT_EQ(track.SetValue(key.time, key.type, { key.value, -key.value, 1.0F }, 7), 0);
    return track;
}

/// All keys as "type@time", in the order of `GetAllKeyTimes`.
template <class Track>
vector<string> KeysOf(const Track& track)
{
    int count = 0;
    track.GetKeyCount(&count);
    vector<double> times(static_cast<std::size_t>(count) + 1);
    vector<KVC_KEYFRAME_TYPE> types(times.size());
    EXPECT_EQ(track.GetAllKeyTimes(times.data(), types.data()), status::kOk);
    vector<string> keys;
    for (std::size_t i = 0; i + 1 < times.size(); ++i)
        keys.push_back(std::to_string(types[i]) + "@" + vantrel::NumberText(times[i]));
    return keys;
}

} // namespace

struct Sampling
{
    const char* name;
    double duration;
    vector<Key> keys;
    vector<std::pair<double, float>> samples; ///< clip time and expected x
};

class Interpolation : public testing::TestWithParam<Sampling>
{};

TEST_P(Interpolation, GivesValueAtClipTime)
{
    VectorTrack track = TrackOf(GetParam().keys);
    track.SetDuration(GetParam().duration);
    for (const auto& [time, expected] : GetParam().samples) {
        D3DXVECTOR3 value;
        ASSERT_EQ(track.GetInterpolatedValue(time, &value), status::kOk) << time;
        EXPECT_FLOAT_EQ(value.x, expected) << time;
        EXPECT_FLOAT_EQ(value.y, -expected) << time;
        EXPECT_FLOAT_EQ(value.z, 1.0F) << time;
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Tracks, Interpolation, testing::Values(
    Sampling{ "StartKeyAlone", 10, { { S, 2, 5 } }, { { -1, 5 }, { 0, 5 }, { 2, 5 }, { 9, 5 } } },
    Sampling{ "EndKeyAlone", 10, { { E, 2, 5 } }, { { 0, 5 }, { 8, 5 }, { 9, 5 }, { 11, 5 } } },
    Sampling{ "PercentageKeyAlone", 10, { { P, .2, 5 } }, { { 0, 5 }, { 2, 5 }, { 9, 5 } } },
    Sampling{ "StartKeys", 10, { { S, 1, 0 }, { S, 3, 8 }, { S, 4, -4 } },
              { { 0, 0 }, { 1, 0 }, { 1.5, 2 }, { 3, 8 }, { 3.25, 5 }, { 4, -4 }, { 9, -4 } } },
    Sampling{ "EndKeys", 10, { { E, 1, 0 }, { E, 3, 8 }, { E, 4, -4 } },
              { { 0, -4 }, { 6, -4 }, { 6.75, 5 }, { 7, 8 }, { 8.5, 2 }, { 9, 0 }, { 10, 0 } } },
    Sampling{ "PercentageKeys", 20, { { P, .1, 0 }, { P, .3, 8 }, { P, .4, -4 } },
              { { 0, 0 }, { 2, 0 }, { 3, 2 }, { 6, 8 }, { 6.5, 5 }, { 8, -4 }, { 19, -4 } } },
    Sampling{ "StartThenEnd", 10, { { S, 0, 10 }, { E, 0, 20 } },
              { { 0, 10 }, { 2.5, 12.5 }, { 5, 15 }, { 10, 20 } } },
    Sampling{ "BlendBetweenStartAndEndKeys", 10,
              { { S, 1, 10 }, { S, 2, 20 }, { E, 2, 40 }, { E, 3, 30 } },
              { { 1.5, 15 }, { 2, 20 }, { 4.5, 25 }, { 7, 30 }, { 7.5, 35 }, { 8, 40 }, { 9, 40 } } },
    Sampling{ "PercentageHoldsBackToStart", 10, { { S, 1, 10 }, { P, .5, 20 }, { P, .6, 30 } },
              { { 0, 10 }, { 1, 10 }, { 3, 20 }, { 5, 20 }, { 5.5, 25 }, { 8, 30 } } },
    Sampling{ "BlendFromFirstPercentageToEnd", 10, { { P, .2, 10 }, { P, .4, 20 }, { E, 1, 50 } },
              { { 0, 10 }, { 3, 15 }, { 4, 20 }, { 5.5, 30 }, { 9, 50 }, { 9.5, 50 } } },
    Sampling{ "PercentageBetweenStartAndEnd", 10, { { S, 1, 10 }, { P, .4, 20 }, { E, 1, 50 } },
              { { .5, 10 }, { 2.5, 20 }, { 4, 20 }, { 6, 32 }, { 9, 50 }, { 10, 50 } } },
    Sampling{ "EndGoesBeforePercentage", 10, { { E, 4, 10 }, { P, .8, 30 } },
              { { 3, 30 }, { 6, 10 }, { 8, 10 } } },
    Sampling{ "StartKeyBehindPercentage", 10, { { P, .2, 10 }, { S, 5, 20 }, { E, 1, 60 } },
              { { 1, 20 }, { 5, 20 }, { 7, 40 }, { 9, 60 } } },
    Sampling{ "ClipShorterThanItsKeys", 2, { { S, 1, 10 }, { S, 4, 40 }, { E, 3, 70 } },
              { { 0, 10 }, { 2, 20 }, { 3, 30 }, { 4.5, 70 } } },
    Sampling{ "NegativeStartKeyCountsAsNone", 10, { { S, -2, 10 }, { E, 2, 30 } },
              { { -2, 10 }, { 3, 30 } } },
    Sampling{ "NoDuration", 0, { { P, .25, 10 }, { P, .5, 20 } }, { { 0, 10 }, { 5, 10 } } },
    Sampling{ "NegativeDuration", -4, { { P, .25, 10 }, { E, 1, 20 } },
              { { 0, 20 }, { -5, 20 }, { -7, 10 } } },
    Sampling{ "DurationThatIsNoNumber", NAN, { { P, .25, 10 } }, { { 0, 10 }, { 5, 10 } } },
    Sampling{ "KeysFurtherApartThanADouble", 10, { { S, -1.7e308, 10 }, { S, 1.7e308, 20 } },
              { { -1e308, 10 }, { 1e308, 20 } } }),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST(Track, KeysFollowAChangedDuration)
{
    VectorTrack track = TrackOf({ { S, 1, 10 }, { P, .5, 20 }, { E, 2, 30 } });
    for (const double duration : { 10.0, 30.0 }) {
        track.SetDuration(duration);
        D3DXVECTOR3 start, half, end;
        track.GetInterpolatedValue(1, &start);
        track.GetInterpolatedValue(duration / 2, &half);
        track.GetInterpolatedValue(duration - 2, &end);
        EXPECT_THAT((vector<float>{ start.x, half.x, end.x }), testing::ElementsAre(10, 20, 30));
    }
}

TEST(Track, ClipTimeOfAPercentageKeyTakesItsValue)
{
    // over this duration the division of the product rounds past the fraction, and short of it
    for (const double fraction : { 0.16, 0.43 }) {
        ULongTrack track;
        track.SetDuration(29.97);
        track.SetValue(fraction - 0.01, P, 0, 0);
        track.SetValue(fraction, P, 255, 0);
        track.SetValue(fraction + 0.01, P, 0, 0);
        unsigned long value = 0;
        EXPECT_EQ(track.GetInterpolatedValue(fraction * 29.97, &value), status::kOk);
        EXPECT_EQ(value, 255U);
    }
    ULongTrack alone;
    alone.SetDuration(29.97);
    alone.SetValue(0.16, P, 200, 0);
    unsigned long value = 0;
    EXPECT_EQ(alone.GetInterpolatedValue(0.16 * 29.97, &value), status::kOk);
    EXPECT_EQ(value, 200U);
}

TEST(Track, OpacityIsTruncatedAndStaysInRange)
{
    constexpr unsigned long largest = std::numeric_limits<unsigned long>::max();
    ULongTrack track;
    track.SetValue(0, S, 0, 0);
    track.SetValue(1, S, 255, 0);
    track.SetValue(2, S, largest, 0);
    track.SetValue(3, S, largest, 0);
    unsigned long value = 1;
    track.GetInterpolatedValue(0.5, &value);
    EXPECT_EQ(value, 127U);
    track.GetInterpolatedValue(2.5, &value);
    EXPECT_EQ(value, largest);
}

TEST(Track, FailuresLeaveTheValueAlone)
{
    ULongTrack track;
    unsigned long value = 9;
    EXPECT_EQ(track.GetInterpolatedValue(0, &value), status::kFailure);
    EXPECT_EQ(track.GetInterpolatedValue(0, nullptr), status::kNullPointer);
    EXPECT_EQ(track.GetValue(0, S, &value, nullptr), status::kBadArgument); // an empty map
    track.SetValue(0, S, 1, 0);
    EXPECT_EQ(track.GetInterpolatedValue(NAN, &value), status::kBadArgument);
    EXPECT_EQ(track.GetValue(1, S, &value, nullptr), status::kNothingDone);
    EXPECT_EQ(track.GetValue(NAN, S, &value, nullptr), status::kNothingDone);
    EXPECT_EQ(track.GetValue(0, kNoType, &value, nullptr), status::kBadArgument);
    EXPECT_EQ(track.GetValue(0, S, nullptr, nullptr), status::kNullPointer);
    EXPECT_EQ(value, 9U);
}

TEST(Track, RefusesWhatItCannotOrderOrBlend)
{
    VectorTrack track = TrackOf({ { S, 0, 1 } });
    const D3DXVECTOR3 value(1, 2, 3);
    for (const double time : { double(NAN), double(INFINITY), -double(INFINITY) }) {
        EXPECT_EQ(track.SetValue(time, S, value, 0), status::kBadArgument);
        EXPECT_EQ(track.MoveKey(S, 0, time), status::kBadArgument);
    }
    EXPECT_EQ(track.SetValue(1, S, { 1, NAN, 3 }, 0), status::kBadArgument);
    EXPECT_EQ(track.SetValue(1, kNoType, value, 0), status::kBadArgument);
    EXPECT_THAT(KeysOf(track), testing::ElementsAre("1@0"));
}

TEST(Track, ListsPercentageKeysBeforeEndKeys)
{
    const VectorTrack track = TrackOf({ { E, 2, 0 }, { E, 1, 0 }, { P, .5, 0 }, { S, 3, 0 } });
    EXPECT_THAT(KeysOf(track), testing::ElementsAre("1@3", "4@0.5", "2@1", "2@2"));
    double time = 0;
    EXPECT_EQ(track.GetAllKeyTimes(&time, nullptr), status::kNullPointer);
}

TEST(Track, MovesReplacesAndDeletesKeys)
{
    VectorTrack track = TrackOf({ { S, 1, 10 }, { S, 1, 11 }, { S, 2, 20 }, { E, 1, 30 } });
    EXPECT_EQ(track.MoveKey(S, 1, 1.0005), status::kOk); // too near to count
    EXPECT_EQ(track.MoveKey(S, 5, 6), status::kNothingDone);
    EXPECT_EQ(track.MoveKey(kNoType, 1, 6), status::kBadArgument);
    EXPECT_THAT(KeysOf(track), testing::ElementsAre("1@1", "1@2", "2@1"));

    EXPECT_EQ(track.MoveKey(S, 1, 2), status::kOk);
    D3DXVECTOR3 value;
    unsigned long caps = 0;
    EXPECT_EQ(track.GetValue(2, S, &value, &caps), status::kOk);
    EXPECT_EQ(value.x, 11.0F);
    EXPECT_EQ(caps, 7U);

    EXPECT_EQ(track.DeleteKey(2, P), status::kNothingDone);
    EXPECT_EQ(track.DeleteKey(2, kAllKeyframes), status::kBadArgument);
    EXPECT_EQ(track.DeleteKey(2, S), status::kOk);
    EXPECT_THAT(KeysOf(track), testing::ElementsAre("2@1"));
    EXPECT_EQ(track.DeleteAllKeys(kAllKeyframes), status::kOk);
    EXPECT_FALSE(track.HasKeys());
}

TEST(TrackXml, WritesMapsInOrderAndTakesOverCropMembers)
{
    const XmlText xml{
        "<d><Opacity>old</Opacity><Crop><PresetID>7</PresetID><EditMode/></Crop></d>"
    };
    ULongTrack track;
    track.SetName("Opacity");
    track.SetValue(0.5, P, 100, 0x1000);
    track.SetValue(2, S, 0, 0);
    EXPECT_EQ(track.SaveXML(xml.root()), status::kOk);
    EXPECT_EQ(TextOf(xml.root()),
              "<d><Crop><PresetID>7</PresetID><EditMode/></Crop><Opacity>"
              R"(<EditMode dt:dt="i4">0</EditMode><PresetID dt:dt="i4">7</PresetID>)"
              R"(<StartOffsetElements><KeyFrame><Time dt:dt="r8">2</Time>)"
              R"(<Caps dt:dt="ui4">0</Caps><Value dt:dt="ui4">0</Value></KeyFrame>)"
              R"(</StartOffsetElements><PercentageElements><KeyFrame><Time dt:dt="r8">0.5</Time>)"
              R"(<Caps dt:dt="ui4">4096</Caps><Value dt:dt="ui4">100</Value></KeyFrame>)"
              R"(</PercentageElements></Opacity></d>)");
    track.DeleteAllKeys(kAllKeyframes);
    EXPECT_EQ(track.SaveXML(xml.root()), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), "<d><Crop><PresetID>7</PresetID><EditMode/></Crop></d>");
}

TEST(TrackXml, AddsKeysOfWhichTheFirstAtATimeStays)
{
    const XmlText xml{ R"(<d><StartOffsetElements>
        <KeyFrame><Time>3</Time><Vector><x>1</x><z>nan</z></Vector></KeyFrame>
        <KeyFrame><Time>3</Time><Vector><x>2</x></Vector></KeyFrame>
        <KeyFrame><Time>1e999</Time><Caps>5</Caps></KeyFrame><Other/>
        <KeyFrame><Time>nan</Time></KeyFrame>
        </StartOffsetElements></d>)" };
    VectorTrack track; // without a name: the element itself holds the maps
    track.SetValue(7, S, { 0, 0, 0 }, 0);
    EXPECT_EQ(track.LoadXML(nullptr), status::kNothingDone);
    EXPECT_EQ(track.LoadXML(xml.root()), status::kOk);
    EXPECT_THAT(KeysOf(track), testing::ElementsAre("1@0", "1@3", "1@7"));
    D3DXVECTOR3 value;
    unsigned long caps = 9;
    track.GetValue(3, S, &value, &caps);
    EXPECT_EQ(value.x, 1.0F);
    EXPECT_EQ(value.z, 0.0F);
    EXPECT_EQ(caps, 0U);
}
