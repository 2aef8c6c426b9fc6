#include "core/Matrix.h"

#include <cmath>

D3DXMATRIX* D3DXMatrixIdentity(D3DXMATRIX* out)
{
    return D3DXMatrixScaling(out, 1.0F, 1.0F, 1.0F);
}

D3DXMATRIX* D3DXMatrixTranslation(D3DXMATRIX* out, float x, float y, float z)
{
    *out = { { { 1.0F, 0.0F, 0.0F, 0.0F },
               { 0.0F, 1.0F, 0.0F, 0.0F },
               { 0.0F, 0.0F, 1.0F, 0.0F },
               { x, y, z, 1.0F } } };
    return out;
}

D3DXMATRIX* D3DXMatrixScaling(D3DXMATRIX* out, float x, float y, float z)
{
    *out = { { { x, 0.0F, 0.0F, 0.0F },
               { 0.0F, y, 0.0F, 0.0F },
               { 0.0F, 0.0F, z, 0.0F },
               { 0.0F, 0.0F, 0.0F, 1.0F } } };
    return out;
}

D3DXMATRIX* D3DXMatrixRotationYawPitchRoll(D3DXMATRIX* out, float yaw, float pitch, float roll)
{
    const float cy = std::cos(yaw), sy = std::sin(yaw);
    const float cp = std::cos(pitch), sp = std::sin(pitch);
    const float cr = std::cos(roll), sr = std::sin(roll);
    // the product of the three turns, multiplied out
    *out = { { { cr * cy + sr * sp * sy, sr * cp, sr * sp * cy - cr * sy, 0.0F },
               { cr * sp * sy - sr * cy, cr * cp, cr * sp * cy + sr * sy, 0.0F },
               { cp * sy, -sp, cp * cy, 0.0F },
               { 0.0F, 0.0F, 0.0F, 1.0F } } };
    return out;
}

D3DXMATRIX* D3DXMatrixMultiply(D3DXMATRIX* out, const D3DXMATRIX* a, const D3DXMATRIX* b)
{
    D3DXMATRIX product;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            float sum = 0.0F;
            for (int i = 0; i < 4; ++i)
                sum += a->m[row][i] * b->m[i][column];
            product.m[row][column] = sum;
        }
    }
    *out = product;
    return out;
}
