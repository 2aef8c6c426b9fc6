#include "PlainTree.h"

#include <memory>

namespace bench {

namespace {

std::string NameInFile(const xmlAttr& attribute)
{
    const char* name = reinterpret_cast<const char*>(attribute.name);
    const char* prefix =
        attribute.ns ? reinterpret_cast<const char*>(attribute.ns->prefix) : nullptr;
    return prefix ? std::string(prefix) + ":" + name : name;
}

/// An empty string has a text too, though nothing of it shows after parsing but its type.
bool IsStringType(const xmlAttr& attribute, const xmlChar* value)
{
    return attribute.ns && xmlStrEqual(value, BAD_CAST "string");
}

} // namespace

PlainTree::PlainTree(const xmlDoc* doc)
{
    if (const xmlNode* root = xmlDocGetRootElement(doc))
        TakeElement(root);
}

xmlDoc* PlainTree::Build() const
{
    xmlDoc* doc = xmlNewDoc(BAD_CAST "1.0");
    xmlNode* current = nullptr;
    for (const Step& step : m_steps) {
        switch (step.kind) {
        case kOpen: {
            xmlNode* element = xmlNewNode(nullptr, TextAt(step.name));
            if (current)
                xmlAddChild(current, element);
            else
                xmlDocSetRootElement(doc, element);
            current = element;
            break;
        }
        case kAttribute:
            xmlNewProp(current, TextAt(step.name), TextAt(step.value));
            break;
        case kText:
            xmlAddChild(current, xmlNewText(TextAt(step.value)));
            break;
        case kComment:
            xmlAddChild(current, xmlNewComment(TextAt(step.value)));
            break;
        case kClose:
            current = current->parent;
            break;
        }
    }
    return doc;
}

void PlainTree::TakeElement(const xmlNode* element)
{
    Add(kOpen, element->name, nullptr);
    for (const xmlNs* ns = element->nsDef; ns; ns = ns->next)
        Add(kAttribute, BAD_CAST "xmlns:dt", ns->href);
    for (xmlAttr* attribute = element->properties; attribute; attribute = attribute->next) {
        const std::unique_ptr<xmlChar, void (*)(void*)> value(
            xmlNodeListGetString(attribute->doc, attribute->children, 1), xmlFree);
        Add(kAttribute, BAD_CAST NameInFile(*attribute).c_str(), value.get());
        if (!element->children && IsStringType(*attribute, value.get()))
            Add(kText, nullptr, BAD_CAST "");
    }
    for (const xmlNode* child = element->children; child; child = child->next)
        TakeChild(child);
    Add(kClose, nullptr, nullptr);
}

void PlainTree::TakeChild(const xmlNode* child)
{
    const bool isRichText = xmlStrEqual(child->parent->name, BAD_CAST "html"); // blanks count there
    if (child->type == XML_ELEMENT_NODE)
        TakeElement(child);
    else if (child->type == XML_COMMENT_NODE)
        Add(kComment, nullptr, child->content);
    else if (child->type == XML_TEXT_NODE && (isRichText || !xmlIsBlankNode(child)))
        Add(kText, nullptr, child->content);
}

void PlainTree::Add(Kind kind, const xmlChar* name, const xmlChar* value)
{
    m_steps.push_back({ kind, Keep(name), Keep(value) });
}

std::size_t PlainTree::Keep(const xmlChar* text)
{
    const std::size_t position = m_texts.size();
    if (text)
        m_texts.append(reinterpret_cast<const char*>(text));
    m_texts += '\0';
    return position;
}

const xmlChar* PlainTree::TextAt(std::size_t position) const
{
    return reinterpret_cast<const xmlChar*>(m_texts.data() + position);
}

} // namespace bench
