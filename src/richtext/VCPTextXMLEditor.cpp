#include "richtext/VCPTextXMLEditor.h"

#include "core/Number.h"
#include "richtext/EditFormat.h"

using std::map;
using std::string;
using namespace vantrel;

namespace {

struct FormatOf
{
    unsigned long value;
    const char* format;
};

constexpr FormatOf kJustifications[] = {
    { TEXT_JUSTIFY_CENTER, "f:<p align=centre></p>" },
    { TEXT_JUSTIFY_LEFT, "f:<p align=left></p>" },
    { TEXT_JUSTIFY_RIGHT, "f:<p align=right></p>" },
};

// The last bit that matches counts.
constexpr FormatOf kStyles[] = {
    { TEXT_STYLE_NOT_ITALIC, "x:<i></i>" },
    { TEXT_STYLE_ITALIC, "f:<i></i>" },
    { TEXT_STYLE_NOT_BOLD, "x:<b></b>" },
    { TEXT_STYLE_BOLD, "f:<b></b>" },
};

/// "#" and two digits each for red, green, blue and alpha.
string ColourText(unsigned long colour)
{
    constexpr const char* digits = "0123456789abcdef";
    string text = "#";
    for (int channel = 0; channel < 4; ++channel, colour >>= 8) {
        text += digits[colour >> 4 & 0xF];
        text += digits[colour & 0xF];
    }
    return text;
}

} // namespace

CVCPTextXMLEditor::CVCPTextXMLEditor(_xmlNode* body, TextAttributes* attributes)
    : m_body(body),
      m_doc(body ? body->doc : nullptr),
      m_attributes(attributes),
      m_isValid(body && attributes)
{}

Status CVCPTextXMLEditor::EditText(string text, bool keep)
{
    if (!m_isValid)
        return status::kFailure;
    if (text.empty())
        (void)EmptyDocument(); // can't fail
    return EditTextTags("r:" + text, keep);
}

Status CVCPTextXMLEditor::EditJustification(unsigned long justification)
{
    if (!m_isValid)
        return status::kFailure;
    string format;
    for (const FormatOf& row : kJustifications) {
        if (row.value == justification)
            format = row.format;
    }
    return EditParagraphTags(format);
}

Status CVCPTextXMLEditor::EditStyle(unsigned long style)
{
    if (!m_isValid)
        return status::kFailure;
    if (style & (TEXT_STYLE_ITALIC_MIXED | TEXT_STYLE_BOLD_MIXED))
        return status::kBadArgument;
    string format;
    for (const FormatOf& row : kStyles) {
        if (row.value & style)
            format = row.format;
    }
    return EditStyleTags(format, style);
}

Status CVCPTextXMLEditor::EditFont(string face)
{
    return EditFontValue("face", face);
}

Status CVCPTextXMLEditor::EditFontSize(int size)
{
    return EditFontValue("fontHeight", NumberText(static_cast<long>(size)));
}

Status CVCPTextXMLEditor::EditFontSizeString(string size)
{
    return EditFontValue("fontHeight", size);
}

Status CVCPTextXMLEditor::EditTextColor(unsigned long color)
{
    if (!m_isValid)
        return status::kFailure;
    return EditFontTags(
        FormatElement(WS_NODE_NAME_FONT, "color", ColourText(color) + ",faceTexture=0"));
}

Status CVCPTextXMLEditor::EditFontValue(const char* name, const string& value)
{
    if (!m_isValid)
        return status::kFailure;
    const string format = FormatElement(WS_NODE_NAME_FONT, name, value);
    if (ParseEditFormat(format).attributes != map<string, string>{ { name, value } })
        return status::kBadArgument; // the language would read further attributes out of the value
    return EditFontTags(format);
}

Status CVCPTextXMLEditor::EditTextTags(string format, bool)
{
    m_format = format;
    m_operation.clear();
    if (!format.starts_with("r:"))
        return status::kNothingDone;
    m_operation = 'r';
    return ReplaceText(format.substr(2));
}

Status CVCPTextXMLEditor::EditParagraphTags(string format)
{
    string text;
    map<string, string> attributes;
    m_format = format;
    (void)ParseFormatString(format, m_tagName, text, attributes, true); // empty asks for nothing
    return ParseFrameList(m_body, m_format);
}

Status CVCPTextXMLEditor::EditStyleTags(string format, unsigned long)
{
    string text;
    map<string, string> attributes;
    m_format = format;
    const Status parsed = ParseFormatString(format, m_tagName, text, attributes, true);
    if (Failed(parsed))
        return parsed;
    if (m_tagName != WS_NODE_NAME_BOLD && m_tagName != WS_NODE_NAME_ITAL)
        return status::kNothingDone;
    if (m_operation == "f")
        return PutStyle();
    return m_operation == "x" ? TakeStyleOff() : status::kNothingDone;
}

Status CVCPTextXMLEditor::EditFontTags(string format)
{
    string text;
    map<string, string> attributes;
    m_isFontEdit = true;
    m_format = format;
    const Status parsed = ParseFormatString(format, m_tagName, text, attributes, true);
    if (Failed(parsed))
        return parsed;
    if (m_tagName != WS_NODE_NAME_FONT || m_operation != "f")
        return status::kNothingDone;
    return FormatFonts(attributes);
}

Status CVCPTextXMLEditor::EmptyDocument()
{
    m_emptied = true;
    m_status = status::kOk;
    return status::kOk;
}

Status CVCPTextXMLEditor::ParseFormatString(const string& format, string& tag, string& text,
                                            map<string, string>& attributes, bool first)
{
    if (format.empty())
        return status::kFailure;
    EditFormat parsed = ParseEditFormat(format);
    if (first)
        m_operation = parsed.operation;
    tag = parsed.tag;
    text = parsed.text;
    attributes = std::move(parsed.attributes);
    return status::kOk;
}
