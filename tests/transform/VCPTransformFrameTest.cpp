#include "transform/VCPTransformImpl.h"

#include "support/XmlFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

using std::string;
using testing::ElementsAre;
using Floats = std::vector<float>;
using namespace vantrel;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;

struct Transform : CVCPTransformImpl
{
    explicit Transform(const string& speed)
    {
        LoadXML(XmlText("<d><Speed>" + speed + "</Speed></d>").root());
    }

    void Set(unsigned long mask, double time, float x, float y, float z = 0)
    {
        EXPECT_EQ(Set3DKeyframe(mask, time, S, x, y, z, 0), status::kOk);
    }
    Floats Last(unsigned long mask) const
    {
        Floats v(3);
        EXPECT_EQ(GetLast3DValue(mask, &v[0], &v[1], &v[2]), status::kOk);
        return v;
    }
    /// How far the world matrix sends a point from where it should.
    float Miss(const D3DXVECTOR3& p, const D3DXVECTOR3& expected) const
    {
        D3DXMATRIX world;
        EXPECT_EQ(GetWorldMatrix(&world), status::kOk);
        const auto& m = world.m;
        const float wanted[] = { expected.x, expected.y, expected.z, 1 };
        float miss = 0;
        for (int i = 0; i < 4; ++i)
            miss += std::abs(p.x * m[0][i] + p.y * m[1][i] + p.z * m[2][i] + m[3][i] - wanted[i]);
        return miss;
    }
};

} // namespace

struct FrameCase
{
    const char* name;
    string setup;       ///< letters: see the test
    D3DXVECTOR3 origin; ///< where the point (0, 0, 0) comes to
    D3DXVECTOR3 point;  ///< where the point (1, 2, 3) comes to
};

class FrameSteps : public testing::TestWithParam<FrameCase>
{};

