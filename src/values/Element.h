#pragma once

#include "core/Message.h"
#include "core/Types.h"
#include "disc/DSMenuElementList.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "values/Bits.h"
#include "values/Nodes.h"
#include "xml/XmlPtr.h"

#include <optional>
#include <string>
#include <vector>

/// @file
/// What is seen on a menu. Lengths are model units with y growing upward, angles degrees,
/// counter-clockwise.

namespace vantrel {

class Button;
class Menu;

/// Width and height.
struct Size
{
    float width = 0.0F;
    float height = 0.0F;

    friend bool operator==(const Size&, const Size&) = default;
};

/// What buttons, texts and overlays have in common.
template <class Class, eNodeType Type, class Tag>
class Element : public NodeHandle<Class, Type>
{
public:
    using NodeHandle<Class, Type>::NodeHandle;

    Bits<Tag> tag() const { return Bits<Tag>(this->Ask(&Class::get_Tag)); }
    Status tag(Bits<Tag> bits) const { return this->Put(&Class::put_Tag, bits.number()); }

    /// The application's.
    unsigned long flags() const { return this->Ask(&Class::get_Flags); }
    Status flags(unsigned long value) const { return this->Put(&Class::put_Flags, value); }

    /// The ID of the element of a template that this one was made from; 0 for none.
    long templateId() const { return this->Ask(&Class::get_TemplateID); }
    Status templateId(long id) const { return this->Put(&Class::put_TemplateID, id); }

    FloatPoint position() const
    {
        FloatPoint place;
        if (this->object())
            (void)this->object()->GetPosition(&place.x, &place.y); // an element has one
        return place;
    }
    Status position(FloatPoint place) const
    {
        return this->object() ? this->object()->SetPosition(place.x, place.y)
                              : status::kNullPointer;
    }

    float rotation() const { return this->Ask(&Class::get_Rotation); }
    Status rotation(float degrees) const { return this->Put(&Class::put_Rotation, degrees); }

    /// Depth: a higher one lies over a lower one.
    long zOrder() const { return this->Ask(&Class::get_ZOrder); }
    Status zOrder(long value) const { return this->Put(&Class::put_ZOrder, value); }

    /// The four corners on the menu, from left-top round by left-bottom; none for what has no
    /// rectangle of its own.
    std::vector<FPoint> corners() const
    {
        std::vector<FPoint> corners;
        if (this->object())
            (void)this->object()->getBoundingBox(&corners); // told by the corners
        return corners;
    }

    /// The button that the element stands in; empty for none. Defined, as the next, in values/Menu.h.
    Button button() const;
    /// The menu that it stands on, directly or in a button; empty for none.
    Menu menu() const;
};

/// A piece of text on a menu or in a button.
class Text : public Element<CDSMenuText, eNodeText, TextTag>
{
    using T = CDSMenuText;

public:
    using Element::Element;

    /// @name Words and look
    /// A reference into a theme's string table is read as what it stands for, if that can be found.
    /// @{
    std::string words() const { return Resolved(&T::getString, &CMenuTextImpl::getString); }
    Status words(std::string value) const { return Put(&T::setString, std::move(value)); }
    std::string font() const { return Resolved(&T::get_Font, &CMenuTextImpl::getFontName); }
    Status font(std::string face) const { return Put(&T::setFontName, std::move(face)); }
    /// None where the runs of the text differ, or say no number. Outside of 8 to 128 the setter gives
    /// `status::kBadArgument`.
    std::optional<long> height() const
    {
        const MessageScope silence(nullptr);
        return AskIf(&T::get_Height);
    }
    Status height(long value) const { return Put(&T::setFontHeight, value); }
    /// 0xAABBGGRR
    unsigned long colour() const { return Ask(&T::GetColor); }
    Status colour(unsigned long value) const { return Put(&T::setColor, value); }
    /// `TEXT_JUSTIFY_...`
    unsigned long justify() const { return Ask(&T::getJustify); }
    Status justify(unsigned long value) const { return Put(&T::setJustify, value); }
    /// `TEXT_STYLE_...`
    unsigned long style() const { return Ask(&T::getStyle); }
    Status style(unsigned long value) const { return Put(&T::setStyle, value); }
    /// @}

    /// The point of the text's rectangle that stands at its position.
    TextHandles handle() const { return Ask(&T::get_Handle); }
    Status handle(TextHandles value) const { return Put(&T::put_Handle, value); }

