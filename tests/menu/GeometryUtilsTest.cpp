#include "menu/GeometryUtils.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <iterator>

using std::vector;

namespace {

testing::Matcher<const FRect&> IsRect(float left, float top, float right, float bottom)
{
    return testing::AllOf(testing::Field(&FRect::left, left), testing::Field(&FRect::top, top),
                          testing::Field(&FRect::right, right),
                          testing::Field(&FRect::bottom, bottom));
}

/// `v` times `matrix`, with 1 as the fourth component.
vector<float> Apply(const D3DXMATRIX& matrix, const D3DXVECTOR3& v)
{
    vector<float> result;
    for (int i = 0; i < 3; ++i)
        result.push_back(v.x * matrix.m[0][i] + v.y * matrix.m[1][i] + v.z * matrix.m[2][i] +
                         matrix.m[3][i]);
    return result;
}

auto Near(float x, float y, float z)
{
    const auto near = [](float value) { return testing::FloatNear(value, 1e-5F); };
    return testing::ElementsAre(near(x), near(y), near(z));
}

const float kQuarter = std::acos(0.0F);

} // namespace

TEST(UnionRect, TakesOuterEdgesWithTopAsTheLargerY)
{
    FRect a(0, 10, 10, 0);
    EXPECT_TRUE(UnionRectFloat(a, a, FRect(5, 20, 15, 5)));
    EXPECT_THAT(a, IsRect(0, 20, 15, 0));
}

TEST(UnionRect, RectangleOfZerosCountsForNothing)
{
    FRect out(7, 7, 7, 7);
    EXPECT_FALSE(UnionRectFloat(out, FRect(), FRect()));
    EXPECT_THAT(out, IsRect(7, 7, 7, 7));
    EXPECT_TRUE(UnionRectFloat(out, FRect(), FRect(5, 5, 5, 5)));
    EXPECT_THAT(out, IsRect(5, 5, 5, 5));
    EXPECT_TRUE(UnionRectFloat(out, FRect(-1, 2, 3, -4), FRect()));
    EXPECT_THAT(out, IsRect(-1, 2, 3, -4));
    EXPECT_FALSE(FRect(0, 0, NAN, 0).IsEmpty());
}

TEST(Extent, IsThatOfAllPoints)
{
    FRect out(7, 7, 7, 7);
    EXPECT_FALSE(ComputeExent({}, out));
    EXPECT_THAT(out, IsRect(7, 7, 7, 7));
    EXPECT_TRUE(ComputeExent({ { 3, -2 } }, out));
    EXPECT_THAT(out, IsRect(3, -2, 3, -2));
    EXPECT_TRUE(ComputeExent({ { 0, 1 }, { -4, 0 }, { 0, -3 }, { 2, 0 } }, out));
    EXPECT_THAT(out, IsRect(-4, 1, 2, -3));
}

struct PlaceCase
{
    const char* name;
    FPoint point, scale, pre;
    float angle;
    FPoint post, placed;
};

class PlaceCorner : public testing::TestWithParam<PlaceCase>
{};

TEST_P(PlaceCorner, ScalesShiftsTurnsAndShifts)
{
    const PlaceCase& row = GetParam();
    vector<FPoint> points{ row.point };
    ASSERT_TRUE(Apply2DTransforms(points, points, row.scale, row.pre, row.angle, row.post));
    EXPECT_NEAR(points[0].x, row.placed.x, 1e-5F);
    EXPECT_NEAR(points[0].y, row.placed.y, 1e-5F);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, PlaceCorner,
    testing::Values(
        PlaceCase{ "Unturned", { 1, 1 }, { 2, 2 }, { 1, 0 }, 0, { 10, 10 }, { 13, 12 } },
        PlaceCase{ "XToY", { 1, 0 }, { 1, 1 }, {}, 90, {}, { 0, 1 } },
        PlaceCase{ "YToMinusX", { 0, 1 }, { 1, 1 }, {}, 90, {}, { -1, 0 } },
        PlaceCase{
            "TurnsAfterTheFirstShift", { 1, 0 }, { 3, 1 }, { 1, 2 }, -90, { 5, 0 }, { 7, -4 } }),
    [](const auto& row) { return row.param.name; });

TEST(PlaceCorners, NeedsRoomForEachPoint)
{
    vector<FPoint> none, two(2);
    const FPoint one(1, 1), zero;
    EXPECT_FALSE(Apply2DTransforms(two, none, one, zero, 0, zero));
    EXPECT_FALSE(Apply2DTransforms(none, none, one, zero, 0, zero));
    EXPECT_FALSE(Apply2DTransforms({ one }, two, one, zero, 0, zero));
}

TEST(Matrix, TurnsByRollThenPitchThenYaw)
{
    D3DXMATRIX m;
    D3DXMatrixRotationYawPitchRoll(&m, 0, 0, kQuarter);
    EXPECT_THAT(Apply(m, { 1, 2, 3 }), Near(-2, 1, 3));
    D3DXMatrixRotationYawPitchRoll(&m, 0, kQuarter, 0);
    EXPECT_THAT(Apply(m, { 1, 2, 3 }), Near(1, -3, 2));
    D3DXMatrixRotationYawPitchRoll(&m, kQuarter, 0, 0);
    EXPECT_THAT(Apply(m, { 1, 2, 3 }), Near(3, 2, -1));

    D3DXMATRIX roll, pitch, yaw;
    D3DXMatrixRotationYawPitchRoll(&roll, 0, 0, 0.3F);
    D3DXMatrixRotationYawPitchRoll(&pitch, 0, -0.7F, 0);
    D3DXMatrixRotationYawPitchRoll(&yaw, 1.1F, 0, 0);
    D3DXMatrixMultiply(&roll, &roll, &pitch);
    D3DXMatrixMultiply(&yaw, &roll, &yaw);
    D3DXMatrixRotationYawPitchRoll(&m, 1.1F, -0.7F, 0.3F);
    EXPECT_THAT(vector<float>(&m.m[0][0], &m.m[0][0] + 16),
                testing::Pointwise(testing::FloatNear(1e-6F),
                                   vector<float>(&yaw.m[0][0], &yaw.m[0][0] + 16)));
}

TEST(Matrix, ProductAppliesTheLeftFactorFirst)
{
    D3DXMATRIX scaling, shift, m;
    D3DXMatrixScaling(&scaling, 2, 3, 4);
    D3DXMatrixTranslation(&shift, 10, 20, 30);
    D3DXMatrixMultiply(&m, &scaling, &shift);
    EXPECT_THAT(Apply(m, { 1, 1, 1 }), Near(12, 23, 34));
    D3DXMatrixMultiply(&m, &shift, D3DXMatrixIdentity(&m)); // the output may be a factor
    EXPECT_THAT(Apply(*D3DXMatrixMultiply(&m, &m, &scaling), { 1, 1, 1 }), Near(22, 63, 124));
}
