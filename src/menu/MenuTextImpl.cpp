#include "menu/MenuTextImpl.h"

#include "core/Property.h"
#include "menu/GeometryUtils.h"
#include "menu/TextRows.h"
#include "richtext/VCPTextPlugInHelper.h"
#include "transform/RestingKey.h"
#include "transform/VCPOverlayRect.h"
#include "transform/VCPPlugInHelper.h"
#include "xml/KeptXml.h"
#include "xml/XmlValue.h"

#include <algorithm>

using std::map;
using std::string;
using std::vector;
using namespace vantrel;

namespace {

/// Where the rectangle's centre lies seen from a handle, in half widths and half heights.
struct HandlePlace
{
    _TextHandles handle;
    float x;
    float y;
};

// clang-format off
constexpr HandlePlace sarHandleMap[] = {
    { _TextHandles::TopLeft,    1.0F, -1.0F }, { _TextHandles::TopMiddle,    0.0F, -1.0F }, { _TextHandles::TopRight,    -1.0F, -1.0F },
    { _TextHandles::MiddleLeft, 1.0F,  0.0F }, { _TextHandles::Center,       0.0F,  0.0F }, { _TextHandles::MiddleRight, -1.0F,  0.0F },
    { _TextHandles::BottomLeft, 1.0F,  1.0F }, { _TextHandles::BottomMiddle, 0.0F,  1.0F }, { _TextHandles::BottomRight, -1.0F,  1.0F },
};
// clang-format on

constexpr int kFrameHeight = 480; // pixels; the width follows from the production's aspect ratio

constexpr const char* kEffectName = "effect"; // of the XML in a file

constexpr long kBeyondFonts = 1000; // a height that the helper refuses as it does any above it

_xmlNode* PluginData(const _xmlNode* effect)
{
    return FindChildElement(effect, "plugin_data");
}

} // namespace

/// The effect's rectangle around its own origin, and its scaling at the start.
struct CMenuTextImpl::RestingPose
{
    FPoint corners[4]; ///< left-top, left-bottom, right-bottom, right-top
    FPoint scale;
};

CMenuTextImpl::CMenuTextImpl(CProjectNode* node) : CMenuElementImpl(node)
{}

CMenuTextImpl::~CMenuTextImpl() = default;

_xmlNode* CMenuTextImpl::EffectXML() const
{
    return HasEffect() ? m_effect.getXMLData() : m_effectXML.get();
}

void CMenuTextImpl::ForgetWhatWasRead()
{
    if (m_textHelper)
        (void)m_textHelper->ReleaseXML(); // can't fail
    m_isTextLoaded = false;
    m_pose.reset();
}

Status CMenuTextImpl::LoadTextHelperXML()
{
    if (!m_textHelper)
        m_textHelper = std::make_unique<CVCPTextPlugInHelper>();
    (void)m_textHelper->ReleaseXML(); // can't fail
    const Status loaded = m_textHelper->LoadXML(EffectXML());
    m_isTextLoaded = !Failed(loaded) && !HasEffect();
    return loaded;
}

/// Asks the helper, which shows the present text.
template <class Ask>
Status CMenuTextImpl::Answer(Ask ask)
{
    if (!EffectXML())
        return status::kNothingDone;
    const bool isStale = !m_isTextLoaded || HasEffect(); // others may change the effect's XML
    if (isStale && Failed(LoadTextHelperXML()))
        return status::kNothingDone;
    return ask(*m_textHelper);
}

/// Changes the XML through the helper, which shows the changed text afterwards.
template <class Change>
Status CMenuTextImpl::Edit(Change change)
{
    if (!EffectXML())
        return status::kNullPointer;
    if (HasEffect())
        return EditEffect(change);
    if (!m_isTextLoaded)
        (void)LoadTextHelperXML(); // without a body the change is refused
    return change(*m_textHelper);
}

/// The same for an effect, which may only have been lent its XML: a changed copy takes its place.
template <class Change>
Status CMenuTextImpl::EditEffect(Change change)
{
    const XmlNodePtr copy = CopyXml(EffectXML());
    CVCPTextPlugInHelper helper;
    (void)helper.LoadXML(copy.get()); // without a body the change is refused
    const Status changed = change(helper);
    return Failed(changed) ? changed : m_effect.setXMLData(copy.get());
}

Status CMenuTextImpl::getString(string* out)
{
    return Answer([=](const auto& helper) { return helper.GetTextString(out); });
}

Status CMenuTextImpl::setString(string text)
{
    return Edit([&](auto& helper) { return helper.PutTextString(std::move(text), false); });
}

