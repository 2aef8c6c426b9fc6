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

/// `v` times `m`, with 1 as the fourth component.
Floats Apply(const D3DXMATRIX& m, const D3DXVECTOR3& v)
{
    Floats result;
    for (int i = 0; i < 3; ++i)
        result.push_back(v.x * m.m[0][i] + v.y * m.m[1][i] + v.z * m.m[2][i] + m.m[3][i]);
    return result;
}

auto Near(float x, float y, float z)
{
    return ElementsAre(FloatNear(x, 1e-5F), FloatNear(y, 1e-5F), FloatNear(z, 1e-5F));
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
    EXPECT_THAT((Floats{ points[0].x, points[0].y, points[1].y }), Near(7, -4, -1));

    Points none;
    EXPECT_FALSE(Apply2DTransforms(points, none, one, zero, 0, zero));
    EXPECT_FALSE(Apply2DTransforms({ one }, points, one, zero, 0, zero));
}

TEST(Matrix, TurnsByRollThenPitchThenYaw)
{
    D3DXMATRIX m;
    D3DXMatrixRotationYawPitchRoll(&m, 0, 0, std::acos(0.0F));
    EXPECT_THAT(Apply(m, { 1, 2, 3 }), Near(-2, 1, 3));
    // all three, worked out turn by turn
    D3DXMatrixRotationYawPitchRoll(&m, 1.1F, -0.7F, 0.3F);
    EXPECT_THAT(Apply(m, { 1, 2, 3 }), Near(0.943497F, 3.620043F, 0.071443F));
}

TEST(Matrix, ProductAppliesTheLeftFactorFirst)
{
    D3DXMATRIX scaling, shift, m;
    D3DXMatrixScaling(&scaling, 2, 3, 4);
    D3DXMatrixTranslation(&shift, 10, 20, 30);
    EXPECT_THAT(Apply(*D3DXMatrixMultiply(&m, &scaling, &shift), { 1, 1, 1 }), Near(12, 23, 34));
    D3DXMatrixMultiply(&m, &shift, D3DXMatrixIdentity(&m)); // the output may be a factor
    EXPECT_THAT(Apply(*D3DXMatrixMultiply(&m, &m, &scaling), { 1, 1, 1 }), Near(22, 63, 124));
}
