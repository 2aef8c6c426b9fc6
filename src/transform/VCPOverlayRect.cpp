#include "transform/VCPOverlayRect.h"

#include "core/Property.h"
#include "xml/KeptXml.h"
#include "xml/XmlValue.h"

#include <new>

using namespace vantrel;

namespace {

constexpr int kLargestSide = 8192; // pixels; a picture takes at most 256 MiB

/// A side of the picture in pixels, truncated.
int Pixels(float length)
{
    if (!(length > 0.0F))
        return 0;
    return length < static_cast<float>(kLargestSide) ? static_cast<int>(length) : kLargestSide;
}

} // namespace

// NOLINTNEXTLINE(bugprone-virtual-near-miss)
Status CVCPOverlayRect::SInit(int width, int height, D3DXMATRIX* first, D3DXMATRIX* second)
{
    if (!first || !second)
        return status::kNullPointer;
    m_isInitialised = true;
    m_firstMatrixCopy = *first;
    m_secondMatrixCopy = *second;
    (void)SBInit(width, height, &m_firstMatrixCopy, &m_secondMatrixCopy); // never null
    m_hasOpacityKeys = false;
    m_lastOpacity = 255;
    m_origin[0] = m_origin[1] = 0.0F;
    m_unitZ = 1.0F;
    return status::kOk;
}

void CVCPOverlayRect::SetBoundingRect(float left, float top, float right, float bottom)
{
    CVCPTransformImpl::SetBoundingRect(left, top, right, bottom);
    m_isInProportion = false;
}

Status CVCPOverlayRect::LoadXML(_xmlNode* node)
{
    (void)CVCPTransformImpl::LoadXML(node); // never fails
    const _xmlNode* html = FindChildElement(node, "html");
    if (!html)
        return status::kNothingDone;
    m_html = CopyXml(html);
    m_body = FindChildElement(m_html.get(), "body");
    if (!m_isInProportion) {
        m_boundBottom /= m_aspectRatio;
        m_boundTop /= m_aspectRatio;
        m_isInProportion = true;
    }
    if (m_isInitialised)
        MeasurePicture();
    return status::kOk;
}

/// Both sides count in the width of the frame: the rectangle has its proportions already.
void CVCPOverlayRect::MeasurePicture()
{
    m_sourceLeft = 0.0F;
    m_sourceTop = 0.0F;
    m_sourceRight = 1.0F;
    m_sourceBottom = 1.0F;
    const float frameWidth = static_cast<float>(m_frameWidth);
    m_pixelWidth = Pixels((m_boundRight - m_boundLeft) / 2.0F * frameWidth);
    m_pixelHeight = Pixels((m_boundTop - m_boundBottom) / 2.0F * frameWidth);
    m_rowBytes = m_pixelWidth * 4;
    m_pixels.reset();
}

Status CVCPOverlayRect::GetPicture(char** pixels, int* width, int* height, int* rowBytes)
{
    (void)Give(width, m_pixelWidth); // each output is optional
    (void)Give(height, m_pixelHeight);
    (void)Give(rowBytes, m_rowBytes);
    if (!pixels)
        return status::kOk;
    const auto size =
        static_cast<std::size_t>(m_rowBytes) * static_cast<std::size_t>(m_pixelHeight);
    if (!m_pixels && size > 0)
        m_pixels.reset(new (std::nothrow) char[size]());
    *pixels = m_pixels.get();
    return m_pixels || size == 0 ? status::kOk : status::kNoMemory;
}
