#include "menu/MenuButtonImpl.h"

#include "menu/ButtonRows.h"
#include "menu/GeometryUtils.h"
#include "project/ProjectNode.h"

#include <cmath>

using std::map;
using std::string;
using namespace vantrel;

namespace {

constexpr int kElements = 3;     // position among the button's children
constexpr double kNoMove = 1e-7; // model units

/// Calls `act` with the node and the element part of each child of `list`, until it says false.
template <class Act>
void ForEachElement(CProjectNode* list, Act act)
{
    for (int i = 0; list && i < list->GetNumChildren(); ++i) {
        CProjectNode* node = list->GetChild(i);
        CMenuElementImpl* element = ElementOf(node);
        if (element && !act(*node, *element))
            return;
    }
}

bool IsNoMove(float way)
{
    return std::fabs(static_cast<double>(way)) <= kNoMove;
}

} // namespace

CMenuButtonImpl::CMenuButtonImpl(CProjectNode* node) : CMenuElementImpl(node)
{}

CMenuButtonImpl::~CMenuButtonImpl() = default;

CProjectNode* CMenuButtonImpl::Elements() const
{
    return m_node ? m_node->GetChild(kElements) : nullptr;
}

/// The node of the anchor, in force or not; null when there is none, or none any more.
CProjectNode* CMenuButtonImpl::ChosenAnchor() const
{
    CProjectNode* list = isNative() ? nullptr : Elements();
    return list ? list->FindChildByID(static_cast<unsigned long>(m_anchorID), nullptr) : nullptr;
}

CProjectNode* CMenuButtonImpl::getAnchorElement() const
{
    return m_anchorEnabled ? ChosenAnchor() : nullptr;
}

Status CMenuButtonImpl::getPosition(float* x, float* y) const
{
    const CMenuElementImpl* anchor = ElementOf(getAnchorElement());
    return anchor ? anchor->getRawPosition(x, y) : getRawPosition(x, y);
}

Status CMenuButtonImpl::setPosition(float x, float y)
{
    const CMenuElementImpl* anchor = ElementOf(getAnchorElement());
    if (!anchor)
        return setRawPosition(x, y);
    FPoint from;
    (void)anchor->getRawPosition(&from.x, &from.y);
    const FPoint way(x - from.x, y - from.y);
    if (IsNoMove(way.x) && IsNoMove(way.y))
        return status::kOk;

    ForEachElement(Elements(), [&](CProjectNode& node, CMenuElementImpl& element) {
        if (!element.HasEffect())
            return true;
        FPoint at;
        (void)element.getRawPosition(&at.x, &at.y);
        const FPoint to =
            node.GetID() == m_anchorID ? FPoint(x, y) : FPoint(at.x + way.x, at.y + way.y);
        (void)element.setRawPosition(to.x, to.y); // the others move all the same
        return true;
    });
    return status::kOk;
}

Status CMenuButtonImpl::getExtent(FRect* out) const
{
    if (!out)
        return status::kNullPointer;
    FRect whole;
    ForEachElement(Elements(), [&whole](CProjectNode&, const CMenuElementImpl& element) {
        FRect extent;
        if (!Failed(element.getExtent(&extent)))
            (void)UnionRectFloat(whole, whole, extent); // two empty ones leave it empty
        return true;
    });
    *out = whole;
    return status::kOk;
}

Status CMenuButtonImpl::setTimeOffsets(const double* start, const double* end)
{
    if (!start || !end)
        return status::kNullPointer;
    ForEachElement(Elements(), [=](CProjectNode&, CMenuElementImpl& element) {
        double formerStart = 0.0;
        double formerEnd = 0.0;
        if (!element.HasEffect())
            return true;
        (void)element.getTimeOffsets(&formerStart, &formerEnd);
        if (!(formerStart == *start && formerEnd == *end)) // a NaN is another
            (void)element.setTimeOffsets(start, end);      // the others are set all the same
        return true;
    });
    return status::kOk;
}

Status CMenuButtonImpl::EnableAnchorElement(bool enable)
{
    const CMenuElementImpl* anchor = ElementOf(ChosenAnchor());
    if (anchor && anchor->HasEffect()) {
        FPoint at;
        if (!enable && !Failed(anchor->getRawPosition(&at.x, &at.y)))
            (void)setRawPosition(at.x, at.y); // it stays where it appeared
        m_anchorEnabled = enable;
        return status::kOk;
    }

    m_anchorID = 0;
    m_anchorEnabled = false;
    if (!enable)
        return status::kOk;
    ForEachElement(Elements(), [this](CProjectNode& child, const CMenuElementImpl& element) {
        if (!element.HasEffect())
            return true;
        m_anchorID = child.GetID();
        m_anchorEnabled = true;
        return false;
    });
    return status::kOk;
}

AttributeTable<CMenuButtonImpl> CMenuButtonImpl::Attributes()
{
    static constexpr auto rows = Rows<CMenuButtonImpl>(ButtonRows<CMenuButtonImpl>::Own());
    return rows;
}

Status CMenuButtonImpl::LoadElementAttributes(const map<string, string>& attributes,
                                              bool ownGeometry)
{
    const Status loaded = CMenuElementImpl::LoadElementAttributes(attributes, ownGeometry);
    Attributes().Read(*this, attributes);
    return loaded;
}

Status CMenuButtonImpl::SaveElementAttributes(map<string, string>& attributes,
                                              bool ownGeometry) const
{
    (void)CMenuElementImpl::SaveElementAttributes(attributes, ownGeometry); // the anchor follows
    Attributes().Write(*this, false, attributes);
    return status::kOk;
}
