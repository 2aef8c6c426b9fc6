#pragma once

#include "disc/ElementNode.h"
#include "menu/MenuTextImpl.h"

#include <string>

extern template class VANTREL_API vantrel::ElementNode<CMenuTextImpl>;

/// "Text": a piece of text on a menu or in a button.
///
/// What it says and how it looks stands in the "effect" element of its own, which the element part
/// keeps; the file is walked no further there. Words, font name and height may be references into the
/// string table of the theme that the text was read from.
class VANTREL_API CDSMenuText : public vantrel::ElementNode<CMenuTextImpl>
{
public:
    CDSMenuText();
    ~CDSMenuText() override;

    /// How the text is highlighted with its button.
    virtual vantrel::Status get_Highlight(TextHighlight* out);
    virtual vantrel::Status put_Highlight(TextHighlight value);

    /// The point of the rectangle that stands at the position. Outside of 1 to 9:
    /// `status::kBadArgument`.
    virtual vantrel::Status get_Handle(TextHandles* out);
    virtual vantrel::Status put_Handle(TextHandles value);

    /// Hangs a copy of the effect under `node`, 1 when there is none; and takes a copy of `node` as
    /// the effect. Null gives `status::kNullPointer`.
    virtual vantrel::Status GetEffectXML(IXMLDOMNode* node);
    virtual vantrel::Status SetEffectXML(IXMLDOMNode* node);

    /// @name Words and font, with references resolved
    /// 0 when a reference was resolved. 1 for any other text, which `out` receives as it stands, but
    /// only from a text that was read from a file; and without a text, when `out` stays.
    /// @{
    vantrel::Status getString(std::string* out);
    vantrel::Status get_Font(std::string* out);
    vantrel::Status get_HeightString(std::string* out);
    /// @}

    /// The number at the head of the height, resolved; 0 without a text. 1, with `out` untouched, for
    /// a reference that doesn't resolve. Null gives `status::kNullPointer`.
    vantrel::Status get_Height(long* out);

    /// 0xAABBGGRR. The status is always 1; without a colour `out` stays.
    vantrel::Status GetColor(unsigned long* out);

    int NodeInserted() override;

    /// Reads the attributes and keeps a copy of the "effect". Gives `status::kNullPointer` for null,
    /// else 0.
    vantrel::Status ReadXML(IXMLDOMNode* node) override;
    /// Writes the attributes and the "effect". Gives 0.
    vantrel::Status WriteXML(IXMLDOMNode* node, long native) override;

private:
    struct Form;
    vantrel::Status Resolve(vantrel::Status (CMenuTextImpl::*get)(std::string*), std::string* out);

    TextHighlight m_highlight = TextHighlight::None;
};
