#include "transform/VCPTransformImpl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>
#include <vector>

using testing::ElementsAre;
using vantrel::kAllKeyframes;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;
constexpr auto E = KVC_KEYFRAME_END_OFFSET;
constexpr auto P = KVC_KEYFRAME_PERCENTAGE;

using Floats = std::vector<float>;

Floats KeyAt(const CVCPTransformImpl& transform, unsigned long mask, double time,
             KVC_KEYFRAME_TYPE type = S)
{
    Floats value(3);
    EXPECT_EQ(transform.Get3DKeyframe(mask, time, type, &value[0], &value[1], &value[2], nullptr),
              status::kOk);
    return value;
}

unsigned long OpacityAt(const CVCPTransformImpl& transform, double time, KVC_KEYFRAME_TYPE type = S)
{
    unsigned long value = 0;
    EXPECT_EQ(transform.GetOpacityKey(time, type, &value, nullptr), status::kOk);
    return value;
}

/// Shows the sums of the adjustments.
struct Adjusted : CVCPTransformImpl
{
    Floats DeltaOf(D3DXVECTOR3 CVCPTransformImpl::*delta) const
    {
        const D3DXVECTOR3& v = this->*delta;
        return { v.x, v.y, v.z };
    }
    Floats Translation() const { return DeltaOf(&Adjusted::m_translationDelta); }
    Floats Scaling() const { return DeltaOf(&Adjusted::m_scalingDelta); }
    long Opacity() const { return static_cast<long>(m_opacityDelta); }
    void SetSpeed(double speed) { m_speed = speed; }
    double Speed() const { return m_speed; }
};

} // namespace

TEST(TransformKeys, AMaskPicksItsTrackAndNoOther)
{
    CVCPTransformImpl transform;
    unsigned long count = 0;
    for (const unsigned long mask :
         { TRANSFORM_TRANSLATION, TRANSFORM_ROTATION, TRANSFORM_SCALING, TRANSFORM_HANDLES }) {
        ++count;
        for (unsigned long i = 0; i < count; ++i)
            EXPECT_EQ(transform.Set3DKeyframe(mask, double(i), E, 0, 0, 0, mask), status::kOk);
    }
    for (int i = 0; i < 7; ++i)
        EXPECT_EQ(transform.SetOpacityKey(i, P, 9, 0), status::kOk);
    std::vector<int> counts;
    for (const unsigned long mask : { TRANSFORM_TRANSLATION, TRANSFORM_ROTATION, TRANSFORM_SCALING,
                                      TRANSFORM_HANDLES, TRANSFORM_OPACITY }) {
        counts.emplace_back();
        EXPECT_EQ(transform.GetKeyCount(mask, &counts.back()), status::kOk);
        EXPECT_EQ(transform.MoveKey(mask, mask == TRANSFORM_OPACITY ? P : E, 0, 9), status::kOk);
        EXPECT_EQ(transform.DeleteKey(mask, 9, S), status::kNothingDone);
    }
    EXPECT_THAT(counts, ElementsAre(1, 2, 3, 4, 7));
}

TEST(TransformKeys, OtherMasksHaveNoTrack)
{
    CVCPTransformImpl transform;
    EXPECT_EQ(transform.GetKeyframes(TRANSFORM_OPACITY), nullptr);
    float x = 5;
    int count = 5;
    for (const unsigned long mask : { 0x3UL, 0UL, 0x73FFFUL }) {
        EXPECT_EQ(transform.GetKeyframes(mask), nullptr);
        EXPECT_EQ(transform.Set3DKeyframe(mask, 0, S, 0, 0, 0, 0), status::kBadArgument);
        EXPECT_EQ(transform.Get3DKeyframe(mask, 0, S, &x, &x, &x, nullptr), status::kBadArgument);
        EXPECT_EQ(transform.Get3DKeyInterpolatedValue(mask, 0, &x, &x, &x), status::kBadArgument);
        EXPECT_EQ(transform.GetKeyCount(mask, &count), status::kBadArgument);
        EXPECT_EQ(transform.DeleteAllKeys(mask, kAllKeyframes), status::kBadArgument);
        EXPECT_EQ(transform.Adjust3DKeyframes(mask, 1, 1, 1), status::kBadArgument);
    }
    EXPECT_EQ(x, 5.0F);
    EXPECT_EQ(count, 5);
}

