#pragma once

#include "disc/ElementNode.h"
#include "menu/MenuOverlayImpl.h"
#include "project/DiscEnums.h"

#include <string>

/// A picture on a menu or in a button: a button's frame, thumbnail, highlight or matte, or any other.
///
/// Every output that is null gives `status::kNullPointer`; what stores a value gives 0 unless it says
/// more. Sizes are model units unless they say otherwise.
class VANTREL_API CDSMenuOverlay : public vantrel::ElementNode<CMenuOverlayImpl>
{
public:
    CDSMenuOverlay();
    ~CDSMenuOverlay() override;

    Status GetExtent(FloatRect* out) override;

    /// How the overlay is highlighted with its button.
    virtual Status get_Highlight(OverlayHighlight* out);
    virtual Status put_Highlight(OverlayHighlight value);

    virtual Status get_Label(std::string* out);
    virtual Status put_Label(std::string value);

    /// The kind of the picture's source, and which one it is; `sourceID` may be null.
    virtual Status GetSourceType(SourceTypes* type, long* sourceID);
    virtual Status SetSourceType(SourceTypes type, long sourceID);

    virtual Status get_PrivateId(long* out);
    virtual Status put_PrivateId(long value);

    virtual Status get_StillImage(bool* out);
    virtual Status put_StillImage(bool value);

    virtual Status get_DynamicScalingFactor(double* out);
    virtual Status put_DynamicScalingFactor(double value);

    /// Whether source and mask are zoomed to fill. A file brings the first alone.
    virtual Status get_ZoomSource(bool* out);
    virtual Status put_ZoomSource(bool value);
    virtual Status get_ZoomMask(bool* out);
    virtual Status put_ZoomMask(bool value);

    /// -1.0 means not known. Not in the file.
    virtual Status SetMaskSize(double width, double height);
    virtual Status GetMaskSize(double* width, double* height);

    /// Not in the file.
    virtual Status SetSourceScale(double x, double y);
    virtual Status GetSourceScale(double* x, double* y);

    virtual Status GetSize(float* width, float* height);
    virtual Status SetSize(float width, float height);

    /// The source's path, with the content folder of the file that the overlay was read from in
    /// front; putting it takes that folder off again.
    virtual Status get_Source(std::string* out);
    virtual Status put_Source(std::string value);

    /// The mask's path as it stands in the element.
    virtual Status get_AlphaMask(std::string* out);
    virtual Status put_AlphaMask(std::string value);

    /// Seconds. A negative value gives `status::kNegativeInPoint` and `status::kNegativeOutPoint`.
    virtual Status get_InPoint(double* out);
    virtual Status put_InPoint(double value);
    virtual Status get_OutPoint(double* out);
    virtual Status put_OutPoint(double value);

    /// Not in the file.
    virtual Status get_SourceRotation(long* out);
    virtual Status put_SourceRotation(long value);

    /// @name Rotation and crop of the source, which only a file brings
    /// @{
    virtual Status get_RotateAngle(double* out);
    /// Origin and size as fractions of the source.
    virtual Status get_CropXYWH(double* x, double* y, double* width, double* height);
    virtual Status get_cropRotateMode(bool* out);
    /// @}

    virtual Status RefreshSource();

    Status FillAttributeMap(std::map<std::string, std::string>& attributes, bool native) override;
    Status ParseAttributeMap(const std::map<std::string, std::string>& attributes) override;

private:
    static vantrel::AttributeTable<CDSMenuOverlay> Attributes();
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
