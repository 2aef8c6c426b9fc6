#include "disc/DSMenuOverlay.h"

#include "core/PathUtils.h"
#include "core/Property.h"
#include "menu/OverlayRows.h"
#include "project/NodeForm.h"

using std::string;
using std::string_view;
using namespace vantrel;
using namespace vantrel::attribute;

namespace {

/// "1" or "0"; any number but 0 is true.
template <auto Field>
constexpr AttributeRow<CDSMenuOverlay> NumberBool(const char* name)
{
    AttributeRow<CDSMenuOverlay> row = Bool<Field>(name);
    row.read = [](CDSMenuOverlay& node, string_view text) { node.*Field = ParseLong(text) != 0; };
    return row;
}

/// A second name of a value that is true already when its first name said so.
template <auto Field>
constexpr AttributeRow<CDSMenuOverlay> BoolOr(const char* name)
{
    AttributeRow<CDSMenuOverlay> row = Bool<Field>(name);
    row.read = [](CDSMenuOverlay& node, string_view text) {
        node.*Field = node.*Field || text != "0";
    };
    return row;
}

/// Two values for two outputs.
Status GivePair(double* outX, double* outY, double x, double y)
{
    if (!outX || !outY)
        return status::kNullPointer;
    *outX = x;
    *outY = y;
    return status::kOk;
}

} // namespace

// The attributes of "Overlay".
struct VANTREL_INTERNAL CDSMenuOverlay::Form
{
    using Overlay = CDSMenuOverlay;
    static constexpr auto rows = Rows<Overlay>(
        NodeID<Overlay>("ID"), Enum<&Overlay::m_highlight>("highlight"),
        Text<&Overlay::m_label>("label"), Enum<&Overlay::m_sourceType>("sourceType"),
        Decimal<&Overlay::m_privateID>("privateID"), Decimal<&Overlay::m_sourceID>("sourceID"),
        NumberBool<&Overlay::m_stillImage>("stillImage"),
        Real<&Overlay::m_dynamicScalingFactor>("dynamicScalingFactor"),
        Bool<&Overlay::m_zoomSource>("zoomToFill").ReadOnly(),
        BoolOr<&Overlay::m_zoomSource>("zoomSource"),
        Bool<&Overlay::m_zoomMask>("zoomMask").WriteOnly(),
        Real<&Overlay::m_rotateAngle>("rotateAngle"), Real<&Overlay::m_cropX>("corpRectX"),
        Real<&Overlay::m_cropY>("corpRectY"), Real<&Overlay::m_cropWidth>("corpRectW"),
        Real<&Overlay::m_cropHeight>("corpRectH"),
        Bool<&Overlay::m_cropRotateMode>("cropRotateMode"), OverlayRows<Overlay>::All());

    static void Finish(Overlay& overlay) { overlay.ResolvePaths(); }
};

CDSMenuOverlay::CDSMenuOverlay() : ElementNode(eNodeOverlay, kFormOf<CDSMenuOverlay, Form>)
{}

CDSMenuOverlay::~CDSMenuOverlay() = default;

Status CDSMenuOverlay::GetExtent(FloatRect* out)
{
    FRect extent;
    (void)getExtent(&extent); // the zero rectangle at the worst
    return Give(out, FloatRect{ extent.left, extent.top, extent.right, extent.bottom });
}

Status CDSMenuOverlay::get_Highlight(OverlayHighlight* out)
{
    return Give(out, m_highlight);
}

Status CDSMenuOverlay::put_Highlight(OverlayHighlight value)
{
    return Take(m_highlight, value);
}

Status CDSMenuOverlay::get_Label(string* out)
{
    return Give(out, m_label);
}

Status CDSMenuOverlay::put_Label(string value)
{
    return Take(m_label, std::move(value));
}

Status CDSMenuOverlay::GetSourceType(SourceTypes* type, long* sourceID)
{
    const Status given = Give(type, m_sourceType);
    if (!Failed(given) && sourceID)
        *sourceID = m_sourceID;
    return given;
}

Status CDSMenuOverlay::SetSourceType(SourceTypes type, long sourceID)
{
    m_sourceType = type;
    m_sourceID = sourceID;
    return status::kOk;
}

Status CDSMenuOverlay::get_PrivateId(long* out)
{
    return Give(out, m_privateID);
}

