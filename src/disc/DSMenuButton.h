#pragma once

#include "disc/ElementNode.h"
#include "menu/MenuButtonImpl.h"

#include <string>

class CDSMenuElement;

/// Where the remote control leads from a button: the numbers of the neighbours, 0 for none.
struct ButtonLinks
{
    long left = 0;
    long right = 0;
    long upper = 0;
    long lower = 0;
};

/// The links of a button, as a node of its own.
class VANTREL_API CButtonLinksNode : public CProjectNode
{
public:
    CButtonLinksNode();
    ~CButtonLinksNode() override;

    /// Null gives `status::kNullPointer`.
    vantrel::Status GetButtonLinks(ButtonLinks* out) const { return vantrel::Give(out, m_links); }
    vantrel::Status SetButtonLinks(ButtonLinks links) { return vantrel::Take(m_links, links); }
    /// The links themselves, which live as long as the node.
    ButtonLinks* Links() { return &m_links; }

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;

private:
    static vantrel::AttributeTable<CButtonLinksNode> Attributes();

    ButtonLinks m_links;
};

/// The rectangle in which a pointer selects a button. Its sides are neither ordered nor checked.
class VANTREL_API CActiveRgnNode : public CProjectNode
{
public:
    CActiveRgnNode();
    ~CActiveRgnNode() override;

    /// Whether the rectangle counts.
    vantrel::Status GetValid(bool* out) const { return vantrel::Give(out, m_valid); }
    vantrel::Status SetValid(bool value) { return vantrel::Take(m_valid, value); }

    /// Null gives `status::kNullPointer`.
    vantrel::Status GetActiveRgn(FloatRect* out) const { return vantrel::Give(out, m_region); }
    vantrel::Status SetActiveRgn(FloatRect rect) { return vantrel::Take(m_region, rect); }

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;

private:
    static vantrel::AttributeTable<CActiveRgnNode> Attributes();

    bool m_valid = false;
    FloatRect m_region;
};

/// One button of a menu.
///
/// Four fixed children stand at positions that are part of the model: 0 "Links", 1 "ActiveRegion",
/// 2 "Commands", 3 "Elements", the overlays and texts that make up the button.
///
/// Position, rotation and depth stand in the file for the buttons of native menus alone. Every
/// `get_X` gives `status::kNullPointer` for null; a `put_X` stores the value and gives 0 unless it
/// says more.
class VANTREL_API CDSMenuButton : public vantrel::ElementNode<CMenuButtonImpl>
{
public:
    /// Makes the children.
    CDSMenuButton();
    ~CDSMenuButton() override;

    /// Makes the children, if there are none yet.
    vantrel::Status FinalConstruct();

    /// The position of the element part, which an anchor may lend.
    vantrel::Status GetPosition(float* x, float* y) override { return getPosition(x, y); }
    vantrel::Status SetPosition(float x, float y) override { return setPosition(x, y); }

    /// A button has no corners of its own: always `status::kNoBoundingBox`.
    vantrel::Status GetBoundingBox(FloatPoint* out) override;

    /// The union of the extents of the overlays and texts in the button that are highlighted with it,
    /// and of what else stands there. 1, and the zero rectangle, when there is none.
    virtual vantrel::Status GetHighlightRegion(FloatRect* out);

    /// True for a button of a native menu, and for one that stands in no menu.
    bool IsNative() const;

    /// @name Properties
    /// @{
    /// Which of the menu's button schemes the button uses.
    vantrel::Status get_ButtonScheme(long* out) const { return vantrel::Give(out, m_scheme); }
    vantrel::Status put_ButtonScheme(long value) { return vantrel::Take(m_scheme, value); }

    vantrel::Status get_Label(std::string* out) const { return vantrel::Give(out, m_label); }
    vantrel::Status put_Label(std::string value)
    {
        return vantrel::Take(m_label, std::move(value));
    }

    vantrel::Status get_ButtonStyle(std::string* out) const
    {
        return vantrel::Give(out, m_buttonStyle);
    }
    vantrel::Status put_ButtonStyle(std::string value)
    {
        return vantrel::Take(m_buttonStyle, std::move(value));
    }

    vantrel::Status get_ButtonTextCache(std::string* out) const
    {
        return vantrel::Give(out, m_buttonTextCache);
    }
    vantrel::Status put_ButtonTextCache(std::string value)
    {
        return vantrel::Take(m_buttonTextCache, std::move(value));
    }

    /// Kept for the application.
    vantrel::Status get_UserData(long* out) const { return vantrel::Give(out, m_userData); }
    vantrel::Status put_UserData(long value) { return vantrel::Take(m_userData, value); }

    /// The index of the title that the button links to, -1 for none. Only a file brings it, and it
    /// isn't written.
    vantrel::Status get_LinkTitleIndex(long* out) const
    {
        return vantrel::Give(out, m_linkTitleIndex);
    }
    /// @}

    /// @name Children
    /// A null pointer, or a missing child, gives `status::kNullPointer`.
    /// @{
    vantrel::Status get_ActiveRegion(FloatRect* region, bool* valid);
    vantrel::Status put_ActiveRegion(FloatRect* region, bool valid);

    /// Hands out the links themselves, which live as long as the button.
    vantrel::Status get_ButtonLinks(ButtonLinks** out);
    vantrel::Status put_ButtonLinks(ButtonLinks* links);

    /// Gives 0 and nothing else: `getAnchorElement` hands out the anchor.
    vantrel::Status GetAnchorElement(CDSMenuElement* out);
    /// @}

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;

private:
    static vantrel::AttributeTable<CDSMenuButton> Attributes();

    long m_scheme = 0;
    std::string m_label;
    std::string m_buttonStyle;
    std::string m_buttonTextCache;
    long m_userData = 0;
    long m_linkTitleIndex = -1;
};
