#pragma once

#include "core/Export.h"
#include "core/Types.h"

#include <vector>

/// @file
/// The geometry under menu elements and transforms: extents, the pipeline that places corners on a
/// menu, and matrices. y grows upward. Angles of `Apply2DTransforms` are degrees, those of the
/// matrices radians.

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
/// @name Matrices
/// For row vectors: `v * A * B` applies A first. Each function fills `out`, which must not be null,
/// and returns it.
/// @{

VANTREL_API D3DXMATRIX* D3DXMatrixIdentity(D3DXMATRIX* out);

VANTREL_API D3DXMATRIX* D3DXMatrixTranslation(D3DXMATRIX* out, float x, float y, float z);

VANTREL_API D3DXMATRIX* D3DXMatrixScaling(D3DXMATRIX* out, float x, float y, float z);

/// Turns by `roll` about z, then by `pitch` about x, then by `yaw` about y. A positive angle turns
/// x towards y, y towards z and z towards x.
VANTREL_API D3DXMATRIX* D3DXMatrixRotationYawPitchRoll(D3DXMATRIX* out, float yaw, float pitch,
                                                       float roll);

/// The product `a` times `b`. `out` may be `a` or `b`.
VANTREL_API D3DXMATRIX* D3DXMatrixMultiply(D3DXMATRIX* out, const D3DXMATRIX* a,
                                           const D3DXMATRIX* b);

/// @}
