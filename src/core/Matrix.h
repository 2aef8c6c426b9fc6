#pragma once

#include "core/Export.h"
#include "core/Types.h"

/// @file
/// Matrices of transforms. y grows upward, angles are radians.

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
