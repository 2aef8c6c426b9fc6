#include "richtext/VCPTextPlugInHelper.h"

#include "core/Property.h"
#include "richtext/RunAttributes.h"
#include "richtext/VCPTextXMLEditor.h"
#include "xml/XmlValue.h"

#include <utility>

using std::string;
using namespace vantrel;

namespace {

constexpr int kSmallestFont = 8;
constexpr int kLargestFont = 128;

/// Gives a value that is there whether it counts or not.
template <class T>
Status GiveIf(bool counts, T* out, const T& value)
{
    const Status given = Give(out, value);
    return Failed(given) || counts ? given : status::kNothingDone;
}

} // namespace

Status CVCPTextPlugInHelper::LoadXML(_xmlNode* node)
{
    m_body = nullptr;
    const Status loaded = CVCPPlugInHelper::LoadXML(node);
    if (m_xml && !Failed(loaded))
        m_body = FindElementAt(m_xml, "plugin_data/html/body");
    const Status parsed = Refresh();
    return m_body ? parsed : status::kBadArgument;
}

Status CVCPTextPlugInHelper::SaveXML(_xmlNode** out) const
{
    return CVCPPlugInHelper::SaveXML(out);
}

Status CVCPTextPlugInHelper::ReleaseXML()
{
    m_body = nullptr;
    m_xml = nullptr;
    return status::kOk;
}

Status CVCPTextPlugInHelper::Parse()
{
    return LoadXMLNodeList2(m_body);
}

Status CVCPTextPlugInHelper::ReconcileAttributes()
{
    return m_attributes.Reconcile();
}

Status CVCPTextPlugInHelper::LoadXMLNodeList2(_xmlNode* body)
{
    return SummariseRuns(body, &m_attributes);
}

/// Brings the summary up to date; without a body there is none.
Status CVCPTextPlugInHelper::Refresh()
{
    m_isParsed = false;
    m_attributes.Init();
    const Status parsed = Parse();
    if (Failed(parsed))
        return parsed;
    m_isParsed = true;
    (void)ReconcileAttributes(); // can't fail
    return parsed;
}

template <class... Arguments>
Status CVCPTextPlugInHelper::Edit(Status (CVCPTextXMLEditor::*edit)(Arguments...),
                                  Arguments... arguments)
{
    CVCPTextXMLEditor editor(m_body, &m_attributes);
    const Status edited = (editor.*edit)(std::move(arguments)...);
    return Failed(edited) ? edited : Refresh();
}

Status CVCPTextPlugInHelper::GetTextString(string* out) const
{
    return m_attributes.m_text.empty() ? status::kNothingDone : Give(out, m_attributes.m_text);
}

Status CVCPTextPlugInHelper::PutTextString(string text, bool keep)
{
    return Edit(&CVCPTextXMLEditor::EditText, std::move(text), keep);
}

Status CVCPTextPlugInHelper::GetJustification(unsigned long* out) const
{
    const Status given = Give(out, TEXT_JUSTIFY_UNKNOWN);
    if (Failed(given))
        return given;
    return m_isParsed ? m_attributes.GetJustification(out) : status::kFailure;
}

Status CVCPTextPlugInHelper::SetJustification(unsigned long justification)
{
    if (justification == TEXT_JUSTIFY_MIXED || justification == TEXT_JUSTIFY_UNKNOWN)
        return status::kBadArgument;
    unsigned long present = TEXT_JUSTIFY_UNKNOWN;
    if (GetJustification(&present) == status::kOk && present == justification)
        return status::kOk;
    return Edit(&CVCPTextXMLEditor::EditJustification, justification);
}

Status CVCPTextPlugInHelper::GetFont(string* out) const
{
    return GiveIf(m_isParsed, out, m_attributes.m_face);
}

Status CVCPTextPlugInHelper::SetFont(string face)
{
    if (m_isParsed && face == m_attributes.m_face)
        return status::kOk;
    return Edit(&CVCPTextXMLEditor::EditFont, std::move(face));
}

Status CVCPTextPlugInHelper::GetFontSize(int* out) const
{
    return GiveIf(m_isParsed && m_attributes.m_fontHeight != 0, out, m_attributes.m_fontHeight);
}

Status CVCPTextPlugInHelper::SetFontSize(int size)
{
    if (size < kSmallestFont || size > kLargestFont)
        return status::kBadArgument;
    if (size == m_attributes.m_fontHeight)
        return status::kOk;
    return Edit(&CVCPTextXMLEditor::EditFontSize, size);
}

Status CVCPTextPlugInHelper::GetFontSizeString(string* out) const
{
    return Give(out, m_attributes.m_fontHeightString);
}

Status CVCPTextPlugInHelper::SetFontSizeString(string size)
{
    return Edit(&CVCPTextXMLEditor::EditFontSizeString, std::move(size));
}

Status CVCPTextPlugInHelper::GetTextColor(unsigned long* out) const
{
    return GiveIf(m_isParsed && m_attributes.m_hasTextColor, out, m_attributes.m_textColor);
}

Status CVCPTextPlugInHelper::SetTextColor(unsigned long color)
{
    if (m_attributes.m_hasTextColor && color == m_attributes.m_textColor)
        return status::kOk;
    if (!m_body)
        return status::kNotAvailable;
    return Edit(&CVCPTextXMLEditor::EditTextColor, color);
}

Status CVCPTextPlugInHelper::GetStyle(unsigned long* out) const
{
    return GiveIf(m_isParsed, out, m_attributes.m_style);
}

Status CVCPTextPlugInHelper::SetStyle(unsigned long style)
{
    if (style & (TEXT_STYLE_ITALIC_MIXED | TEXT_STYLE_BOLD_MIXED))
        return status::kBadArgument;
    constexpr unsigned long definite =
        TEXT_STYLE_ITALIC | TEXT_STYLE_NOT_ITALIC | TEXT_STYLE_BOLD | TEXT_STYLE_NOT_BOLD;
    if (style & m_attributes.m_style & definite)
        return status::kOk;
    return Edit(&CVCPTextXMLEditor::EditStyle, style);
}

Status CVCPTextPlugInHelper::GetFontBIU(bool& bold, bool& italic, bool& underline) const
{
    bold = m_attributes.m_isBold;
    italic = m_attributes.m_isItalic;
    underline = m_attributes.m_isUnderlined;
    return status::kOk;
}
