#pragma once

#include "core/Export.h"
#include "core/Matrix.h"
#include "core/Types.h"

#include <vector>

/// @file
/// The geometry under menu elements: extents, and the pipeline that places corners on a menu. y grows
/// upward, angles are degrees. The matrices of transforms come with it.

/// @name Extents
/// @{

/// The rectangle around `a` and `b`, where an empty one (`FRect::IsEmpty`) counts for nothing.
/// False, with `out` untouched, when both are empty. `out` may be `a` or `b`.
VANTREL_API bool UnionRectFloat(FRect& out, const FRect& a, const FRect& b);

/// The rectangle around `points`. False, with `out` untouched, when there are none.
VANTREL_API bool ComputeExent(const std::vector<FPoint>& points, FRect& out);

/// @}
/// @name Placing corners
/// @{

/// Takes each point through scaling, a first shift, a turn about the origin by `angle` degrees
/// (counter-clockwise) and a second shift, in this order.
///
/// The caller sizes `out`: false, with `out` untouched, when the sizes differ or there are no
/// points. `in` and `out` may be the same vector.
VANTREL_API bool Apply2DTransforms(const std::vector<FPoint>& in, std::vector<FPoint>& out,
                                   const FPoint& scale, const FPoint& preTranslate, float angle,
                                   const FPoint& postTranslate);

/// @}