Status CMenuTextImpl::getJustify(unsigned long* out)
{
    return Answer([=](const auto& helper) { return helper.GetJustification(out); });
}

Status CMenuTextImpl::setJustify(unsigned long justification)
{
    return Edit([=](auto& helper) { return helper.SetJustification(justification); });
}

Status CMenuTextImpl::getFontName(string* out)
{
    return Answer([=](const auto& helper) { return helper.GetFont(out); });
}

Status CMenuTextImpl::setFontName(string face)
{
    return Edit([&](auto& helper) { return helper.SetFont(std::move(face)); });
}

Status CMenuTextImpl::getFontHeight(long* out)
{
    return Answer([=](const auto& helper) {
        int height = 0;
        if (!out)
            return status::kNullPointer;
        if (helper.GetFontSize(&height) != status::kOk || height <= 0) // the text has no one number
            return status::kNothingDone;
        return Give(out, height);
    });
}

Status CMenuTextImpl::setFontHeight(long height)
{
    const int size = static_cast<int>(std::clamp(height, 0L, kBeyondFonts));
    return Edit([=](auto& helper) { return helper.SetFontSize(size); });
}

Status CMenuTextImpl::getFontHeightString(string* out)
{
    return Answer([=](const auto& helper) { return helper.GetFontSizeString(out); });
}

Status CMenuTextImpl::setFontHeightString(string height)
{
    return Edit([&](auto& helper) { return helper.SetFontSizeString(std::move(height)); });
}

Status CMenuTextImpl::getStyle(unsigned long* out)
{
    return Answer([=](const auto& helper) { return helper.GetStyle(out); });
}

Status CMenuTextImpl::setStyle(unsigned long style)
{
    return Edit([=](auto& helper) { return helper.SetStyle(style); });
}

Status CMenuTextImpl::GetFontBIU(bool& bold, bool& italic, bool& underline)
{
    return Answer([&](const auto& helper) { return helper.GetFontBIU(bold, italic, underline); });
}

Status CMenuTextImpl::getColor(unsigned long* out)
{
    return Answer([=](const auto& helper) { return helper.GetTextColor(out); });
}

Status CMenuTextImpl::setColor(unsigned long color)
{
    return Edit([=](auto& helper) { return helper.SetTextColor(color); });
}

Status CMenuTextImpl::setEffectXML(_xmlNode* node)
{
    if (HasEffect())
        return m_effect.setXMLData(node);
    XmlNodePtr copy = CopyXml(node); // `node` may stand in the XML that goes
    if (IsElement(copy.get()) && NameOf(copy.get()) != kEffectName)
        xmlNodeSetName(copy.get(), XmlChars(kEffectName)); // what a file calls it
    ForgetWhatWasRead();
    m_effectXML.reset(copy.release());
    return status::kOk;
}

void CMenuTextImpl::KeepEffectXML(_xmlNode* effect)
{
    ForgetWhatWasRead();
    m_effectXML = KeepXml(effect);
}

Status CMenuTextImpl::WriteEffectXML(_xmlNode* element) const
{
    if (!HasEffect())
        return AppendKeptXml(element, m_effectXML);
    const Status appended = AppendXmlCopy(element, EffectXML());
    if (!Failed(appended) && NameOf(element->last) != kEffectName)
        xmlNodeSetName(element->last, XmlChars(kEffectName)); // the effect may call it otherwise
    return appended;
}

Status CMenuTextImpl::getEffectXML(_xmlNode* node)
{
    if (!node)
        return status::kNullPointer;
    return EffectXML() ? AppendXmlCopy(node, EffectXML()) : status::kNothingDone;
}

Status CMenuTextImpl::get3DKeyFrame(unsigned long mask, double time, KVC_KEYFRAME_TYPE type,
                                    float* x, float* y, float* z, unsigned long* caps) const
{
    if (!EffectXML())
        return status::kOk;
    CVCPPlugInHelper helper;
    (void)helper.LoadXML(PluginData(EffectXML())); // without data there are no keys
    return GetKeyOrRest(helper, mask, time, type, x, y, z, caps);
}

Status CMenuTextImpl::getHandle(_TextHandles* out) const
{
    return Give(out, m_handle);
}

Status CMenuTextImpl::setHandle(_TextHandles value)
{
    const bool isHandle = value >= _TextHandles::TopLeft && value <= _TextHandles::BottomRight;
    return isHandle ? Take(m_handle, value) : status::kBadArgument;
}

Status CMenuTextImpl::GetHandleCoords(_TextHandles handle, float* x, float* y) const
{
    if (!x || !y)
        return status::kNullPointer;
    const auto* end = std::end(sarHandleMap);
    const auto* row = std::find_if(std::begin(sarHandleMap), end,
                                   [handle](const auto& one) { return one.handle == handle; });
    *x = row == end ? 0.0F : row->x;
    *y = row == end ? 0.0F : row->y;
    return status::kOk;
}

