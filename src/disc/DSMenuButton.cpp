#include "disc/DSMenuButton.h"

#include "disc/DSCommandList.h"
#include "disc/DSMenu.h"
#include "disc/DSMenuElementList.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "menu/ButtonRows.h"
#include "menu/GeometryUtils.h"
#include "project/NodeForm.h"

using std::map;
using std::string;
using namespace vantrel;

namespace {

/// Positions of the fixed children that are asked for.
enum : int
{
    kLinks = 0,
    kActiveRegion = 1,
    kElements = 3
};

/// Whether an element of a button lights up with it; what says nothing of it does.
bool IsHighlighted(CProjectNode& element)
{
    OverlayHighlight ofOverlay = OverlayHighlight::Extent;
    TextHighlight ofText = TextHighlight::Extent;
    if (auto* overlay = dynamic_cast<CDSMenuOverlay*>(&element))
        (void)overlay->get_Highlight(&ofOverlay); // the output is there
    else if (auto* text = dynamic_cast<CDSMenuText*>(&element))
        (void)text->get_Highlight(&ofText);
    return ofOverlay != OverlayHighlight::None && ofText != TextHighlight::None;
}

} // namespace

// The attributes of "Links".
AttributeTable<CButtonLinksNode> CButtonLinksNode::Attributes()
{
    using namespace vantrel::attribute;
    using Links = CButtonLinksNode;
    static constexpr auto rows =
        Rows<Links>(DecimalIn<&Links::m_links, &ButtonLinks::left>("left"),
                    DecimalIn<&Links::m_links, &ButtonLinks::right>("right"),
                    DecimalIn<&Links::m_links, &ButtonLinks::upper>("upper"),
                    DecimalIn<&Links::m_links, &ButtonLinks::lower>("lower"));
    return rows;
}

CButtonLinksNode::CButtonLinksNode()
    : CProjectNode(eNodeLinks, kFormOf<CButtonLinksNode, &CButtonLinksNode::Attributes>)
{}

CButtonLinksNode::~CButtonLinksNode() = default;

Status CButtonLinksNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CButtonLinksNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}

// The attributes of "ActiveRegion".
AttributeTable<CActiveRgnNode> CActiveRgnNode::Attributes()
{
    using namespace vantrel::attribute;
    using Region = CActiveRgnNode;
    static constexpr auto rows = Rows<Region>(
        Bool<&Region::m_valid>("valid"), RealIn<&Region::m_region, &FloatRect::left>("left"),
        RealIn<&Region::m_region, &FloatRect::top>("top"),
        RealIn<&Region::m_region, &FloatRect::right>("right"),
        RealIn<&Region::m_region, &FloatRect::bottom>("bottom"));
    return rows;
}

CActiveRgnNode::CActiveRgnNode()
    : CProjectNode(eNodeActiveRegion, kFormOf<CActiveRgnNode, &CActiveRgnNode::Attributes>)
{}

CActiveRgnNode::~CActiveRgnNode() = default;

Status CActiveRgnNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CActiveRgnNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}

// The attributes of "Button".
AttributeTable<CDSMenuButton> CDSMenuButton::Attributes()
{
    using namespace vantrel::attribute;
    using Button = CDSMenuButton;
    constexpr auto native = [](const Button& button) { return button.IsNative(); };
    static constexpr auto rows =
        Rows<Button>(NodeID<Button>("ID"), Decimal<&Button::m_scheme>("scheme"),
                     Decimal<&Button::m_userData>("userdata"), Text<&Button::m_label>("label"),
                     Text<&Button::m_buttonStyle>("buttonStyle"),
                     Text<&Button::m_buttonTextCache>("buttonTextCache"),
                     Decimal<&Button::m_linkTitleIndex>("linkTitleIndex").ReadOnly(),
                     ButtonRows<Button>::All(native));
    return rows;
}

CDSMenuButton::CDSMenuButton()
    : ElementNode(eNodeButton, kFormOf<CDSMenuButton, &CDSMenuButton::Attributes>)
{
    (void)FinalConstruct(); // fails only where the constructor would have thrown
}

CDSMenuButton::~CDSMenuButton() = default;

Status CDSMenuButton::FinalConstruct()
{
    if (GetNumChildren() > 0)
        return status::kOk;
    AdoptChild(std::make_unique<CButtonLinksNode>(), true);
    AdoptChild(std::make_unique<CActiveRgnNode>(), true);
    AdoptChild(std::make_unique<CDSCommandList>(), true);
    AdoptChild(std::make_unique<CDSMenuElementList>(), true);
    return status::kOk;
}

bool CDSMenuButton::IsNative() const
{
    const CProjectNode* list = GetParent();
    const auto* menu = dynamic_cast<const CDSMenu*>(list ? list->GetParent() : nullptr);
    return !menu || menu->IsNative();
}

Status CDSMenuButton::GetBoundingBox(FloatPoint*)
{
    return status::kNoBoundingBox;
}

Status CDSMenuButton::GetHighlightRegion(FloatRect* out)
{
    FRect region;
    Status result = status::kNothingDone;
    CProjectNode* elements = GetChild(kElements);
    for (int i = 0; elements && i < elements->GetNumChildren(); ++i) {
        const CMenuElementImpl* element = ElementOf(elements->GetChild(i));
        FRect extent;
        if (!element || !IsHighlighted(*elements->GetChild(i)) ||
            Failed(element->getExtent(&extent)))
            continue;
        result = status::kOk;
        (void)UnionRectFloat(region, region, extent); // two empty ones leave it empty
    }
    const Status given =
        Give(out, FloatRect{ region.left, region.top, region.right, region.bottom });
    return Failed(given) ? given : result;
}

Status CDSMenuButton::get_ActiveRegion(FloatRect* region, bool* valid)
{
    const auto* node = dynamic_cast<CActiveRgnNode*>(GetChild(kActiveRegion));
    if (!node || !region || !valid)
        return status::kNullPointer;
    (void)node->GetActiveRgn(region); // both outputs are there
    return node->GetValid(valid);
}

Status CDSMenuButton::put_ActiveRegion(FloatRect* region, bool valid)
{
    auto* node = dynamic_cast<CActiveRgnNode*>(GetChild(kActiveRegion));
    if (!node || !region)
        return status::kNullPointer;
    (void)node->SetActiveRgn(*region); // takes any
    return node->SetValid(valid);
}

Status CDSMenuButton::get_ButtonLinks(ButtonLinks** out)
{
    auto* node = dynamic_cast<CButtonLinksNode*>(GetChild(kLinks));
    return node ? Give(out, node->Links()) : status::kNullPointer;
}

Status CDSMenuButton::put_ButtonLinks(ButtonLinks* links)
{
    auto* node = dynamic_cast<CButtonLinksNode*>(GetChild(kLinks));
    return node && links ? node->SetButtonLinks(*links) : status::kNullPointer;
}

Status CDSMenuButton::GetAnchorElement(CDSMenuElement*)
{
    return status::kOk;
}

Status CDSMenuButton::FillAttributeMap(map<string, string>& attributes, bool native)
{
    attributes.clear();
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CDSMenuButton::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}
