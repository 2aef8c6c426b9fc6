#pragma once

#include "core/Status.h"
#include "xml/XmlPtr.h"

#include <libxml/tree.h>
#include <libxml/valid.h>

#include <string>
#include <string_view>

/// Names, texts and children of XML nodes, for the code inside the library.
namespace vantrel {

/// What the prefix "dt" of typed elements stands for; the root of every project file declares it.
inline constexpr const char* kDataTypesUri = "urn:schemas-microsoft-com:datatypes";

inline const xmlChar* XmlChars(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

inline const char* Chars(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

/// True for what XML allows as the name of an element or attribute.
inline bool IsName(const char* text)
{
    return xmlValidateName(XmlChars(text), 0) == 0;
}

/// A node's own name without prefix; empty for null.
inline std::string_view NameOf(const xmlNode* node)
{
    return node && node->name ? std::string_view(Chars(node->name)) : std::string_view();
}

inline bool IsElement(const xmlNode* node)
{
    return node && node->type == XML_ELEMENT_NODE;
}

/// True for an element of that name in no namespace: what the name test of a path takes. All code
/// that looks for elements of a project file asks this, so that foreign content is never mistaken.
inline bool IsNamed(const xmlNode* node, std::string_view name)
{
    return IsElement(node) && !node->ns && NameOf(node) == name;
}

/// `node` or the first of its later siblings that is an element, or null.
xmlNode* NextElement(xmlNode* node);

/// The child elements of a node, in order: `for (xmlNode* child : ChildElements(node))`. What is
/// found may be unlinked only after the walk has gone on.
class ChildElements
{
public:
    explicit ChildElements(const xmlNode* parent)
        : m_first(IsElement(parent) ? NextElement(parent->children) : nullptr)
    {}

    class Iterator
    {
    public:
        explicit Iterator(xmlNode* node) : m_node(node) {}
        xmlNode* operator*() const { return m_node; }
        Iterator& operator++()
        {
            m_node = NextElement(m_node->next);
            return *this;
        }
        bool operator!=(const Iterator& other) const { return m_node != other.m_node; }

    private:
        xmlNode* m_node;
    };

    Iterator begin() const { return Iterator(m_first); }
    Iterator end() const { return Iterator(nullptr); }

private:
    xmlNode* m_first;
};

/// The first child element of that name without a namespace, or null.
xmlNode* FindChildElement(const xmlNode* parent, std::string_view name);

/// The element at the "/"-separated `path` below `parent`, always the first of each name; with an
/// empty path `parent` itself. Null when there is none.
xmlNode* FindElementAt(xmlNode* parent, std::string_view path);

/// The attribute of that name without a namespace, or null.
const xmlAttr* FindAttribute(const xmlNode* element, std::string_view name);

/// The text of a list of text and entity reference nodes, as it stands under an attribute, with the
/// references resolved. The view is into the document, or into `store` when the text had to be put
/// together. References that would unfold into more than a document may hold are left out.
std::string_view ResolvedText(const xmlNode* list, std::string& store);

/// A text node of `doc`, for a text that is fit for a file. A short one lies within its node, as it
/// does when libxml2 parses compactly, which saves an allocation for most values. Null without
/// memory.
XmlNodePtr NewText(xmlDoc* doc, const char* text);

/// Adds an attribute that `element` doesn't have yet, its value made fit for a file. An `element`
/// that may have it already wants `xmlSetProp`. Gives `status::kNullPointer` when that fails.
vantrel::Status AddAttribute(xmlNode* element, const char* name, const std::string& value);

} // namespace vantrel