TEST(TransformKeys, AMissingKeyGivesTheRestingValue)
{
    CVCPTransformImpl transform;
    Floats v{ 7, 7, 7 };
    unsigned long caps = 7;
    const auto read = [&](unsigned long mask) {
        return transform.Get3DKeyframe(mask, 1, S, &v[0], &v[1], nullptr, &caps);
    };
    EXPECT_EQ(read(TRANSFORM_SCALING), status::kBadArgument); // an empty map
    EXPECT_THAT(v, ElementsAre(7, 7, 7));
    transform.Set3DKeyframe(TRANSFORM_SCALING, 0, S, 5, 5, 5, 1);
    transform.Set3DKeyframe(TRANSFORM_HANDLES, 0, S, 5, 5, 5, 1);
    EXPECT_EQ(read(TRANSFORM_SCALING), status::kNothingDone);
    EXPECT_THAT(v, ElementsAre(1, 1, 7));
    EXPECT_EQ(read(TRANSFORM_HANDLES), status::kNothingDone);
    EXPECT_THAT(v, ElementsAre(0, 0, 7));
    EXPECT_EQ(caps, 7U);
}

TEST(TransformProperties, CapsChangeWithinTheMask)
{
    CVCPTransformImpl transform;
    unsigned long caps = 0;
    EXPECT_EQ(transform.GetCaps(0xFFFFF, nullptr), status::kNullPointer);
    transform.SetCaps(0xF0F, 0xFFC);
    transform.GetCaps(0xFFFFF, &caps);
    EXPECT_EQ(caps, 0x1F3CU);
    transform.GetCaps(TRANSFORM_ROTATION, &caps);
    EXPECT_EQ(caps, 0x30U);
}

TEST(TransformProperties, SettersRefuseWhatIsNotAboveZero)
{
    CVCPTransformImpl transform;
    for (const double value : { 0.0, -1.0, double(NAN) }) {
        EXPECT_EQ(transform.SetAspectRatio(static_cast<float>(value)), status::kBadArgument);
        EXPECT_EQ(transform.SetFrameRate(value), status::kBadArgument);
    }
    EXPECT_EQ(transform.SetFrameSize(0, 1), status::kBadArgument);
    EXPECT_EQ(transform.SetFrameSize(1, 0), status::kBadArgument);
    EXPECT_EQ(transform.SetFrameRate(25), status::kOk);
}

TEST(TransformProperties, RectangleHasItsCornersCounterClockwise)
{
    CVCPTransformImpl transform;
    D3DXVECTOR3 a, b, c, d;
    transform.SetBoundingRect(1, 4, 3, 2);
    EXPECT_EQ(transform.GetModelBoundingRect(&a, &b, &c, &d), status::kOk);
    EXPECT_THAT((Floats{ a.x, a.y, b.x, b.y, c.x, c.y, d.x, d.y, a.z + b.z + c.z + d.z }),
                ElementsAre(1, 4, 1, 2, 3, 2, 3, 4, 0));
    float x = 0, y = 0;
    transform.GetAspectRatioScaling(4, 3, &x, &y);
    EXPECT_THAT((Floats{ x, y }), ElementsAre(0.75F, 0.25F));
}

TEST(Adjustment, ShiftsTheAxesThatAKeyAllows)
{
    Adjusted transform;
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 1, S, 1, 1, 1, 0x1);
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 2, E, 2, 2, 2, 0x4);
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, .5, P, 3, 3, 3, 0);
    EXPECT_EQ(transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, 10, 20, 30), status::kOk);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 1), ElementsAre(11, 1, 1));
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 2, E), ElementsAre(2, 2, 32));
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, .5, P), ElementsAre(3, 3, 3));
    EXPECT_THAT(transform.Translation(), ElementsAre(10, 0, 30)); // no key took y

    transform.Adjust3DKeyframesIntl(TRANSFORM_TRANSLATION, 1, 1, 1, true, E);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 1), ElementsAre(11, 1, 1));
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 2, E), ElementsAre(2, 2, 33));
    EXPECT_THAT(transform.Translation(), ElementsAre(10, 0, 30));
    EXPECT_EQ(transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, NAN, 0, 0), status::kBadArgument);

    transform.Reset3DKeyframesDelta(0x2);
    EXPECT_THAT(transform.Translation(), ElementsAre(0, 0, 0));
}

