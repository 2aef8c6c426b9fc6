#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"

#include <cstdint>
#include <cstdlib>
#include <memory>

/// The state of an overlay that is drawn in software: a frame, a viewport and the matrices that it
/// is seen through. Sizes are pixels.
class VANTREL_API COverlaysSoftwareBase
{
public:
    COverlaysSoftwareBase();
    virtual ~COverlaysSoftwareBase() = default;
    COverlaysSoftwareBase(const COverlaysSoftwareBase&) = delete;
    COverlaysSoftwareBase& operator=(const COverlaysSoftwareBase&) = delete;

    /// Sets frame and viewport to one size and takes the matrices, which have to outlive the overlay
    /// and stay the caller's. A null matrix gives `status::kNullPointer` and changes nothing.
    virtual vantrel::Status SBInit(int width, int height, D3DXMATRIX* first, D3DXMATRIX* second);

protected:
    struct FreeMemory
    {
        void operator()(void* memory) const { std::free(memory); }
    };

    D3DXMATRIX* m_firstMatrix = nullptr; ///< not owned
    D3DXMATRIX* m_secondMatrix = nullptr;
    unsigned long m_viewportX = 0;
    unsigned long m_viewportY = 0;
    unsigned long m_viewportWidth = 320;
    unsigned long m_viewportHeight = 240;
    float m_viewportMinZ = 0.0F;
    float m_viewportMaxZ = 1.0F;
    float m_sourceLeft = 0.0F; ///< the part of the picture that is shown, as fractions of it
    float m_sourceTop = 0.0F;
    float m_sourceRight = 1.0F;
    float m_sourceBottom = 1.0F;
    int m_frameWidth = 320;
    int m_frameHeight = 240;
    float m_frameAspect = 1.33F; ///< width over height; a fixed value before `SBInit`
    D3DXVECTOR3 m_corners[4];
    D3DXVECTOR3 m_vectors[7];
    bool m_overlayFlag = false;
    bool m_overlayFlag2 = false;
    unsigned long m_overlayOpacity = 255;
    std::unique_ptr<void, FreeMemory> m_mallocBuffer;
    int m_firstMode = 1;
    std::unique_ptr<char[]> m_arrayBuffer;
    int m_secondMode = 1;
    std::uintptr_t m_lastWord = 0;
};
