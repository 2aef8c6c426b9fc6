#include "disc/DSMenuButton.h"

#include "core/Property.h"
#include "disc/ChildPositions.h"
#include "disc/DSCommandList.h"
#include "disc/DSMenu.h"
#include "disc/DSMenuElementList.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "menu/ButtonRows.h"
#include "menu/GeometryUtils.h"
#include "project/NodeForm.h"

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

namespace {

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
struct VANTREL_INTERNAL CButtonLinksNode::Form
{
    using Links = CButtonLinksNode;
    static constexpr auto rows =
        Rows<Links>(DecimalIn<&Links::m_links, &ButtonLinks::left>("left"),
                    DecimalIn<&Links::m_links, &ButtonLinks::right>("right"),
                    DecimalIn<&Links::m_links, &ButtonLinks::upper>("upper"),
                    DecimalIn<&Links::m_links, &ButtonLinks::lower>("lower"));
    static constexpr bool addsToMap = true;
};

CButtonLinksNode::CButtonLinksNode() : FormedNode(eNodeLinks, kFormOf<CButtonLinksNode, Form>)
{}

CButtonLinksNode::~CButtonLinksNode() = default;

// clang-format off
ButtonLinks* CButtonLinksNode::Links() { return &m_links; }
Status CButtonLinksNode::GetButtonLinks(ButtonLinks* out) const { return Give(out, m_links); }
Status CButtonLinksNode::SetButtonLinks(ButtonLinks links) { return Take(m_links, links); }
// clang-format on

// The attributes of "ActiveRegion".
struct VANTREL_INTERNAL CActiveRgnNode::Form
{
    using Region = CActiveRgnNode;
    static constexpr auto rows = Rows<Region>(
        Bool<&Region::m_valid>("valid"), RealIn<&Region::m_region, &FloatRect::left>("left"),
        RealIn<&Region::m_region, &FloatRect::top>("top"),
        RealIn<&Region::m_region, &FloatRect::right>("right"),
        RealIn<&Region::m_region, &FloatRect::bottom>("bottom"));
    static constexpr bool addsToMap = true;
};

CActiveRgnNode::CActiveRgnNode() : FormedNode(eNodeActiveRegion, kFormOf<CActiveRgnNode, Form>)
{}

CActiveRgnNode::~CActiveRgnNode() = default;

// clang-format off
Status CActiveRgnNode::GetValid(bool* out) const { return Give(out, m_valid); }
Status CActiveRgnNode::SetValid(bool value) { return Take(m_valid, value); }
Status CActiveRgnNode::GetActiveRgn(FloatRect* out) const { return Give(out, m_region); }
Status CActiveRgnNode::SetActiveRgn(FloatRect rect) { return Take(m_region, rect); }
// clang-format on

// The attributes of "Button".
struct VANTREL_INTERNAL CDSMenuButton::Form
{
    using Button = CDSMenuButton;
    static constexpr auto native = [](const Button& button) { return button.IsNative(); };
    static constexpr auto rows =
        Rows<Button>(NodeID<Button>("ID"), Decimal<&Button::m_scheme>("scheme"),
                     Decimal<&Button::m_userData>("userdata"), Text<&Button::m_label>("label"),
                     Text<&Button::m_buttonStyle>("buttonStyle"),
                     Text<&Button::m_buttonTextCache>("buttonTextCache"),
                     Decimal<&Button::m_linkTitleIndex>("linkTitleIndex").ReadOnly(),
                     ButtonRows<Button>::All(native));
    static constexpr FixedChild children[] = {
        Fixed<CButtonLinksNode>(eNodeLinks),
        Fixed<CActiveRgnNode>(eNodeActiveRegion),
        Fixed<CDSCommandList>(eNodeCommands),
        Fixed<CDSMenuElementList>(eNodeElements),
    };
};

CDSMenuButton::CDSMenuButton() : ElementNode(eNodeButton, kFormOf<CDSMenuButton, Form>)
{
    (void)FinalConstruct(); // can be asked for again
}

CDSMenuButton::~CDSMenuButton() = default;

// clang-format off
Status CDSMenuButton::GetPosition(float* x, float* y) { return getPosition(x, y); }
Status CDSMenuButton::SetPosition(float x, float y) { return setPosition(x, y); }
Status CDSMenuButton::get_ButtonScheme(long* out) const { return Give(out, m_scheme); }
Status CDSMenuButton::put_ButtonScheme(long value) { return Take(m_scheme, value); }
Status CDSMenuButton::get_Label(string* out) const { return Give(out, m_label); }
Status CDSMenuButton::put_Label(string value) { return Take(m_label, std::move(value)); }
Status CDSMenuButton::get_ButtonStyle(string* out) const { return Give(out, m_buttonStyle); }
Status CDSMenuButton::put_ButtonStyle(string value) { return Take(m_buttonStyle, std::move(value)); }
Status CDSMenuButton::get_ButtonTextCache(string* out) const { return Give(out, m_buttonTextCache); }
Status CDSMenuButton::put_ButtonTextCache(string value) { return Take(m_buttonTextCache, std::move(value)); }
Status CDSMenuButton::get_UserData(long* out) const { return Give(out, m_userData); }
Status CDSMenuButton::put_UserData(long value) { return Take(m_userData, value); }
Status CDSMenuButton::get_LinkTitleIndex(long* out) const { return Give(out, m_linkTitleIndex); }
// clang-format on

Status CDSMenuButton::FinalConstruct()
{
    return MakeFixedChildren(true);
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
    CProjectNode* elements = GetChild(ButtonChild::Elements);
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
    const auto* node = dynamic_cast<CActiveRgnNode*>(GetChild(ButtonChild::ActiveRegion));
    if (!node || !region || !valid)
        return status::kNullPointer;
    (void)node->GetActiveRgn(region); // both outputs are there
    return node->GetValid(valid);
}

Status CDSMenuButton::put_ActiveRegion(FloatRect* region, bool valid)
{
    auto* node = dynamic_cast<CActiveRgnNode*>(GetChild(ButtonChild::ActiveRegion));
    if (!node || !region)
        return status::kNullPointer;
    (void)node->SetActiveRgn(*region); // takes any
    return node->SetValid(valid);
}

Status CDSMenuButton::get_ButtonLinks(ButtonLinks** out)
{
    auto* node = dynamic_cast<CButtonLinksNode*>(GetChild(ButtonChild::Links));
    return node ? Give(out, node->Links()) : status::kNullPointer;
}

Status CDSMenuButton::put_ButtonLinks(ButtonLinks* links)
{
    auto* node = dynamic_cast<CButtonLinksNode*>(GetChild(ButtonChild::Links));
    return node && links ? node->SetButtonLinks(*links) : status::kNullPointer;
}

Status CDSMenuButton::GetAnchorElement(CDSMenuElement*)
{
    return status::kOk;
}
