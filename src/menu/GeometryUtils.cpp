#include "menu/GeometryUtils.h"

#include <algorithm>
#include <cmath>

using std::vector;

namespace {

constexpr float kPi = 3.1415927F;

/// A turn about the origin.
class Turn
{
public:
    explicit Turn(float degrees)
        : m_cos(std::cos(kPi * degrees / 180.0F)),
          m_sin(std::sin(kPi * degrees / 180.0F))
    {}

    FPoint operator()(FPoint p) const
    {
        return { p.x * m_cos - p.y * m_sin, p.x * m_sin + p.y * m_cos };
    }

private:
    float m_cos;
    float m_sin;
};

} // namespace

bool UnionRectFloat(FRect& out, const FRect& a, const FRect& b)
{
    if (a.IsEmpty() && b.IsEmpty())
        return false;
    if (a.IsEmpty())
        out = b;
    else if (b.IsEmpty())
        out = a;
    else
        out = FRect(std::fmin(a.left, b.left), std::fmax(a.top, b.top), std::fmax(a.right, b.right),
                    std::fmin(a.bottom, b.bottom));
    return true;
}

bool ComputeExent(const vector<FPoint>& points, FRect& out)
{
    if (points.empty())
        return false;
    const FPoint first = points.front();
    out = FRect(first.x, first.y, first.x, first.y);
    for (const FPoint& point : points) {
        out.left = std::min(out.left, point.x);
        out.top = std::max(out.top, point.y);
        out.right = std::max(out.right, point.x);
        out.bottom = std::min(out.bottom, point.y);
    }
    return true;
}

bool Apply2DTransforms(const vector<FPoint>& in, vector<FPoint>& out, const FPoint& scale,
                       const FPoint& preTranslate, float angle, const FPoint& postTranslate)
{
    if (in.empty() || in.size() != out.size())
        return false;
    const Turn turn(angle);
    for (std::size_t i = 0; i < in.size(); ++i) {
        FPoint point(in[i].x * scale.x + preTranslate.x, in[i].y * scale.y + preTranslate.y);
        if (angle != 0.0F) // an exact test: an unturned point keeps every bit
            point = turn(point);
        out[i] = FPoint(point.x + postTranslate.x, point.y + postTranslate.y);
    }
    return true;
}
