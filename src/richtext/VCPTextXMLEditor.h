#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "richtext/TextAttributes.h"

#include <libxml/tree.h>

#include <map>
#include <string>

/// Edits a rich text as a whole. Built on the stack for one edit.
///
/// Each `Edit...` operation states its request as a format string of a small edit language, and
/// hands it to the tag operation for its kind, which changes the body:
///
/// | Letter | Argument                                      | Meaning                           |
/// |--------|-----------------------------------------------|-----------------------------------|
/// | "r:"   | the new text                                  | replace the text                  |
/// | "f:"   | an empty element, such as "<b></b>"           | the text is to take this element  |
/// | "x:"   | the same                                      | the text is to lose this element  |
///
/// Attribute values stand unquoted and are parted by "," without a blank.
///
/// What holds for every edit: parsing the body anew shows the change, also after a save and a load;
/// the words stay (but for `EditText`); an edit that changes nothing leaves the XML as it was, and
/// elements do not pile up, however often a text is edited. A text without words keeps what it is
/// formatted with in its elements, for the words to come. Time is linear in the size of the body.
///
/// Failures change nothing: `status::kFailure` from every `Edit...` of an editor without body or
/// attributes, `status::kUnexpected` for a body that is no element, `status::kBadArgument` for what
/// can't stand in a file or in the language, and `status::kNotAvailable` when the words would come
/// to stand too deep for a file. 1 means that a format asks for nothing that the operation knows.
class VANTREL_API CVCPTextXMLEditor
{
public:
    /// Both stay the caller's.
    CVCPTextXMLEditor(_xmlNode* body, TextAttributes* attributes);

    bool GetIsValid() const { return m_isValid; }

    /// @name Edits
    /// @{

    /// Replaces all words by `text`, which looks as the first run did. Line feeds at the head of
    /// the text are dropped: a text that begins with one would be taken for indentation. `keep` has
    /// no effect.
    vantrel::Status EditText(std::string text, bool keep);

    /// Aligns every paragraph, and makes one of words that stand in none. `TEXT_JUSTIFY_LEFT`,
    /// `TEXT_JUSTIFY_CENTER` or `TEXT_JUSTIFY_RIGHT`; anything else does nothing.
    vantrel::Status EditJustification(unsigned long justification);

    /// Puts bold or italic on the whole text, or takes it off. One edit follows one bit: the last
    /// of `TEXT_STYLE_NOT_ITALIC`, `TEXT_STYLE_ITALIC`, `TEXT_STYLE_NOT_BOLD`, `TEXT_STYLE_BOLD`
    /// that is set. A mixed bit gives `status::kBadArgument`, no bit `status::kFailure`.
    vantrel::Status EditStyle(unsigned long style);

    /// Sets the font face of every run; an empty one takes it off.
    vantrel::Status EditFont(std::string face);

    /// Sets the size of every run.
    vantrel::Status EditFontSize(int size);
    /// The same with a text, such as a string reference; an empty one takes the size off.
    vantrel::Status EditFontSizeString(std::string size);

    /// Sets the colour of every run, 0xAABBGGRR, and takes a texture off the letters.
    vantrel::Status EditTextColor(unsigned long color);
    /// @}

    /// @name Tag operations
    /// Each takes one format string of its kind.
    /// @{
    vantrel::Status EditTextTags(std::string format, bool keep);
    vantrel::Status EditParagraphTags(std::string format);
    vantrel::Status EditStyleTags(std::string format, unsigned long style);
    vantrel::Status EditFontTags(std::string format);
    /// @}

    /// @name Steps
    /// @{

    /// Notes that the text is to be emptied.
    vantrel::Status EmptyDocument();

    /// Splits a format string into the element's name, the argument as a whole and the element's
    /// attributes. The first pass over a format also sets the operation. An empty format gives
    /// `status::kFailure`; one that is not of the language gives an empty `tag`.
    vantrel::Status ParseFormatString(const std::string& format, std::string& tag,
                                      std::string& text,
                                      std::map<std::string, std::string>& attributes, bool first);

    /// Applies a paragraph format to all paragraphs below `node`.
    vantrel::Status ParseFrameList(_xmlNode*& node, const std::string& format);
    /// Applies a paragraph format to one paragraph.
    vantrel::Status EditFrame(_xmlNode*& node, const std::string& format);

    /// True when the only element right below `node` is one of the kind being edited. `found`,
    /// which may be null, receives the address of the first such element, or 0.
    bool TestOnlyChildNodeOfOpType(_xmlNode*& node, long* found);

    /// Adds a child element before or behind the child `node`, as the last child when that is null.
    /// `out` may be null.
    vantrel::Status InsertNode(_xmlNode* parent, std::string name,
                               std::map<std::string, std::string>& attributes, bool before,
                               _xmlNode*& node, _xmlNode** out);

    /// Takes an element below the body out of its tree and keeps its content there. `node`
    /// becomes null.
    vantrel::Status DeleteNode(_xmlNode*& node);

    /// `XMLSaveAttributes`, or nothing for an empty map.
    vantrel::Status SetItemAttributes(_xmlNode*& node,
                                      std::map<std::string, std::string>& attributes);

    /// Sets attributes in the map's order. One that the node has takes the new value in its place;
    /// the value "TEXTED_REMOVE" takes it off.
    vantrel::Status XMLSaveAttributes(_xmlNode* node,
                                      std::map<std::string, std::string>& attributes);
    /// @}

protected:
    _xmlNode* m_body;             ///< not owned
    _xmlDoc* m_doc;               ///< not owned; null without a body
    TextAttributes* m_attributes; ///< the summary that the edit concerns; not owned
    bool m_isValid;               ///< body and attributes are there
    bool m_isFontEdit = false;    ///< an edit of fonts was asked for
    std::string m_operation;      ///< the letter of the format in progress
    std::string m_format;         ///< the format in progress
    bool m_emptied = false;       ///< the text was emptied
    vantrel::Status m_status = vantrel::status::kFailure; ///< 0 once the text was emptied
    std::string m_tagName;                                ///< the element of the format in progress

private:
    vantrel::Status EditFontValue(const char* name, const std::string& value);
    vantrel::Status ReplaceText(const std::string& text);
    vantrel::Status PutStyle();
    vantrel::Status TakeStyleOff();
    vantrel::Status FormatFonts(const std::map<std::string, std::string>& attributes);
};
