#pragma once

#include "core/Types.h"

#include <cmath>

/// Numbers of an animation are finite: nothing else can be ordered, blended or drawn. What isn't is
/// refused from a caller and reads as 0 from a file.
namespace vantrel {

inline bool IsFinite(unsigned long)
{
    return true;
}

inline bool IsFinite(const D3DXVECTOR3& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

template <class Real>
Real FiniteOrZero(Real value)
{
    return std::isfinite(value) ? value : Real{};
}

inline D3DXVECTOR3 FiniteOrZero(const D3DXVECTOR3& v)
{
    return { FiniteOrZero(v.x), FiniteOrZero(v.y), FiniteOrZero(v.z) };
}

} // namespace vantrel
