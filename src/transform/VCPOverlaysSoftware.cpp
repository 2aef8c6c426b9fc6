#include "transform/VCPOverlaysSoftware.h"

#include <algorithm>

using namespace vantrel;

COverlaysSoftwareBase::COverlaysSoftwareBase()
{
    const D3DXVECTOR3 zero(0.0F, 0.0F, 0.0F);
    const D3DXVECTOR3 one(1.0F, 1.0F, 1.0F);
    std::ranges::fill(m_corners, zero);
    std::ranges::fill(m_vectors, zero);
    m_vectors[0] = m_vectors[6] = one;
}

Status COverlaysSoftwareBase::SBInit(int width, int height, D3DXMATRIX* first, D3DXMATRIX* second)
{
    if (!first || !second)
        return status::kNullPointer;
    m_firstMatrix = first;
    m_secondMatrix = second;
    m_viewportX = 0;
    m_viewportY = 0;
    m_viewportWidth = static_cast<unsigned long>(width);
    m_viewportHeight = static_cast<unsigned long>(height);
    m_viewportMinZ = 0.0F;
    m_viewportMaxZ = 1.0F;
    m_frameWidth = width;
    m_frameHeight = height;
    m_frameAspect = static_cast<float>(width) / static_cast<float>(height);
    m_overlayFlag = false;
    m_overlayOpacity = 255;
    return status::kOk;
}
