#pragma once

#include "transform/VCPOverlaysSoftware.h"
#include "transform/VCPTransformImpl.h"
#include "xml/XmlPtr.h"

/// A transform with the state of a software overlay: finds the rectangle that a text takes up.
///
/// Used in this order: construct, `SInit`, `LoadXML`, `GetModelBoundingRect`.
class VANTREL_API CVCPOverlayRect : public CVCPTransformImpl, public COverlaysSoftwareBase
{
public:
    /// Takes a frame of `width` by `height` pixels and copies of the two matrices. A null matrix
    /// gives `status::kNullPointer` and changes nothing.
    // NOLINTNEXTLINE(bugprone-virtual-near-miss): not meant to override `SBInit`, which it calls
    vantrel::Status SInit(int width, int height, D3DXMATRIX* first, D3DXMATRIX* second);

    /// Reads the transform and the text of an effect's data, brings the rectangle into the
    /// proportions of the frame, and measures the picture. `status::kNothingDone` without "html":
    /// the rectangle then stays as it is.
    vantrel::Status LoadXML(_xmlNode* node);

    /// As the transform's: a rectangle set anew is not in the proportions of the frame yet.
    void SetBoundingRect(float left, float top, float right, float bottom);

    /// The picture: 32 bits a pixel, all zero at first. It is made by the first call after a load,
    /// and lives until the next. An empty picture gives null. Each output may be null, and without
    /// `pixels` none is made.
    vantrel::Status GetPicture(char** pixels, int* width, int* height, int* rowBytes);

private:
    void MeasurePicture();

    float m_origin[2] = { 0.0F, 0.0F };
    float m_unitZ = 1.0F;
    _xmlNode* m_body = nullptr; ///< in `m_html`
    vantrel::XmlNodePtr m_html; ///< the overlay's own copy
    D3DXMATRIX m_firstMatrixCopy;
    D3DXMATRIX m_secondMatrixCopy;
    std::unique_ptr<char[]> m_pixels; ///< `m_rowBytes` times `m_pixelHeight` bytes, once asked for
    bool m_isInitialised = false;
    int m_pixelWidth = 0;
    int m_pixelHeight = 0;
    int m_rowBytes = 0;
    bool m_isInProportion = false; ///< a second load must not divide the rectangle again
};
