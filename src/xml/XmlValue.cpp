#include "xml/XmlValue.h"

#include "core/XmlText.h"

#include <libxml/entities.h>

#include <cstddef>
#include <cstring>

namespace vantrel {

namespace {

/// Puts the text of a node list together, with entity references resolved. Entities may refer to
/// each other, so a few of them can unfold without bound: depth and size are limited.
class TextUnfolder
{
public:
    explicit TextUnfolder(std::string& out) : m_out(out) {}

    void Add(const xmlNode* list, int depth = 0)
    {
        for (const xmlNode* node = list; node; node = node->next) {
            if (node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE)
                AddText(node->content);
            else if (node->type == XML_ENTITY_REF_NODE && depth < kDeepest && --m_references > 0)
                AddEntity(xmlGetDocEntity(node->doc, node->name), depth);
        }
    }

private:
    void AddEntity(const xmlEntity* entity, int depth)
    {
        if (!entity)
            return;
        if (entity->etype == XML_INTERNAL_PREDEFINED_ENTITY || !entity->children)
            AddText(entity->content);
        else
            Add(entity->children, depth + 1);
    }

    void AddText(const xmlChar* content)
    {
        if (!content)
            return;
        const std::string_view text = Chars(content);
        if (m_out.size() + text.size() <= kLongest)
            m_out.append(text);
    }

    static constexpr int kDeepest = 40;                 // as libxml2 itself bounds nesting
    static constexpr std::size_t kLongest = 10'000'000; // as libxml2 bounds a text node

    std::string& m_out;
    int m_references = 100'000;
};

} // namespace

xmlNode* NextElement(xmlNode* node)
{
    while (node && node->type != XML_ELEMENT_NODE)
        node = node->next;
    return node;
}

xmlNode* FindChildElement(const xmlNode* parent, std::string_view name)
{
    for (xmlNode* child : ChildElements(parent)) {
        if (IsNamed(child, name))
            return child;
    }
    return nullptr;
}

xmlNode* FindElementAt(xmlNode* parent, std::string_view path)
{
    while (parent && !path.empty()) {
        const std::size_t slash = path.find('/');
        parent = FindChildElement(parent, path.substr(0, slash));
        path = slash == std::string_view::npos ? std::string_view() : path.substr(slash + 1);
    }
    return parent;
}

const xmlAttr* FindAttribute(const xmlNode* element, std::string_view name)
{
    const xmlAttr* attribute = IsElement(element) ? element->properties : nullptr;
    while (attribute && (attribute->ns || Chars(attribute->name) != name))
        attribute = attribute->next;
    return attribute;
}

std::string_view ResolvedText(const xmlNode* list, std::string& store)
{
    if (!list)
        return "";
    if (!list->next && list->type == XML_TEXT_NODE)
        return list->content ? Chars(list->content) : "";
    store.clear();
    TextUnfolder(store).Add(list);
    return store;
}

XmlNodePtr NewText(xmlDoc* doc, const char* text)
{
    // In this form a text lies over two fields that only elements use.
    constexpr std::size_t room = sizeof(xmlNode::properties) + sizeof(xmlNode::psvi);
    const std::size_t size = std::strlen(text) + 1;
    XmlNodePtr node{ xmlNewDocText(doc, size > room ? XmlChars(text) : nullptr) };
    if (node && size <= room) {
        auto* within = reinterpret_cast<xmlChar*>(node.get()) + offsetof(xmlNode, properties);
        std::memcpy(within, text, size);
        node->content = within;
    }
    return node;
}

Status AddAttribute(xmlNode* element, const char* name, const std::string& value)
{
    if (!element)
        return status::kNullPointer;
    std::string mended;
    XmlNodePtr text = NewText(element->doc, XmlText(value, mended));
    // Given the text, libxml2 would check its bytes once more and copy them.
    xmlAttr* attribute = text ? xmlNewProp(element, XmlChars(name), nullptr) : nullptr;
    if (!attribute)
        return status::kNullPointer;
    text->parent = reinterpret_cast<xmlNode*>(attribute);
    attribute->children = attribute->last = text.release();
    return status::kOk;
}

} // namespace vantrel
