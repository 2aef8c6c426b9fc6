#pragma once

/// @file
/// Value types that several subsystems share. Menu geometry has y growing upward, so that the top
/// of a rectangle is the larger y; all coordinates are `float`.

#include "core/Export.h"

#include <cstdint>

/// A point of the menu element model.
struct FPoint
{
    constexpr FPoint() = default;
    constexpr FPoint(float px, float py) : x(px), y(py) {}

    float x = 0.0F;
    float y = 0.0F;
};

/// A rectangle of the menu element model.
struct FRect
{
    constexpr FRect() = default;
    constexpr FRect(float l, float t, float r, float b) : left(l), top(t), right(r), bottom(b) {}

    /// True for the rectangle of four zeros alone: one without area elsewhere is not empty.
    constexpr bool IsEmpty() const
    {
        return left == 0.0F && top == 0.0F && right == 0.0F && bottom == 0.0F;
    }

    float left = 0.0F;
    float top = 0.0F;
    float right = 0.0F;
    float bottom = 0.0F;
};

/// A point as the node classes hand it out.
struct FloatPoint
{
    float x = 0.0F;
    float y = 0.0F;
};

/// A rectangle as the node classes hand it out.
struct FloatRect
{
    float left = 0.0F;
    float top = 0.0F;
    float right = 0.0F;
    float bottom = 0.0F;
};

// The node classes copy the one into the other byte for byte.
static_assert(sizeof(FPoint) == sizeof(FloatPoint) && sizeof(FRect) == sizeof(FloatRect));

/// A vector of three components. Exported for the sake of the templates that are made of it.
struct VANTREL_API D3DXVECTOR3
{
    D3DXVECTOR3() = default; ///< leaves the components unset
    constexpr D3DXVECTOR3(float px, float py, float pz) : x(px), y(py), z(pz) {}

    constexpr D3DXVECTOR3 operator*(float f) const { return { x * f, y * f, z * f }; }

    constexpr D3DXVECTOR3 operator+(const D3DXVECTOR3& v) const
    {
        return { x + v.x, y + v.y, z + v.z };
    }

    constexpr D3DXVECTOR3& operator+=(const D3DXVECTOR3& v)
    {
        *this = *this + v;
        return *this;
    }

    float x;
    float y;
    float z;
};

/// A 4 by 4 matrix for row vectors, row after row: a translation stands in the fourth row.
struct D3DXMATRIX
{
    float m[4][4];
};

/// A 128-bit identifier.
struct _GUID
{
    std::uint32_t Data1 = 0;
    std::uint16_t Data2 = 0;
    std::uint16_t Data3 = 0;
    std::uint8_t Data4[8] = {};
};
