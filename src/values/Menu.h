#pragma once

#include "disc/DSLayout.h"
#include "disc/DSMenu.h"
#include "values/Button.h"
#include "values/Colours.h"
#include "values/Encoding.h"
#include "values/Storyboard.h"

#include <optional>
#include <string>

namespace vantrel {

/// One menu of the disc, with its buttons, texts and overlays, its colours, and the storyboard that
/// plays behind them. Durations are seconds.
class Menu : public NodeHandle<CDSMenu, eNodeMenu>
{
    using M = CDSMenu;

public:
    using NodeHandle::NodeHandle;

    std::string label() const { return Ask(&M::get_Label); }
    Status label(std::string value) const { return Put(&M::put_Label, std::move(value)); }
    Bits<MenuTag> tag() const { return Bits<MenuTag>(Ask(&M::get_Tag)); }
    Status tag(Bits<MenuTag> bits) const { return Put(&M::put_Tag, bits.number()); }
    Bits<MenuFlag> flags() const { return Bits<MenuFlag>(Ask(&M::get_Flags)); }
    Status flags(Bits<MenuFlag> bits) const { return Put(&M::put_Flags, bits.number()); }
    double duration() const { return Ask(&M::get_Duration); }
    Status duration(double seconds) const { return Put(&M::put_Duration, seconds); }

    /// @name Theme
    /// @{
    bool isNative() const { return object() && object()->IsNative(); }
    /// The template menu that this one was made from: its ID, or 0; and the menu, if it is there.
    long templateId() const { return Ask(&M::get_TemplateID); }
    Status templateId(long id) const { return Put(&M::put_TemplateID, id); }
    Menu templateMenu() const;
    /// The picture or video behind the menu.
    std::string background() const { return Ask(&M::get_Background); }
    Status background(std::string path) const { return Put(&M::put_Background, std::move(path)); }
    long backgroundId() const { return Ask(&M::get_BkgndID); }
    Status backgroundId(long id) const { return Put(&M::put_BkgndID, id); }
    /// The sound of a native menu.
    std::string audio() const { return Ask(&M::get_Audio); }
    /// @}

    /// @name Layout and colours
    /// @{
    CDSLayout buttonLayout() const { return Ask(&M::get_ButtonLayout); }
    Status buttonLayout(const CDSLayout& layout) const
    {
        return Put(&M::put_ButtonLayout, static_cast<unsigned long>(layout));
    }
    /// Where the buttons are laid out.
    FloatRect layoutRect() const { return Ask(&M::get_LayoutRect); }
    Status layoutRect(FloatRect rect) const { return Put(&M::put_LayoutRect, &rect); }
    Palette palette() const { return Child<Palette>(static_cast<int>(At::palette)); }
    /// Of the number that `Button::scheme` gives, 1 to 3; empty for another.
    ButtonScheme buttonScheme(long number) const
    {
        const bool isThere = number >= 1 && number <= 3;
        const int first = static_cast<int>(At::buttonScheme1);
        return isThere ? Child<ButtonScheme>(first + static_cast<int>(number) - 1) : ButtonScheme();
    }
    SubpictureColours subpictureColours() const
    {
        return Child<SubpictureColours>(static_cast<int>(At::subpictureColours));
    }
    /// @}

    Commands commands() const { return Child<Commands>(static_cast<int>(At::commands)); }
    Encoding encoding() const { return Child<Encoding>(static_cast<int>(At::encoding)); }

    /// @name Storyboard
    /// @{
    /// Empty when the menu has none.
    Storyboard storyboard() const { return Ask(&M::GetProduction); }
    /// The menu's storyboard, made when there is none.
    Storyboard makeStoryboard() const
    {
        if (object())
            (void)object()->CreateProduction(); // 1 when there is one
        return storyboard();
    }
    Status removeStoryboard() const
    {
        return object() ? object()->ReleaseProduction() : status::kNullPointer;
    }
    /// @}

    /// @name What stands on it
    /// Texts and overlays are those beside the buttons.
    /// @{
    Elements elements() const { return Child<Elements>(static_cast<int>(At::elements)); }
    Nodes<Button> buttons() const { return elements().buttons(); }
    Nodes<Text> texts() const { return elements().texts(); }
    Nodes<Overlay> overlays() const { return elements().overlays(); }

    /// The button that is selected first; empty for none.
    Button defaultButton() const
    {
        const long id = Ask(&M::get_DefaultButton);
        return id != 0 ? buttons().find(id) : Button();
    }
    /// `status::kNotAButton` for one that isn't this menu's. An empty handle means none.
    Status defaultButton(Button button) const { return Put(&M::put_DefaultButton, button.id()); }

    Button addButton(std::string label) const
    {
        const auto added =
            detail::Adopt<Button>(elements().object(), std::make_unique<CDSMenuButton>());
        (void)added.label(std::move(label)); // an empty one takes nothing
        return added;
    }
    Text addText(std::string words) const { return elements().addText(std::move(words)); }
    Overlay addOverlay(std::string picture) const
    {
        return elements().addOverlay(std::move(picture));
    }
    /// Releases a button, text or overlay that stands on the menu.
    Status remove(Node element) const { return elements().remove(element); }
    /// To a position in the list of all that stands on the menu, counted from 0.
    Status move(Node element, int position) const { return elements().move(element, position); }
    /// @}

private:
    using At = position::InMenu;
};

template <class Class, eNodeType Type, class Tag>
Menu Element<Class, Type, Tag>::menu() const
{
    return Node(*this).above<Menu>();
}

inline Button Button::neighbour(Direction direction) const
{
    const long id = link(direction);
    return id != 0 ? menu().buttons().find(id) : Button();
}

inline Status Button::neighbour(Direction direction, Button to) const
{
    ButtonLinks* links = Links();
    if (!links)
        return status::kNullPointer;
    if (to && to.menu() != menu())
        return status::kNotAButton;
    links->*Way(direction) = to.id();
    return status::kOk;
}

} // namespace vantrel
