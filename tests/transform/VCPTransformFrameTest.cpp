#include "transform/VCPTransformImpl.h"

#include "support/XmlFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using std::optional;
using std::vector;
using testing::ElementsAre;
using testing::FloatNear;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;

/// Gives `transform` a scroll speed, as a file does.
void LoadSpeed(CVCPTransformImpl& transform, const char* speed)
{
    const XmlText xml{ std::string("<d><Speed>") + speed + "</Speed></d>" };
    ASSERT_EQ(transform.LoadXML(xml.root()), status::kOk);
}

void SetKey(CVCPTransformImpl& transform, unsigned long mask, const optional<D3DXVECTOR3>& key)
{
    if (key)
        transform.Set3DKeyframe(mask, 0, S, key->x, key->y, key->z, 0);
}

vector<float> Last(const CVCPTransformImpl& transform, unsigned long mask)
{
    vector<float> value(3);
    EXPECT_EQ(transform.GetLast3DValue(mask, &value[0], &value[1], &value[2]), status::kOk);
    return value;
}

/// Where the world matrix sends a point.
vector<float> Place(const CVCPTransformImpl& transform, const D3DXVECTOR3& point)
{
    D3DXMATRIX world;
    EXPECT_EQ(transform.GetWorldMatrix(&world), status::kOk);
    const auto& m = world.m;
    vector<float> placed;
    for (int i = 0; i < 4; ++i)
        placed.push_back(point.x * m[0][i] + point.y * m[1][i] + point.z * m[2][i] + m[3][i]);
    EXPECT_EQ(placed.back(), 1.0F);
    placed.pop_back();
    return placed;
}

auto Near(const D3DXVECTOR3& v)
{
    return ElementsAre(FloatNear(v.x, 2e-5F), FloatNear(v.y, 2e-5F), FloatNear(v.z, 2e-5F));
}

} // namespace

struct FrameCase
{
    const char* name;
    optional<D3DXVECTOR3> handles = {}, scaling = {}, rotation = {}, translation = {};
    D3DXVECTOR3 origin; ///< where the point (0, 0, 0) comes to
    D3DXVECTOR3 point;  ///< where the point (1, 2, 3) comes to
    bool wideRect = false;
    bool turned = false;
    bool suspended = false;
    float aspect = 4.0F / 3.0F;
    const char* speed = "0";
};

class Frame : public testing::TestWithParam<FrameCase>
{};

TEST_P(Frame, PlacesPoints)
{
    const FrameCase& row = GetParam();
    CVCPTransformImpl transform;
    LoadSpeed(transform, row.speed);
    if (row.wideRect)
        transform.SetBoundingRect(0, 4, 6, 2);
    transform.SetQuarterTurned(row.turned);
    transform.SetPathSuspended(row.suspended);
    transform.SetAspectRatio(row.aspect);
    transform.SetDuration(10);
    SetKey(transform, TRANSFORM_HANDLES, row.handles);
    SetKey(transform, TRANSFORM_SCALING, row.scaling);
    SetKey(transform, TRANSFORM_ROTATION, row.rotation);
    SetKey(transform, TRANSFORM_TRANSLATION, row.translation);
    for (const double time : { 0.0, 7.0 }) { // nothing of one frame goes into the next
        EXPECT_EQ(transform.FrameMove(time, 0), status::kOk);
        EXPECT_THAT(Place(transform, { 0, 0, 0 }), Near(row.origin));
        EXPECT_THAT(Place(transform, { 1, 2, 3 }), Near(row.point));
    }
}

namespace {

constexpr D3DXVECTOR3 kHandles{ 0.5F, -1, 2 };
constexpr D3DXVECTOR3 kScaling{ 2, 3, 0.5F };
constexpr D3DXVECTOR3 kRotation{ 30, -20, 50 };
constexpr D3DXVECTOR3 kTranslation{ 3, 4, 5 };

} // namespace