    TextHighlight highlight() const { return Ask(&T::get_Highlight); }
    Status highlight(TextHighlight value) const { return Put(&T::put_Highlight, value); }

private:
    /// The answer of the node, which resolves references, or else of the element part. A string table
    /// that is missing is no news here.
    std::string Resolved(Status (T::*resolved)(std::string*),
                         Status (CMenuTextImpl::*plain)(std::string*)) const
    {
        const MessageScope silence(nullptr);
        std::string text = Ask(resolved);
        return text.empty() ? Ask(plain) : text;
    }
};

/// A picture on a menu or in a button.
class Overlay : public Element<CDSMenuOverlay, eNodeOverlay, OverlayTag>
{
    using O = CDSMenuOverlay;

public:
    using Element::Element;

    std::string label() const { return Ask(&O::get_Label); }
    Status label(std::string value) const { return Put(&O::put_Label, std::move(value)); }

    /// @name Picture
    /// @{
    SourceTypes sourceType() const { return Source().type; }
    /// Which title, chapter or the like the picture shows; 0 for a file.
    long sourceId() const { return Source().id; }
    Status source(SourceTypes type, long id) const
    {
        return object() ? object()->SetSourceType(type, id) : status::kNullPointer;
    }
    /// The path of the picture's file.
    std::string source() const { return Ask(&O::get_Source); }
    /// The same as it stands in a project's file, without the folder of a theme.
    std::string storedSource() const { return Ask(&CMenuOverlayImpl::getSource); }
    Status source(std::string path) const { return Put(&O::put_Source, std::move(path)); }
    /// The path of its mask.
    std::string mask() const { return Ask(&O::get_AlphaMask); }
    Status mask(std::string path) const { return Put(&O::put_AlphaMask, std::move(path)); }
    /// Seconds in a source that moves.
    double inPoint() const { return Ask(&O::get_InPoint); }
    Status inPoint(double seconds) const { return Put(&O::put_InPoint, seconds); }
    double outPoint() const { return Ask(&O::get_OutPoint); }
    Status outPoint(double seconds) const { return Put(&O::put_OutPoint, seconds); }
    bool still() const { return Ask(&O::get_StillImage); }
    Status still(bool value) const { return Put(&O::put_StillImage, value); }
    /// @}

    Size size() const
    {
        Size size;
        if (object())
            (void)object()->GetSize(&size.width, &size.height); // an overlay has one
        return size;
    }
    Status size(Size value) const
    {
        return object() ? object()->SetSize(value.width, value.height) : status::kNullPointer;
    }

    OverlayHighlight highlight() const { return Ask(&O::get_Highlight); }
    Status highlight(OverlayHighlight value) const { return Put(&O::put_Highlight, value); }

private:
    struct SourceKind
    {
        SourceTypes type = SourceTypes::None;
        long id = 0;
    };
    SourceKind Source() const
    {
        SourceKind kind;
        if (object())
            (void)object()->GetSourceType(&kind.type, &kind.id); // can't fail
        return kind;
    }
};

/// The elements of a menu or a button, in the order of the file: a handle with what both have.
class Elements : public NodeHandle<CDSMenuElementList, eNodeElements>
{
public:
    using NodeHandle::NodeHandle;

    Nodes<Button> buttons() const;
    Nodes<Text> texts() const { return Nodes<Text>(object()); }
    Nodes<Overlay> overlays() const { return Nodes<Overlay>(object()); }

    /// Empty when there is no list, or the words can't stand in a file.
    Text addText(std::string words) const;
    Overlay addOverlay(std::string picture) const
    {
        const auto added = detail::Adopt<Overlay>(object(), std::make_unique<CDSMenuOverlay>());
        (void)added.source(SourceTypes::File, 0); // an empty one takes nothing
        (void)added.source(std::move(picture));
        return added;
    }
    Status remove(Node element) const { return detail::Remove(object(), element.object()); }
    Status move(Node element, int position) const
    {
        return detail::Move(object(), element.object(), position);
    }
};

namespace detail {

/// The XML of a text without words and formatting.
inline constexpr char kEmptyText[] =
    "<effect><plugin_data><html><body><p><font/></p></body></html></plugin_data></effect>";

} // namespace detail

inline Text Elements::addText(std::string words) const
{
    const XmlDocPtr xml{ xmlReadMemory(detail::kEmptyText, int(sizeof detail::kEmptyText) - 1,
                                       nullptr, nullptr, XML_PARSE_NONET) };
    auto text = std::make_unique<CDSMenuText>();
    if (!xml || Failed(text->setEffectXML(xmlDocGetRootElement(xml.get()))) ||
        Failed(text->setString(std::move(words))))
        return {};
    return detail::Adopt<Text>(object(), std::move(text));
}

} // namespace vantrel
