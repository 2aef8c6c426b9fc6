#include "transform/VCPTransformImpl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

using testing::ElementsAre;
using vantrel::kAllKeyframes;
using Floats = std::vector<float>;
using namespace vantrel;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;
constexpr auto E = KVC_KEYFRAME_END_OFFSET;
constexpr auto P = KVC_KEYFRAME_PERCENTAGE;
constexpr unsigned long T = TRANSFORM_TRANSLATION, R = TRANSFORM_ROTATION, C = TRANSFORM_SCALING;

/// Shows the sums of the adjustments, and takes a scroll speed without a file.
struct Transform : CVCPTransformImpl
{
    Floats KeyAt(unsigned long mask, double time, KVC_KEYFRAME_TYPE type = S) const
    {
        Floats v(3);
        EXPECT_EQ(Get3DKeyframe(mask, time, type, &v[0], &v[1], &v[2], nullptr), status::kOk);
        return v;
    }
    Floats Opacities() const
    {
        unsigned long start = 0, end = 0, percentage = 0;
        m_opacity.GetValue(0, S, &start, nullptr);
        m_opacity.GetValue(1, E, &end, nullptr);
        m_opacity.GetValue(.5, P, &percentage, nullptr);
        return { float(start), float(end), float(percentage), float(long(m_opacityDelta)) };
    }
    Floats DeltaOf(unsigned long mask) const
    {
        const D3DXVECTOR3& v = mask == C   ? m_scalingDelta
                               : mask == R ? m_rotationDelta
                                           : m_translationDelta;
        return { v.x, v.y, v.z };
    }
    using CVCPTransformImpl::m_speed;
};

} // namespace

TEST(TransformKeys, OtherMasksHaveNoTrack)
{
    CVCPTransformImpl transform;
    float x = 5;
    int count = 5;
    for (const unsigned long mask : { 0x3UL, 0UL, 0x73FFFUL }) {
        EXPECT_EQ(transform.Set3DKeyframe(mask, 0, S, 0, 0, 0, 0), status::kBadArgument);
        EXPECT_EQ(transform.Get3DKeyframe(mask, 0, S, &x, &x, &x, nullptr), status::kBadArgument);
        EXPECT_EQ(transform.GetKeyCount(mask, &count), status::kBadArgument);
        EXPECT_EQ(transform.Adjust3DKeyframes(mask, 1, 1, 1), status::kBadArgument);
    }
    EXPECT_EQ(x + float(count), 10);
    EXPECT_EQ(transform.GetKeyframes(TRANSFORM_OPACITY), nullptr);
    EXPECT_EQ(transform.GetKeyCount(TRANSFORM_OPACITY, &count), status::kOk);
}

TEST(TransformKeys, AMissingKeyGivesTheRestingValue)
{
    CVCPTransformImpl transform;
    float x = 7, y = 7;
    const auto read = [&] { return transform.Get3DKeyframe(C, 1, S, &x, &y, nullptr, nullptr); };
    EXPECT_EQ(read(), status::kBadArgument); // an empty map
    EXPECT_EQ(x, 7);
    transform.Set3DKeyframe(C, 0, S, 5, 5, 5, 1);
    EXPECT_EQ(read(), status::kNothingDone);
    EXPECT_EQ(x + y, 2);
}

TEST(TransformProperties, RefuseWhatIsNotAboveZero)
{
    CVCPTransformImpl transform;
    for (const double value : { 0.0, -1.0, double(NAN), double(INFINITY) }) {
        EXPECT_EQ(transform.SetAspectRatio(float(value)), status::kBadArgument);
        EXPECT_EQ(transform.SetFrameRate(value), status::kBadArgument);
    }
    EXPECT_EQ(transform.SetFrameSize(0, 1), status::kBadArgument);
}

TEST(TransformProperties, CapsChangeWithinTheMask)
{
    CVCPTransformImpl transform;
    unsigned long caps = 0;
    transform.SetCaps(0xF0F, 0xFFC);
    transform.GetCaps(0xFFFF0, &caps);
    EXPECT_EQ(caps, 0x1F30U);
}

