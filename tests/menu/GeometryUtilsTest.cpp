#include "menu/GeometryUtils.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using testing::ElementsAre;
using testing::FloatNear;

namespace {

using Floats = std::vector<float>;
using Points = std::vector<FPoint>;

Floats Edges(const FRect& rect)
{
    return { rect.left, rect.top, rect.right, rect.bottom };
}

} // namespace

TEST(Extents, TopIsTheLargerYAndARectangleOfZerosCountsForNothing)
{
    FRect out(7, 7, 7, 7);
    EXPECT_FALSE(UnionRectFloat(out, {}, {}) || ComputeExent({}, out));
    EXPECT_THAT(Edges(out), ElementsAre(7, 7, 7, 7));
    EXPECT_TRUE(UnionRectFloat(out, {}, { 5, 20, 15, 5 }));
    EXPECT_TRUE(UnionRectFloat(out, out, {}));
    EXPECT_THAT(Edges(out), ElementsAre(5, 20, 15, 5));
    EXPECT_TRUE(UnionRectFloat(out, { 0, 10, 10, 0 }, out));
    EXPECT_THAT(Edges(out), ElementsAre(0, 20, 15, 0));
    EXPECT_FALSE(FRect(0, 0, NAN, 0).IsEmpty() || FRect(1, 1, 1, 1).IsEmpty());
    EXPECT_TRUE(ComputeExent({ { 0, 1 }, { -4, 0 }, { 0, -3 }, { 2, 0 } }, out));
    EXPECT_THAT(Edges(out), ElementsAre(-4, 1, 2, -3));
}

TEST(PlaceCorners, ScalesShiftsTurnsAndShifts)
{
    const FPoint zero, one(1, 1);
    Points points{ { 1, 1 }, { 2, 0 } };
    ASSERT_TRUE(Apply2DTransforms(points, points, { 2, 2 }, { 1, 0 }, 0, { 10, 10 }));
    EXPECT_THAT((Floats{ points[0].x, points[0].y, points[1].x, points[1].y }),
                ElementsAre(13, 12, 15, 10));
    points = { { 1, 0 }, { 0, 1 } };
    ASSERT_TRUE(Apply2DTransforms(points, points, { 3, 1 }, { 1, 2 }, -90, { 5, 0 }));
    EXPECT_THAT((Floats{ points[0].x, points[0].y, points[1].y }),
                ElementsAre(FloatNear(7, 1e-5F), FloatNear(-4, 1e-5F), FloatNear(-1, 1e-5F)));

    Points none;
    EXPECT_FALSE(Apply2DTransforms(points, none, one, zero, 0, zero));
    EXPECT_FALSE(Apply2DTransforms({ one }, points, one, zero, 0, zero));
}

TEST(Matrix, RollTurnsXTowardsY)
{
    D3DXMATRIX m; // the matrices as a whole are tested where a frame multiplies them
    D3DXMatrixRotationYawPitchRoll(&m, 0, 0, std::acos(0.0F));
    EXPECT_THAT(m.m[0], ElementsAre(FloatNear(0, 1e-6F), 1, 0, 0));
    EXPECT_THAT(m.m[1], ElementsAre(-1, FloatNear(0, 1e-6F), 0, 0));
}