_TextHandles CMenuTextImpl::GetHandleEnum(const float* x, const float* y) const
{
    for (const HandlePlace& row : sarHandleMap) {
        if (x && y && row.x == *x && row.y == *y)
            return row.handle;
    }
    return _TextHandles::TopLeft;
}

Status CMenuTextImpl::getRotateAngle(double* out) const
{
    return Give(out, m_rotateAngle);
}

CMenuTextImpl::RestingPose CMenuTextImpl::ReadPose() const
{
    CVCPOverlayRect overlay;
    D3DXMATRIX identity;
    (void)D3DXMatrixIdentity(&identity);
    double ratio = 1.0;
    (void)m_effect.getProductionAspectRatio(&ratio); // any handle has one
    (void)overlay.SInit(static_cast<int>(kFrameHeight * ratio), kFrameHeight, &identity, &identity);
    (void)overlay.LoadXML(PluginData(EffectXML())); // what it doesn't hold keeps its default

    RestingPose pose;
    D3DXVECTOR3 corners[4];
    (void)overlay.GetModelBoundingRect(&corners[0], &corners[1], &corners[2], &corners[3]);
    std::transform(std::begin(corners), std::end(corners), pose.corners,
                   [](const D3DXVECTOR3& corner) { return FPoint(corner.x, corner.y); });
    float z = 1.0F;
    (void)GetKeyOrRest(overlay, TRANSFORM_SCALING, 0.0, KVC_KEYFRAME_START_OFFSET, &pose.scale.x,
                       &pose.scale.y, &z, nullptr); // never fails
    return pose;
}

CMenuTextImpl::RestingPose CMenuTextImpl::Pose() const
{
    if (HasEffect())
        return ReadPose(); // others may change the effect's XML
    if (!m_pose)
        m_pose = std::make_unique<RestingPose>(ReadPose());
    return *m_pose;
}

Status CMenuTextImpl::getModelRect(vector<FPoint>& corners) const
{
    if (!EffectXML())
        return status::kNothingDone;
    const RestingPose pose = Pose();
    const FPoint(&c)[4] = pose.corners;

    float hx = 0.0F;
    float hy = 0.0F;
    float hz = 0.0F;
    if (HasEffect())
        (void)m_effect.getHandle(&hx, &hy, &hz); // without one the centre
    else
        (void)GetHandleCoords(m_handle, &hx, &hy); // both outputs are there
    const float width = c[3].x - c[0].x;
    const float height = c[3].y - c[2].y;
    const float dx = hx * width / 2.0F - (c[0].x + c[3].x) / 2.0F;
    const float dy = hy * height / 2.0F - (c[0].y + c[1].y) / 2.0F;

    corners.resize(std::size(c));
    std::transform(std::begin(c), std::end(c), corners.begin(),
                   [=](const FPoint& corner) { return FPoint(corner.x + dx, corner.y + dy); });
    return status::kOk;
}

Status CMenuTextImpl::getBoundingBox(vector<FPoint>* corners) const
{
    return HasEffect() ? status::kOk : CMenuElementImpl::getBoundingBox(corners);
}

Status CMenuTextImpl::getScalingXForm(FPoint* scale) const
{
    if (HasEffect())
        return CMenuElementImpl::getScalingXForm(scale);
    return Give(scale, m_effectXML ? Pose().scale : FPoint());
}

AttributeTable<CMenuTextImpl> CMenuTextImpl::Attributes(bool ownGeometry)
{
    using Part = CMenuTextImpl;
    static constexpr auto all = Rows<Part>(TextRows<Part>::Own());
    static constexpr auto kind = Rows<Part>(TextRows<Part>::Own(Never));
    return ownGeometry ? AttributeTable<Part>(all) : AttributeTable<Part>(kind);
}

Status CMenuTextImpl::LoadElementAttributes(const map<string, string>& attributes, bool ownGeometry)
{
    const Status loaded = CMenuElementImpl::LoadElementAttributes(attributes, ownGeometry);
    if (!Failed(loaded))
        Attributes(ownGeometry).Read(*this, attributes);
    return loaded;
}

Status CMenuTextImpl::SaveElementAttributes(map<string, string>& attributes, bool ownGeometry) const
{
    // Told by what is in the map; the handle follows all the same.
    (void)CMenuElementImpl::SaveElementAttributes(attributes, ownGeometry);
    Attributes(ownGeometry).Write(*this, false, attributes);
    return status::kOk;
}