TEST_P(FrameSteps, PlacesPoints)
{
    const auto has = [](char letter) { return GetParam().setup.find(letter) != string::npos; };
    Transform transform(has('S') ? "2" : "0");
    if (has('h'))
        transform.Set(TRANSFORM_HANDLES, 0, 0.5F, -1, 2);
    if (has('s'))
        transform.Set(TRANSFORM_SCALING, 0, 2, 3, 0.5F);
    if (has('r'))
        transform.Set(TRANSFORM_ROTATION, 0, 30, -20, 50);
    if (has('t'))
        transform.Set(TRANSFORM_TRANSLATION, 0, 3, 4, 5);
    if (has('W'))
        transform.SetBoundingRect(0, 4, 6, 2);
    transform.SetAspectRatio(has('U') ? 0.75F : 4.0F / 3);
    transform.SetQuarterTurned(has('T'));
    transform.SetPathSuspended(has('P'));
    for (const double time : { 0.0, 7.0 }) { // nothing of one frame goes into the next
        EXPECT_EQ(transform.FrameMove(time, 0), status::kOk);
        EXPECT_LT(transform.Miss({ 0, 0, 0 }, GetParam().origin), 4e-5F);
        EXPECT_LT(transform.Miss({ 1, 2, 3 }, GetParam().point), 4e-5F);
    }
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Setups, FrameSteps, testing::Values(
    FrameCase{ "NoKeys", "", { 0, 0, 0 }, { 1, 2, 3 } },
    FrameCase{ "CentreOfRectangle", "W", { -3, -3, 0 }, { -2, -1, 3 } },
    FrameCase{ "Handles", "hW", { -1.5, -4, 2 }, { -.5, -2, 5 } },
    FrameCase{ "Scaling", "s", { 0, 0, 0 }, { 2, 6, 1.5 } },
    FrameCase{ "Rotation", "r", { 0, 0, 0 }, { -2.07511F, .27675F, 3.10118F } },
    FrameCase{ "Translation", "t", { 3, 3, 5 }, { 4, 5, 8 } },
    FrameCase{ "AllInTheirOrder", "hsrtW", { 11.24197F, -6.17029F, 3.59438F },
                                           { 6.7651F, -2.25344F, 6.21467F } },
    FrameCase{ "UprightFrame", "tU", { 2.25, 4, 5 }, { 3.25, 6, 8 } },
    FrameCase{ "QuarterTurn", "hrtWT", { -3.75357F, 3.68149F, 5.41822F },
                                       { -2.86635F, 2.95165F, 8.97915F } },
    FrameCase{ "QuarterTurnWithoutKeys", "T", { 0, 0, 0 }, { 2, -1, 3 } },
    FrameCase{ "QuarterTurnedScroll", "htTS", { 3, -2.75, 7 }, { 5, -3.75, 10 } },
    FrameCase{ "SuspendedPath", "hstP", { 0, 0, 0 }, { 2, 6, 1.5 } }),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST(LastValues, AreThoseOfTheLastFrame)
{
    Transform transform("2");
    transform.SetQuarterTurned(true);
    transform.Set(TRANSFORM_HANDLES, 0, 0.5F, -1, 2);
    transform.Set(TRANSFORM_TRANSLATION, 0, 3, 4, 5);
    transform.SetOpacityKey(0, S, 0, 0);
    transform.SetOpacityKey(1, S, 255, 0);
    transform.FrameMove(0.5, 0);
    EXPECT_THAT(transform.Last(TRANSFORM_HANDLES), ElementsAre(0.5F, -1, 2));
    EXPECT_THAT(transform.Last(TRANSFORM_SCALING), ElementsAre(1, 1, 1));
    EXPECT_THAT(transform.Last(TRANSFORM_ROTATION), ElementsAre(0, 0, -90));
    EXPECT_THAT(transform.Last(TRANSFORM_TRANSLATION), ElementsAre(4, -3, 5)); // before the ratio
    transform.FrameMove(NAN, 0); // no time: everything rests, and the opacity stays
    EXPECT_THAT(transform.Last(TRANSFORM_HANDLES), ElementsAre(0, 0, 0));
    unsigned long opacity = 0;
    EXPECT_EQ(transform.GetLastOpacityValue(&opacity), status::kOk);
    EXPECT_EQ(opacity, 127U);
}

TEST(Scroll, RunsAtItsSpeedWhateverTheDistance)
{
    const auto keyAfterFrames = [](const string& speed, float x, float y) {
        Transform transform(speed);
        transform.SetFrameSize(700, 480);
        double times[2] = {};
        KVC_KEYFRAME_TYPE types[2];
        for (const unsigned long mask : { TRANSFORM_TRANSLATION, TRANSFORM_HANDLES }) {
            transform.Set(mask, 0, 0, 0);
            transform.Set(mask, 5, x, y);
        }
        transform.FrameMove(1, 0);
        transform.FrameMove(1, 0);
        transform.GetKeyTimes(TRANSFORM_TRANSLATION, times, types);
        EXPECT_EQ(transform.DeleteKey(TRANSFORM_HANDLES, times[1], S), status::kOk); // with it
        return times[1];
    };
    // 480 or 700 pixels, doubled by the default rectangle, over speed times 30 a second
    EXPECT_EQ(keyAfterFrames("2", 0, -2), 16);
    EXPECT_EQ(keyAfterFrames("2", 1, 1), 16);
    EXPECT_EQ(keyAfterFrames("2", -3, 2), 1400.0 / 60);
    for (const char* noScroll : { "-2", "nan", "5e-324" })
        EXPECT_EQ(keyAfterFrames(noScroll, 0, -2), 5);
}

TEST(HoldTime, IsTheEndOfTheEntranceOrTheMiddleOfAScroll)
{
    Transform transform("2");
    const auto hold = [&] {
        double time = 0;
        EXPECT_EQ(transform.GetHoldTime(&time), status::kOk);
        return time;
    };
    transform.Set(TRANSFORM_TRANSLATION, -1, 0, 0);
    for (const unsigned long mask : { TRANSFORM_ROTATION, TRANSFORM_SCALING, TRANSFORM_HANDLES }) {
        transform.Set(mask, 2, 0, 0);
        transform.Set(mask, 6, 0, 0);
    }
    EXPECT_EQ(hold(), 3); // from 0 to 6: a negative time counts as 0
    transform.MoveKey(TRANSFORM_TRANSLATION, S, -1, 1);
    EXPECT_EQ(hold(), 3.5); // from 1 to 6
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0.5, KVC_KEYFRAME_END_OFFSET, 0, 0, 0, 0);
    EXPECT_EQ(hold(), 6); // the path leaves again
}
