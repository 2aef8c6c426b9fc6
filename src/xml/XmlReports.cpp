#include "xml/XmlReports.h"

#include <libxml/globals.h>

#include <new>
#include <string>
#include <string_view>

namespace vantrel {

namespace {

std::string_view Words(const xmlError& error)
{
    const std::string_view words = error.message ? error.message : "";
    return words.substr(0, words.find_last_not_of('\n') + 1);
}

/// As libxml2 prints it, without the piece of the file.
std::string TextOf(const xmlError& error)
{
    std::string text;
    if (error.file)
        text = std::string(error.file) + ':' + std::to_string(error.line) + ": ";
    text += error.level == XML_ERR_WARNING ? "warning : " : "error : ";
    return text.append(Words(error)) + '\n';
}

} // namespace

XmlReports::XmlReports() : m_route(MessageRoute::Current())
{
    if (m_route.IsDefault())
        return;
    m_outer = xmlStructuredError;
    m_outerContext = xmlStructuredErrorContext;
    xmlSetStructuredErrorFunc(this, &XmlReports::Pass);
}

XmlReports::~XmlReports()
{
    if (!m_route.IsDefault())
        xmlSetStructuredErrorFunc(m_outerContext, m_outer);
}

void XmlReports::Pass(void* self, xmlError* error) noexcept
{
    try {
        const std::string text = TextOf(*error);
        Message message;
        message.text = text;
        message.words = Words(*error);
        message.path = error->file ? error->file : "";
        message.line = error->line;
        message.column = error->domain == XML_FROM_PARSER ? error->int2 : 0;
        message.toStandardError = true;
        static_cast<const XmlReports*>(self)->m_route.Send(message);
    } catch (const std::bad_alloc&) {
        return; // the status tells of the failure itself
    }
}

} // namespace vantrel
