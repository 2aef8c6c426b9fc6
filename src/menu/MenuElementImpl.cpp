#include "menu/MenuElementImpl.h"

#include "core/Property.h"
#include "menu/ElementRows.h"
#include "menu/GeometryUtils.h"
#include "project/ProjectNode.h"

#include <cmath>

using std::map;
using std::string;
using std::vector;
using namespace vantrel;

namespace {

CProjectNode* ParentOf(const CProjectNode* node)
{
    return node ? node->GetParent() : nullptr;
}

} // namespace

CMenuElementImpl* vantrel::ElementOf(CProjectNode* node)
{
    return dynamic_cast<CMenuElementImpl*>(node);
}

CMenuElementImpl::CMenuElementImpl(CProjectNode* node) : m_node(node)
{}

CMenuElementImpl::~CMenuElementImpl() = default;

Status CMenuElementImpl::getRawPosition(float* x, float* y) const
{
    if (!x || !y)
        return status::kNullPointer;
    *x = m_x;
    *y = m_y;
    float z = 0.0F;
    if (HasEffect())
        (void)m_effect.getTranslation(x, y, &z); // an effect without it leaves the fields' values
    return status::kOk;
}

Status CMenuElementImpl::setRawPosition(float x, float y)
{
    m_x = x;
    m_y = y;
    if (HasEffect()) {
        float former[3] = {};
        (void)m_effect.getTranslation(&former[0], &former[1], &former[2]);
        (void)m_effect.setTranslation(x, y, former[2]); // without data the fields serve
    }
    return status::kOk;
}

FPoint CMenuElementImpl::EffectOrigin() const
{
    FPoint origin;
    if (HasEffect()) {
        if (const CMenuElementImpl* button = getParentBtn())
            (void)button->getPosition(&origin.x, &origin.y); // both outputs are there
    }
    return origin;
}

Status CMenuElementImpl::getPosition(float* x, float* y) const
{
    const Status result = getRawPosition(x, y);
    if (!Failed(result)) {
        const FPoint origin = EffectOrigin();
        *x -= origin.x;
        *y -= origin.y;
    }
    return result;
}

Status CMenuElementImpl::setPosition(float x, float y)
{
    const FPoint origin = EffectOrigin();
    return setRawPosition(x + origin.x, y + origin.y);
}

Status CMenuElementImpl::getRotation(float* degrees) const
{
    if (!degrees)
        return status::kNullPointer;
    *degrees = m_rotation;
    float other[2] = {};
    if (HasEffect())
        (void)m_effect.getRotation(&other[0], &other[1], degrees);
    return status::kOk;
}

Status CMenuElementImpl::setRotation(float degrees)
{
    m_rotation = degrees;
    if (HasEffect()) {
        float former[3] = {};
        (void)m_effect.getRotation(&former[0], &former[1], &former[2]);
        (void)m_effect.setRotation(former[0], former[1], degrees);
    }
    return status::kOk;
}

Status CMenuElementImpl::getTimeOffsets(double* start, double* end) const
{
    if (!start || !end)
        return status::kNullPointer;
    if (!HasEffect())
        return status::kNothingDone;
    const Status got = m_effect.getStartOffset(start);
    return Failed(got) ? got : m_effect.getEndOffset(end);
}

Status CMenuElementImpl::setTimeOffsets(const double* start, const double* end)
{
    if (!start || !end)
        return status::kNullPointer;
    if (!HasEffect())
        return status::kNothingDone;
    if (!std::isfinite(*start) || !std::isfinite(*end))
        return status::kBadArgument; // before the first of them is set
    const Status set = m_effect.setStartOffset(*start);
    return Failed(set) ? set : m_effect.setEndOffset(*end);
}

Status CMenuElementImpl::getModelRect(vector<FPoint>&) const
{
    return status::kOk;
}

Status CMenuElementImpl::getScalingXForm(FPoint* scale) const
{
    if (!scale)
        return status::kNullPointer;
    *scale = FPoint(1.0F, 1.0F);
    FPoint animated = *scale;
    float z = 1.0F;
    if (HasEffect() && !Failed(m_effect.getScaling(&animated.x, &animated.y, &z)))
        *scale = animated;
    return status::kOk;
}

