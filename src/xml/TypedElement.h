#pragma once

#include "core/Status.h"
#include "xml/XmlValue.h"

#include <libxml/tree.h>

#include <string>
#include <string_view>

/// Typed elements: a value as the text of an element whose "dt:dt" names the value's type. The
/// inside of `XMLHelpers<void>` and of the member tables.
namespace vantrel {

/// Adds an element without namespace as the last child of `parent`. Null when `parent` is null,
/// `name` empty, or memory fails.
xmlNode* AddElement(xmlNode* parent, const char* name);

/// The same with `text` as the value of a typed element: "Name" when `name` isn't empty, "dt:dt"
/// and, made fit for a file, the text. An empty `type` makes a bare container, without any text.
xmlNode* AddTypedElement(xmlNode* parent, const char* element, std::string_view name,
                         const char* type, const std::string& text);

/// The element at the "/"-separated `path` below `parent`, always the first of each name; with a
/// `name` the first that bears it as "Name". Null when there is none.
xmlNode* FindTypedElement(xmlNode* parent, std::string_view path, std::string_view name);

/// An element's value: all text that stands right in it, CDATA sections and entities included, with
/// comments and whatever else passed over. A view into the document, or of its own when the text had
/// to be put together: valid while this lives.
class ElementText
{
public:
    explicit ElementText(const xmlNode* element)
        : m_view(ResolvedText(IsElement(element) ? element->children : nullptr, m_store))
    {}
    ElementText(const ElementText&) = delete;
    ElementText& operator=(const ElementText&) = delete;

    operator std::string_view() const { return m_view; }

private:
    std::string m_store;
    std::string_view m_view;
};

/// The attribute of that name without namespace; empty when it is missing. The view is into the
/// document, or into `store` when the text had to be put together.
std::string_view AttributeText(const xmlNode* element, std::string_view name, std::string& store);

/// Adds an element with the value in the form of its kind, one of `vantrel::typed`.
template <class Kind>
xmlNode* AddValue(xmlNode* parent, const char* element, const typename Kind::Value& value,
                  std::string_view name = {})
{
    std::string text;
    Kind::Append(text, value);
    return AddTypedElement(parent, element, name, Kind::kType, text);
}

} // namespace vantrel