TEST(Adjustment, MakesAKeyWhereThereIsNone)
{
    Adjusted transform;
    transform.Adjust3DKeyframes(TRANSFORM_ROTATION, 1, 2, 3);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_ROTATION, 0), ElementsAre(1, 2, 3));
    transform.Adjust3DKeyframesIntl(TRANSFORM_HANDLES, 1, 2, 3, true, E);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_HANDLES, 0), ElementsAre(0, 0, 0));
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-55L));
    EXPECT_EQ(OpacityAt(transform, 0), 200U);
}

TEST(Adjustment, ScalingStopsAtZeroInXAlone)
{
    Adjusted transform;
    transform.Set3DKeyframe(TRANSFORM_SCALING, 0, S, 1, 1, 1, 0x700);
    transform.Adjust3DKeyframes(TRANSFORM_SCALING, -5, -5, -5);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_SCALING, 0), ElementsAre(0, -4, -4));
    EXPECT_THAT(transform.Scaling(), ElementsAre(-5, -5, -5)); // what was asked for
}

TEST(Adjustment, ATurnedScrollCrossesTheAxes)
{
    Adjusted transform;
    transform.SetQuarterTurned(true);
    transform.SetSpeed(2);
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0, S, 1, 1, 1, 0x2);
    transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, 10, 20, 0);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 0), ElementsAre(1, 11, 1));
    EXPECT_THAT(transform.Translation(), ElementsAre(10, 0, 0));
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0, S, 1, 1, 1, 0x1);
    transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, 10, 20, 0);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 0), ElementsAre(-19, 1, 1));
    EXPECT_THAT(transform.Translation(), ElementsAre(10, 20, 0));
    transform.DeleteAllKeys(TRANSFORM_TRANSLATION, E); // ends the scroll and forgets the sum
    EXPECT_EQ(transform.Speed(), 0.0);
    EXPECT_THAT(transform.Translation(), ElementsAre(0, 0, 0));
}

TEST(Adjustment, OpacityStaysBetween0And255)
{
    Adjusted transform;
    transform.SetOpacityKey(0, S, 100, 0x1000);
    transform.SetOpacityKey(1, E, 255, 0x1000);
    transform.SetOpacityKey(.5, P, 90, 0x2000);
    const auto opacities = [&] {
        return std::tuple(OpacityAt(transform, 0), OpacityAt(transform, 1, E),
                          OpacityAt(transform, .5, P));
    };
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-300L));
    EXPECT_EQ(opacities(), std::tuple(0, 0, 90));
    transform.AdjustOpacityKeyframesIntl(7, true, E);
    EXPECT_EQ(opacities(), std::tuple(0, 7, 90));
    EXPECT_EQ(transform.Opacity(), -300);
    transform.AdjustOpacityKeyframes(300);
    EXPECT_EQ(opacities(), std::tuple(255, 255, 90));
    EXPECT_EQ(transform.Opacity(), 0);
}

TEST(Adjustment, PathMeetsAnEndValueOnTheAxesOfBoth)
{
    CVCPTransformImpl transform;
    const vantrel::VectorTrack::KEY_ELEM end{ { 10, 20, 30 }, 0x3 };
    transform.AdjustPathValues(TRANSFORM_TRANSLATION, E, &end);
    transform.AdjustPathValues(TRANSFORM_TRANSLATION, S, &end);
    int count = 0;
    transform.GetKeyCount(TRANSFORM_TRANSLATION, &count);
    EXPECT_EQ(count, 1); // an empty start map alone takes the value
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 0), ElementsAre(10, 20, 30));

    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 1, E, 1, 1, 1, 0x1);
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 2, E, 4, 4, 4, 0x7);
    transform.AdjustPathValues(TRANSFORM_TRANSLATION, E, &end);
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 1, E), ElementsAre(7, 1, 1));
    EXPECT_THAT(KeyAt(transform, TRANSFORM_TRANSLATION, 2, E), ElementsAre(10, 20, 4));
}