Status CMenuElementImpl::getTranslationXForms(FPoint* parentOffset, FPoint* ownOffset) const
{
    if (!parentOffset || !ownOffset)
        return status::kNullPointer;
    *parentOffset = FPoint();
    if (const CMenuElementImpl* button = getParentBtn())
        (void)button->getPosition(&parentOffset->x, &parentOffset->y);
    return getPosition(&ownOffset->x, &ownOffset->y);
}

Status CMenuElementImpl::getBoundingBox(vector<FPoint>* corners) const
{
    if (!corners)
        return status::kNullPointer;
    corners->clear();
    (void)getModelRect(*corners); // without a rectangle there are no corners
    FPoint scale;
    (void)getScalingXForm(&scale);
    FPoint parentOffset;
    FPoint ownOffset;
    (void)getTranslationXForms(&parentOffset, &ownOffset);
    float angle = 0.0F;
    (void)getRotation(&angle);
    (void)Apply2DTransforms(*corners, *corners, scale, ownOffset, angle, parentOffset);
    return status::kOk;
}

Status CMenuElementImpl::getExtent(FRect* out) const
{
    if (!out)
        return status::kNullPointer;
    vector<FPoint> corners;
    const Status result = getBoundingBox(&corners);
    *out = FRect();
    (void)ComputeExent(corners, *out); // without corners the zero rectangle stays
    return result;
}

CProjectNode* CMenuElementImpl::getMenu() const
{
    CProjectNode* above = ParentOf(ParentOf(m_node));
    return above && above->GetType() == eNodeButton ? ParentOf(ParentOf(above)) : above;
}

CMenuElementImpl* CMenuElementImpl::getParentBtn() const
{
    CProjectNode* above = ParentOf(ParentOf(m_node));
    return above && above->GetType() == eNodeButton ? ElementOf(above) : nullptr;
}

Status CMenuElementImpl::getTag(unsigned long* out) const
{
    return Give(out, m_tag);
}

Status CMenuElementImpl::setTag(unsigned long value, bool)
{
    return Take(m_tag, value);
}

Status CMenuElementImpl::getFlags(unsigned long* out) const
{
    return Give(out, m_flags);
}

Status CMenuElementImpl::setFlags(unsigned long value)
{
    return Take(m_flags, value);
}

Status CMenuElementImpl::getTemplateID(long* out) const
{
    return Give(out, m_templateID);
}

Status CMenuElementImpl::setTemplateID(long value)
{
    return Take(m_templateID, value);
}

Status CMenuElementImpl::getZOrder(long* out) const
{
    return Give(out, m_zOrder);
}

Status CMenuElementImpl::setZOrder(long value)
{
    return value < 0 ? status::kBadArgument : Take(m_zOrder, value);
}

void CMenuElementImpl::AppendTag(string& text) const
{
    switch (m_node->GetType()) {
    case eNodeOverlay:
        text += FormatOverlayTag(m_tag);
        break;
    case eNodeText:
        text += FormatTextTag(m_tag);
        break;
    default:
        text += FormatButtonTag(m_tag);
        break;
    }
}

AttributeTable<CMenuElementImpl> CMenuElementImpl::Attributes(bool ownGeometry)
{
    using Element = CMenuElementImpl;
    static constexpr auto all = Rows<Element>(ElementRows<Element>::All());
    static constexpr auto kind = Rows<Element>(ElementRows<Element>::All(Never));
    return ownGeometry ? AttributeTable<Element>(all) : AttributeTable<Element>(kind);
}

Status CMenuElementImpl::LoadElementAttributes(const map<string, string>& attributes,
                                               bool ownGeometry)
{
    Attributes(ownGeometry).Read(*this, attributes);
    return status::kOk;
}

Status CMenuElementImpl::SaveElementAttributes(map<string, string>& attributes,
                                               bool ownGeometry) const
{
    const eNodeType type = m_node ? m_node->GetType() : eNodeNone;
    if (type != eNodeButton && type != eNodeOverlay && type != eNodeText)
        return status::kUnexpected;
    Attributes(ownGeometry).Write(*this, false, attributes);
    return status::kOk;
}