// clang-format off
INSTANTIATE_TEST_SUITE_P(Steps, Frame, testing::Values(
    FrameCase{ .name = "NoKeys", .origin{ 0, 0, 0 }, .point{ 1, 2, 3 } },
    FrameCase{ .name = "CentreOfRectangle", .origin{ -3, -3, 0 }, .point{ -2, -1, 3 },
               .wideRect = true },
    FrameCase{ .name = "Handles", .handles = kHandles,
               .origin{ -1.5, -4, 2 }, .point{ -.5, -2, 5 }, .wideRect = true },
    FrameCase{ .name = "Scaling", .scaling = kScaling,
               .origin{ 0, 0, 0 }, .point{ 2, 6, 1.5 } },
    FrameCase{ .name = "Rotation", .rotation = kRotation,
               .origin{ 0, 0, 0 }, .point{ -2.07511F, .27675F, 3.10118F } },
    FrameCase{ .name = "Translation", .translation = kTranslation,
               .origin{ 3, 3, 5 }, .point{ 4, 5, 8 } },
    FrameCase{ .name = "AllInTheirOrder", .handles = kHandles, .scaling = kScaling,
               .rotation = kRotation, .translation = kTranslation,
               .origin{ 11.24197F, -6.17029F, 3.59438F }, .point{ 6.7651F, -2.25344F, 6.21467F },
               .wideRect = true },
    FrameCase{ .name = "UprightFrame", .translation = kTranslation,
               .origin{ 2.25, 4, 5 }, .point{ 3.25, 6, 8 }, .aspect = .75F },
    FrameCase{ .name = "QuarterTurn", .handles = kHandles, .rotation = kRotation,
               .translation = kTranslation, .origin{ -3.75357F, 3.68149F, 5.41822F },
               .point{ -2.86635F, 2.95165F, 8.97915F }, .wideRect = true, .turned = true },
    FrameCase{ .name = "QuarterTurnWithoutKeys",
               .origin{ 0, 0, 0 }, .point{ 2, -1, 3 }, .turned = true },
    FrameCase{ .name = "QuarterTurnedScroll", .handles = kHandles, .translation = kTranslation,
               .origin{ 3, -2.75, 7 }, .point{ 5, -3.75, 10 }, .turned = true, .speed = "2" },
    FrameCase{ .name = "SuspendedPath", .handles = kHandles, .scaling = kScaling,
               .translation = kTranslation, .origin{ 0, 0, 0 }, .point{ 2, 6, 1.5 },
               .suspended = true }),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST(LastValues, AreThoseOfTheLastFrame)
{
    CVCPTransformImpl transform;
    LoadSpeed(transform, "2");
    transform.SetQuarterTurned(true);
    SetKey(transform, TRANSFORM_HANDLES, kHandles);
    SetKey(transform, TRANSFORM_ROTATION, kRotation);
    SetKey(transform, TRANSFORM_TRANSLATION, kTranslation);
    transform.SetOpacityKey(0, S, 0, 0);
    transform.SetOpacityKey(1, S, 255, 0);
    EXPECT_THAT(Last(transform, TRANSFORM_SCALING), ElementsAre(1, 1, 1));
    transform.FrameMove(0.5, 0);
    EXPECT_THAT(Last(transform, TRANSFORM_HANDLES), ElementsAre(0.5F, -1, 2));
    EXPECT_THAT(Last(transform, TRANSFORM_SCALING), ElementsAre(1, 1, 1));
    EXPECT_THAT(Last(transform, TRANSFORM_ROTATION), ElementsAre(30, -20, -40));
    EXPECT_THAT(Last(transform, TRANSFORM_TRANSLATION), ElementsAre(4, -3, 5)); // before the ratio
    unsigned long opacity = 0;
    EXPECT_EQ(transform.GetLastOpacityValue(&opacity), status::kOk);
    EXPECT_EQ(opacity, 127U);
    EXPECT_EQ(transform.GetLast3DValue(TRANSFORM_OPACITY, nullptr, nullptr, nullptr),
              status::kBadArgument);

    transform.SetQuarterTurned(false);
    for (const unsigned long mask : { TRANSFORM_ROTATION, TRANSFORM_TRANSLATION })
        transform.DeleteAllKeys(mask, vantrel::kAllKeyframes);
    transform.FrameMove(NAN, 0); // no time: everything rests, and the opacity stays
    for (const unsigned long mask :
         { TRANSFORM_HANDLES, TRANSFORM_ROTATION, TRANSFORM_TRANSLATION })
        EXPECT_THAT(Last(transform, mask), ElementsAre(0, 0, 0));
    transform.GetLastOpacityValue(&opacity);
    EXPECT_EQ(opacity, 127U);
}

struct ScrollCase
{
    const char* name;
    D3DXVECTOR3 from, to;
    const char* speed;
    vector<double> times; ///< of the handle keys after a frame
};

class Scroll : public testing::TestWithParam<ScrollCase>
{};

TEST_P(Scroll, RunsAtItsSpeedWhateverTheDistance)
{
    CVCPTransformImpl transform;
    LoadSpeed(transform, GetParam().speed);
    transform.SetFrameSize(700, 480);
    for (const unsigned long mask : { TRANSFORM_HANDLES, TRANSFORM_TRANSLATION }) {
        SetKey(transform, mask, GetParam().from);
        transform.Set3DKeyframe(mask, 5, S, GetParam().to.x, GetParam().to.y, 0, 0);
    }
    for (int frame = 0; frame < 2; ++frame)
        transform.FrameMove(1, 0);
    for (const unsigned long mask : { TRANSFORM_HANDLES, TRANSFORM_TRANSLATION }) {
        vector<double> times(2);
        KVC_KEYFRAME_TYPE types[2];
        transform.GetKeyTimes(mask, times.data(), types);
        EXPECT_EQ(times, GetParam().times);
    }
}

// distance: 480 or 700 pixels, doubled by the default rectangle, over speed times 30 a second
INSTANTIATE_TEST_SUITE_P(
    Directions, Scroll,
    testing::Values(ScrollCase{ "Vertical", { 0, -1, 0 }, { 0, 1, 0 }, "2", { 0, 16 } },
                    ScrollCase{ "EvenIsVertical", { 1, -1, 0 }, { 0, 0, 0 }, "2", { 0, 16 } },
                    ScrollCase{ "Horizontal", { 3, 0, 0 }, { 0, 2, 0 }, "2", { 0, 1400.0 / 60 } },
                    ScrollCase{ "NoScroll", { 0, -1, 0 }, { 0, 1, 0 }, "-2", { 0, 5 } },
                    ScrollCase{ "NoNumber", { 0, -1, 0 }, { 0, 1, 0 }, "nan", { 0, 5 } },
                    ScrollCase{ "NoTime", { 0, -1, 0 }, { 0, 1, 0 }, "5e-324", { 0, 5 } }),
    [](const auto& row) { return row.param.name; });

TEST(HoldTime, IsTheEndOfTheEntranceOrTheMiddleOfAScroll)
{
    CVCPTransformImpl transform;
    double hold = 0;
    EXPECT_EQ(transform.GetHoldTime(nullptr), status::kNullPointer);
    LoadSpeed(transform, "2");
    for (const double time : { -1.0, 4.0 })
        transform.Set3DKeyframe(TRANSFORM_TRANSLATION, time, S, 0, 0, 0, 0);
    for (const double time : { 2.0, 6.0 }) {
        for (const unsigned long mask :
             { TRANSFORM_ROTATION, TRANSFORM_SCALING, TRANSFORM_HANDLES })
            transform.Set3DKeyframe(mask, time, S, 0, 0, 0, 0);
    }
    transform.GetHoldTime(&hold);
    EXPECT_EQ(hold, 3.0); // from 0 to 6: a negative time counts as 0
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 1, S, 0, 0, 0, 0);
    transform.DeleteKey(TRANSFORM_TRANSLATION, -1, S);
    transform.GetHoldTime(&hold);
    EXPECT_EQ(hold, 3.5); // from 1 to 6
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0.5, KVC_KEYFRAME_END_OFFSET, 0, 0, 0, 0);
    transform.GetHoldTime(&hold);
    EXPECT_EQ(hold, 6.0);                                                   // the path leaves again
    transform.DeleteAllKeys(TRANSFORM_TRANSLATION, vantrel::kAllKeyframes); // ends the scroll
    transform.GetHoldTime(&hold);
    EXPECT_EQ(hold, 6.0);
}
