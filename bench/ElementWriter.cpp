#include "ElementWriter.h"

#include <cstdio>

using std::string;

namespace bench {

namespace {

void AppendEscaped(string& out, std::string_view text, const char* quote)
{
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += quote;
            break;
        default:
            out += c;
        }
    }
}

} // namespace

string Escaped(std::string_view text)
{
    string out;
    AppendEscaped(out, text, "\"");
    return out;
}

string NumberText(double number)
{
    char text[32];
    std::snprintf(text, sizeof text, "%g", number);
    return text;
}

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
    AppendEscaped(m_text, text, "&quot;");
    m_text += '"';
}

void ElementWriter::Value(const char* name, const char* type, std::string_view text)
{
    EndStartTag();
    Indent();
    m_text.append("<").append(name).append(" dt:dt=\"").append(type).append("\">");
    AppendEscaped(m_text, text, "\"");
    m_text.append("</").append(name).append(">\n");
}

void ElementWriter::Value(const char* name, const char* type, double number)
{
    Value(name, type, NumberText(number));
}

void ElementWriter::Line(std::string_view text)
{
    EndStartTag();
    Indent();
    m_text.append(text).append("\n");
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