Status CDSMenuOverlay::put_PrivateId(long value)
{
    return Take(m_privateID, value);
}

Status CDSMenuOverlay::get_StillImage(bool* out)
{
    return Give(out, m_stillImage);
}

Status CDSMenuOverlay::put_StillImage(bool value)
{
    return Take(m_stillImage, value);
}

Status CDSMenuOverlay::get_DynamicScalingFactor(double* out)
{
    return Give(out, m_dynamicScalingFactor);
}

Status CDSMenuOverlay::put_DynamicScalingFactor(double value)
{
    return Take(m_dynamicScalingFactor, value);
}

Status CDSMenuOverlay::get_ZoomSource(bool* out)
{
    return Give(out, m_zoomSource);
}

Status CDSMenuOverlay::put_ZoomSource(bool value)
{
    return Take(m_zoomSource, value);
}

Status CDSMenuOverlay::get_ZoomMask(bool* out)
{
    return Give(out, m_zoomMask);
}

Status CDSMenuOverlay::put_ZoomMask(bool value)
{
    return Take(m_zoomMask, value);
}

Status CDSMenuOverlay::SetMaskSize(double width, double height)
{
    m_maskWidth = width;
    m_maskHeight = height;
    return status::kOk;
}

Status CDSMenuOverlay::GetMaskSize(double* width, double* height)
{
    return GivePair(width, height, m_maskWidth, m_maskHeight);
}

Status CDSMenuOverlay::SetSourceScale(double x, double y)
{
    m_sourceScaleX = x;
    m_sourceScaleY = y;
    return status::kOk;
}

Status CDSMenuOverlay::GetSourceScale(double* x, double* y)
{
    return GivePair(x, y, m_sourceScaleX, m_sourceScaleY);
}

Status CDSMenuOverlay::GetSize(float* width, float* height)
{
    return getSize(width, height);
}

Status CDSMenuOverlay::SetSize(float width, float height)
{
    return setSize(width, height);
}

/// What stands in front of the sources of this overlay's file; empty for one made in memory.
string CDSMenuOverlay::ContentFolder() const
{
    string folder = DocumentPath();
    (void)Utils::GetContentPath(&folder); // a path without a content folder stays whole
    return folder;
}

Status CDSMenuOverlay::get_Source(string* out)
{
    string source;
    (void)getSource(&source); // the output is there
    return Give(out, IsAbsolutePath(source) ? source : ContentFolder() + source);
}

Status CDSMenuOverlay::put_Source(string value)
{
    const string folder = ContentFolder();
    if (value.starts_with(folder))
        value.erase(0, folder.size());
    return setSource(CMenuOverlayImpl::StoredSource(std::move(value)));
}

Status CDSMenuOverlay::get_AlphaMask(string* out)
{
    return getAlphaMask(out);
}

Status CDSMenuOverlay::put_AlphaMask(string value)
{
    return setAlphaMask(StoredMask(std::move(value)));
}

Status CDSMenuOverlay::get_InPoint(double* out)
{
    return getInPoint(out);
}

Status CDSMenuOverlay::put_InPoint(double value)
{
    return setInPoint(value);
}

Status CDSMenuOverlay::get_OutPoint(double* out)
{
    return getOutPoint(out);
}

Status CDSMenuOverlay::put_OutPoint(double value)
{
    return setOutPoint(value);
}

Status CDSMenuOverlay::get_SourceRotation(long* out)
{
    return getSourceRotation(out);
}

Status CDSMenuOverlay::put_SourceRotation(long value)
{
    return setSourceRotation(value);
}

Status CDSMenuOverlay::get_RotateAngle(double* out)
{
    return Give(out, m_rotateAngle);
}

Status CDSMenuOverlay::get_CropXYWH(double* x, double* y, double* width, double* height)
{
    if (!x || !y)
        return status::kNullPointer;
    const Status given = GivePair(width, height, m_cropWidth, m_cropHeight);
    return Failed(given) ? given : GivePair(x, y, m_cropX, m_cropY);
}

Status CDSMenuOverlay::get_cropRotateMode(bool* out)
{
    return Give(out, m_cropRotateMode);
}

Status CDSMenuOverlay::RefreshSource()
{
    return refreshSource();
}
