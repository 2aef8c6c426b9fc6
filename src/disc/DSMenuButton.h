#pragma once

#include "disc/ElementNode.h"
#include "menu/MenuButtonImpl.h"

#include <string>

extern template class VANTREL_API vantrel::ElementNode<CMenuButtonImpl>;

class CDSMenuElement;

/// Where the remote control leads from a button: the numbers of the neighbours, 0 for none.
struct ButtonLinks
{
    long left = 0;
    long right = 0;
    long upper = 0;
    long lower = 0;
};

/// "Links": those of a button, as a node of its own.
class VANTREL_API CButtonLinksNode : public vantrel::FormedNode
{
public:
    CButtonLinksNode();
    ~CButtonLinksNode() override;

    /// Null gives `status::kNullPointer`.
    vantrel::Status GetButtonLinks(ButtonLinks* out) const;
    vantrel::Status SetButtonLinks(ButtonLinks links);
    /// The links themselves, which live as long as the node.
    ButtonLinks* Links();

private:
    struct Form;

    ButtonLinks m_links;
};

/// "ActiveRegion": the rectangle in which a pointer selects a button. Its sides are neither ordered nor checked.
class VANTREL_API CActiveRgnNode : public vantrel::FormedNode
{
public:
    CActiveRgnNode();
    ~CActiveRgnNode() override;

    /// Whether the rectangle counts.
    vantrel::Status GetValid(bool* out) const;
    vantrel::Status SetValid(bool value);

    /// Null gives `status::kNullPointer`.
    vantrel::Status GetActiveRgn(FloatRect* out) const;
    vantrel::Status SetActiveRgn(FloatRect rect);

private:
    struct Form;

    bool m_valid = false;
    FloatRect m_region;
};

/// "Button": one button of a menu. The overlays and texts that make it up stand in its "Elements"; its
/// fixed children have the positions of `ButtonChild`.
/// @code
///     ButtonLinks links{ .right = next.GetID() }; // the others stay 0: nowhere
///     button.put_ButtonLinks(&links);
///     button.GetChild(vantrel::ButtonChild::Elements)->AddChild(&caption, true);
/// @endcode
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

    /// Makes the fixed children that aren't there, which is all in the constructor. Gives
    /// `status::kNoMemory` when that fails.
    vantrel::Status FinalConstruct();

    /// The position of the element part, which an anchor may lend.
    vantrel::Status GetPosition(float* x, float* y) override;
    vantrel::Status SetPosition(float x, float y) override;

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
    vantrel::Status get_ButtonScheme(long* out) const;
    vantrel::Status put_ButtonScheme(long value);

    vantrel::Status get_Label(std::string* out) const;
    vantrel::Status put_Label(std::string value);

    vantrel::Status get_ButtonStyle(std::string* out) const;
    vantrel::Status put_ButtonStyle(std::string value);

    vantrel::Status get_ButtonTextCache(std::string* out) const;
    vantrel::Status put_ButtonTextCache(std::string value);

    /// Kept for the application.
    vantrel::Status get_UserData(long* out) const;
    vantrel::Status put_UserData(long value);

    /// The index of the title that the button links to, -1 for none. Only a file brings it, and it
    /// isn't written.
    vantrel::Status get_LinkTitleIndex(long* out) const;
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

private:
    struct Form;

    long m_scheme = 0;
    std::string m_label;
    std::string m_buttonStyle;
    std::string m_buttonTextCache;
    long m_userData = 0;
    long m_linkTitleIndex = -1;
};
