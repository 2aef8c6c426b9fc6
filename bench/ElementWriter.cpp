#include "ElementWriter.h"

namespace bench {

void ElementWriter::Open(const char* name)
{
    EndStartTag();
    Indent();
    m_text.append("<").append(name);
    m_open.push_back(name);
    m_inStartTag = true;
}

void ElementWriter::Attribute(const char* name, std::string_view text)
{
    m_text.append(" ").append(name).append("=\"");
    for (const char c : text) {
        switch (c) {
        case '&':
            m_text += "&amp;";
            break;
        case '<':
            m_text += "&lt;";
            break;
        case '>':
            m_text += "&gt;";
            break;
        case '"':
            m_text += "&quot;";
            break;
        default:
            m_text += c;
        }
    }
    m_text += '"';
}

void ElementWriter::Close()
{
    const char* name = m_open.back();
    m_open.pop_back();
    if (m_inStartTag) {
        m_text += "/>\n";
        m_inStartTag = false;
        return;
    }
    Indent();
    m_text.append("</").append(name).append(">\n");
}

void ElementWriter::Content(const ElementWriter& elements)
{
    if (elements.m_text.empty())
        return;
    EndStartTag();
    m_text += elements.m_text;
}

void ElementWriter::EndStartTag()
{
    if (m_inStartTag)
        m_text += ">\n";
    m_inStartTag = false;
}

void ElementWriter::Indent()
{
    m_text.append(2 * Depth(), ' ');
}

} // namespace bench
