#pragma once

/// @file
/// Value types that several subsystems share. Menu geometry has y growing upward, so that the top
/// of a rectangle is the larger y; all coordinates are `float`.

#include <cstdint>

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

/// A 128-bit identifier.
struct _GUID
{
    std::uint32_t Data1 = 0;
    std::uint16_t Data2 = 0;
    std::uint16_t Data3 = 0;
    std::uint8_t Data4[8] = {};
};