TEST(KeyAdjustment, ShiftsTheAxesThatAKeyAllows)
{
    const struct
    {
        const char* name;
        unsigned long mask, caps;
        D3DXVECTOR3 amount;
        Floats key, delta; ///< afterwards; the key was (1, 1, 1)
        bool isTurnedScroll;
    } cases[] = {
        { "one axis", T, 0x1, { 10, 20, 30 }, { 11, 1, 1 }, { 10, 0, 0 }, false },
        { "z of rotation", R, 0x10, { 10, 20, 30 }, { 1, 1, 31 }, { 0, 0, 30 }, false },
        { "scaling to zero", C, 0x700, { -5, -5, -5 }, { 0, -4, -4 }, { -5, -5, -5 }, false },
        { "turned, in x", T, 0x2, { 10, 20, 30 }, { 1, 11, 1 }, { 10, 0, 0 }, true },
        { "turned, in y", T, 0x1, { 10, 20, 30 }, { -19, 1, 1 }, { 0, 20, 0 }, true },
    };
    for (const auto& [name, mask, caps, amount, key, delta, isTurnedScroll] : cases) {
        SCOPED_TRACE(name);
        Transform transform;
        transform.m_speed = isTurnedScroll ? 2 : 0;
        transform.SetQuarterTurned(isTurnedScroll);
        transform.Set3DKeyframe(mask, .5, P, 1, 1, 1, caps);
        transform.Set3DKeyframe(mask, 0, S, 1, 1, 1, 0);
        transform.Adjust3DKeyframesIntl(mask, amount.x, amount.y, amount.z, true, S);
        EXPECT_EQ(transform.Adjust3DKeyframes(mask, amount.x, amount.y, amount.z), status::kOk);
        EXPECT_EQ(transform.KeyAt(mask, .5, P), key);
        EXPECT_THAT(transform.KeyAt(mask, 0), ElementsAre(1, 1, 1));
        EXPECT_EQ(transform.DeltaOf(mask), delta);
        transform.Reset3DKeyframesDelta(mask & 0x222); // one bit is enough
        EXPECT_THAT(transform.DeltaOf(mask), ElementsAre(0, 0, 0));
    }
}

TEST(Adjustments, MakeAKeyWhereThereIsNone)
{
    Transform transform;
    EXPECT_EQ(transform.Adjust3DKeyframes(R, NAN, 0, 0), status::kBadArgument);
    transform.Adjust3DKeyframes(R, 1, 2, 3);
    EXPECT_EQ(transform.Adjust3DKeyframes(R, 0, 3e38F, 0), status::kOk);
    EXPECT_EQ(transform.Adjust3DKeyframes(R, 5, 3e38F, 0), status::kBadArgument);
    EXPECT_THAT(transform.KeyAt(R, 0), ElementsAre(1, 3e38F, 3));
    transform.Adjust3DKeyframesIntl(C, 1, 2, 3, true, E);
    EXPECT_THAT(transform.KeyAt(C, 0), ElementsAre(1, 1, 1));
}

TEST(Adjustments, KeepOpacityBetween0And255)
{
    Transform transform;
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-55L)); // makes the start key
    transform.SetOpacityKey(1, E, 255, 0x1000);
    transform.SetOpacityKey(.5, P, 90, 0x2000);
    EXPECT_THAT(transform.Opacities(), ElementsAre(200, 255, 90, -55));
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-300L));
    transform.AdjustOpacityKeyframesIntl(7, true, E);
    EXPECT_THAT(transform.Opacities(), ElementsAre(0, 7, 90, -355));
    transform.AdjustOpacityKeyframes(355);
    EXPECT_THAT(transform.Opacities(), ElementsAre(255, 255, 90, 0));
}

TEST(Adjustments, MeetAnEndValueOnTheAxesOfBoth)
{
    Transform transform;
    const vantrel::VectorTrack::KEY_ELEM end{ { 10, 20, 30 }, 0x3 };
    transform.AdjustPathValues(T, E, &end);
    transform.AdjustPathValues(T, S, &end);
    EXPECT_EQ(transform.GetKeyframes(T)->GetMap(E)->size(), 0U); // only a start map takes the value
    EXPECT_THAT(transform.KeyAt(T, 0), ElementsAre(10, 20, 30));

    transform.Set3DKeyframe(T, 1, E, 1, 1, 1, 0x1);
    transform.Set3DKeyframe(T, 2, E, 4, 4, 4, 0x7);
    transform.AdjustPathValues(T, E, &end);
    EXPECT_THAT(transform.KeyAt(T, 1, E), ElementsAre(7, 1, 1));
    EXPECT_THAT(transform.KeyAt(T, 2, E), ElementsAre(10, 20, 4));
}
