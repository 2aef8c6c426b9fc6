#pragma once

#include "disc/DSMenuButton.h"
#include "values/Command.h"
#include "values/Element.h"
#include "values/Positions.h"

#include <optional>
#include <string>
#include <string_view>

namespace vantrel {

/// A key of the remote control.
enum class Direction
{
    left,
    right,
    up,
    down,
};
inline constexpr Direction kDirections[] = { Direction::left, Direction::right, Direction::up,
                                             Direction::down };

constexpr std::string_view Name(Direction direction)
{
    constexpr std::string_view names[] = { "left", "right", "up", "down" };
    return names[static_cast<int>(direction)];
}

/// One button of a menu, with the texts and overlays that make it up.
class Button : public Element<CDSMenuButton, eNodeButton, ButtonTag>
{
    using B = CDSMenuButton;

public:
    using Element::Element;

    std::string label() const { return Ask(&B::get_Label); }
    Status label(std::string value) const { return Put(&B::put_Label, std::move(value)); }
    std::string style() const { return Ask(&B::get_ButtonStyle); }
    Status style(std::string value) const { return Put(&B::put_ButtonStyle, std::move(value)); }
    /// Which of the menu's three schemes lights it up, from 1.
    long scheme() const { return Ask(&B::get_ButtonScheme); }
    Status scheme(long number) const { return Put(&B::put_ButtonScheme, number); }
    /// The application's.
    long userData() const { return Ask(&B::get_UserData); }
    Status userData(long value) const { return Put(&B::put_UserData, value); }

    /// @name Links
    /// @{
    /// The ID of the button that the remote control goes to; 0 for none.
    long link(Direction direction) const
    {
        const ButtonLinks* links = Links();
        return links ? links->*Way(direction) : 0;
    }
    /// That button of the menu; empty where there is none.
    Button neighbour(Direction direction) const;
    /// An empty handle takes the link away; `status::kNotAButton` for a button of another menu.
    Status neighbour(Direction direction, Button to) const;
    /// @}

    /// @name Regions
    /// @{
    /// Where a pointer selects the button; none when that doesn't count.
    std::optional<FloatRect> activeRegion() const
    {
        FloatRect region;
        bool valid = false;
        if (object())
            (void)object()->get_ActiveRegion(&region, &valid); // then it isn't valid
        return valid ? std::optional(region) : std::nullopt;
    }
    Status activeRegion(std::optional<FloatRect> region) const
    {
        FloatRect rect = region.value_or(FloatRect());
        return object() ? object()->put_ActiveRegion(&rect, region.has_value())
                        : status::kNullPointer;
    }
    /// Around what lights up with the button; none when nothing does.
    std::optional<FloatRect> highlightRegion() const { return AskIf(&B::GetHighlightRegion); }
    /// @}

    Commands commands() const
    {
        return Child<Commands>(static_cast<int>(position::InButton::commands));
    }

    /// @name What stands in it
    /// @{
    Elements elements() const
    {
        return Child<Elements>(static_cast<int>(position::InButton::elements));
    }
    Nodes<Text> texts() const { return elements().texts(); }
    Nodes<Overlay> overlays() const { return elements().overlays(); }
    Text addText(std::string words) const { return elements().addText(std::move(words)); }
    Overlay addOverlay(std::string picture) const
    {
        return elements().addOverlay(std::move(picture));
    }
    Status remove(Node element) const { return elements().remove(element); }
    /// To a position in the list of all that stands in the button, counted from 0.
    Status move(Node element, int position) const { return elements().move(element, position); }
    /// @}

private:
    static constexpr long ButtonLinks::*Way(Direction direction)
    {
        constexpr long ButtonLinks::*ways[] = { &ButtonLinks::left, &ButtonLinks::right,
                                                &ButtonLinks::upper, &ButtonLinks::lower };
        return ways[static_cast<int>(direction)];
    }
    ButtonLinks* Links() const
    {
        ButtonLinks* links = nullptr;
        if (object())
            (void)object()->get_ButtonLinks(&links); // null tells
        return links;
    }
};

inline Nodes<Button> Elements::buttons() const
{
    return Nodes<Button>(object());
}

template <class Class, eNodeType Type, class Tag>
Button Element<Class, Type, Tag>::button() const
{
    return Node(*this).above<Button>();
}

} // namespace vantrel
