#pragma once

#include "disc/ElementNode.h"
#include "menu/MenuOverlayImpl.h"
#include "project/DiscEnums.h"

#include <string>

extern template class VANTREL_API vantrel::ElementNode<CMenuOverlayImpl>;

/// "Overlay": a picture on a menu or in a button: a button's frame, thumbnail, highlight or matte, or any other.
///
/// Every output that is null gives `status::kNullPointer`; what stores a value gives 0 unless it says
/// more. Sizes are model units unless they say otherwise.
class VANTREL_API CDSMenuOverlay : public vantrel::ElementNode<CMenuOverlayImpl>
{
public:
    CDSMenuOverlay();
    ~CDSMenuOverlay() override;

    vantrel::Status GetExtent(FloatRect* out) override;

    /// How the overlay is highlighted with its button.
    virtual vantrel::Status get_Highlight(OverlayHighlight* out);
    virtual vantrel::Status put_Highlight(OverlayHighlight value);

    virtual vantrel::Status get_Label(std::string* out);
    virtual vantrel::Status put_Label(std::string value);

    /// The kind of the picture's source, and which one it is; `sourceID` may be null.
    virtual vantrel::Status GetSourceType(SourceTypes* type, long* sourceID);
    virtual vantrel::Status SetSourceType(SourceTypes type, long sourceID);

    virtual vantrel::Status get_PrivateId(long* out);
    virtual vantrel::Status put_PrivateId(long value);

    virtual vantrel::Status get_StillImage(bool* out);
    virtual vantrel::Status put_StillImage(bool value);

    virtual vantrel::Status get_DynamicScalingFactor(double* out);
    virtual vantrel::Status put_DynamicScalingFactor(double value);

    /// Whether source and mask are zoomed to fill. A file brings the first alone.
    virtual vantrel::Status get_ZoomSource(bool* out);
    virtual vantrel::Status put_ZoomSource(bool value);
    virtual vantrel::Status get_ZoomMask(bool* out);
    virtual vantrel::Status put_ZoomMask(bool value);

    /// -1.0 means not known. Not in the file.
    virtual vantrel::Status SetMaskSize(double width, double height);
    virtual vantrel::Status GetMaskSize(double* width, double* height);

    /// Not in the file.
    virtual vantrel::Status SetSourceScale(double x, double y);
    virtual vantrel::Status GetSourceScale(double* x, double* y);

    virtual vantrel::Status GetSize(float* width, float* height);
    virtual vantrel::Status SetSize(float width, float height);

    /// The source's path, with the content folder of the file that the overlay was read from in
    /// front; putting it takes that folder off again.
    virtual vantrel::Status get_Source(std::string* out);
    virtual vantrel::Status put_Source(std::string value);

    /// The mask's path as it stands in the element.
    virtual vantrel::Status get_AlphaMask(std::string* out);
    virtual vantrel::Status put_AlphaMask(std::string value);

    /// Seconds. A negative value gives `status::kNegativeInPoint` and `status::kNegativeOutPoint`.
    virtual vantrel::Status get_InPoint(double* out);
    virtual vantrel::Status put_InPoint(double value);
    virtual vantrel::Status get_OutPoint(double* out);
    virtual vantrel::Status put_OutPoint(double value);

    /// Not in the file.
    virtual vantrel::Status get_SourceRotation(long* out);
    virtual vantrel::Status put_SourceRotation(long value);

    /// @name Rotation and crop of the source, which only a file brings
    /// @{
    virtual vantrel::Status get_RotateAngle(double* out);
    /// Origin and size as fractions of the source.
    virtual vantrel::Status get_CropXYWH(double* x, double* y, double* width, double* height);
    virtual vantrel::Status get_cropRotateMode(bool* out);
    /// @}

    virtual vantrel::Status RefreshSource();

private:
    struct Form;
    std::string ContentFolder() const;

    OverlayHighlight m_highlight = OverlayHighlight::None;
    std::string m_label;
    SourceTypes m_sourceType = SourceTypes::None;
    long m_privateID = 0;
    long m_sourceID = 0;
    bool m_stillImage = false;
    double m_dynamicScalingFactor = 0.0;
    bool m_zoomSource = false;
    bool m_zoomMask = false;
    double m_maskWidth = -1.0;
    double m_maskHeight = -1.0;
    double m_sourceScaleX = 1.0;
    double m_sourceScaleY = 1.0;
    double m_rotateAngle = 0.0;
    double m_cropX = 0.0;
    double m_cropY = 0.0;
    double m_cropWidth = 1.0;
    double m_cropHeight = 1.0;
    bool m_cropRotateMode = false;
};
