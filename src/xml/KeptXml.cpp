#include "xml/KeptXml.h"

#include "core/XmlText.h"
#include "xml/XmlValue.h"

#include <set>
#include <string>

using std::string;

namespace vantrel {

namespace {

/// Copies a subtree with plain names, and notes which prefixes it uses without declaring them.
class PlainCopier
{
public:
    XmlNodePtr Copy(const xmlNode* node)
    {
        if (!IsElement(node))
            return CopyLeaf(node);
        XmlNodePtr copy = CopyElement(node);
        if (copy)
            DeclareUsed(copy.get());
        return copy;
    }

private:
    XmlNodePtr CopyElement(const xmlNode* element)
    {
        XmlNodePtr copy{ xmlNewNode(nullptr, XmlChars(PlainName(element->name, element->ns))) };
        if (!copy)
            return nullptr;
        for (const xmlNs* ns = element->nsDef; ns; ns = ns->next)
            AddDeclaration(copy.get(), ns);
        for (const xmlAttr* attribute = element->properties; attribute;
             attribute = attribute->next) {
            const string value{ ResolvedText(attribute->children, m_store) };
            (void)AddAttribute(copy.get(), PlainName(attribute->name, attribute->ns), value);
        }
        for (const xmlNode* child = element->children; child; child = child->next) {
            XmlNodePtr childCopy = IsElement(child) ? CopyElement(child) : CopyLeaf(child);
            if (childCopy)
                xmlAddChild(copy.get(), childCopy.release()); // merges adjacent texts
        }
        return copy;
    }

    XmlNodePtr CopyLeaf(const xmlNode* node)
    {
        if (!node)
            return nullptr;
        switch (node->type) {
        case XML_TEXT_NODE:
            return XmlNodePtr{ xmlNewText(node->content) };
        case XML_CDATA_SECTION_NODE:
        case XML_COMMENT_NODE:
        case XML_PI_NODE:
            return XmlNodePtr{ xmlCopyNode(const_cast<xmlNode*>(node), 0) };
        case XML_ENTITY_REF_NODE: {
            xmlNode alone = *node;
            alone.next = nullptr;
            const string text{ ResolvedText(&alone, m_store) };
            return XmlNodePtr{ text.empty() ? nullptr : xmlNewText(XmlChars(text.c_str())) };
        }
        default:
            return nullptr;
        }
    }

    /// The name as it stands in a file; the view is good until the next call.
    const char* PlainName(const xmlChar* name, xmlNs* ns)
    {
        if (!ns)
            return Chars(name);
        m_used.insert(ns);
        if (!ns->prefix)
            return Chars(name);
        m_name = Chars(ns->prefix);
        m_name += ':';
        m_name += Chars(name);
        return m_name.c_str();
    }

    void AddDeclaration(xmlNode* element, const xmlNs* ns)
    {
        const std::string_view uri = ns->href ? Chars(ns->href) : "";
        m_declared.insert(ns);
        if (uri == kDataTypesUri && ns->prefix && std::string_view(Chars(ns->prefix)) == "dt")
            return; // the root of every file declares it
        string name = "xmlns";
        if (ns->prefix)
            name.append(":").append(Chars(ns->prefix));
        if (!xmlHasProp(element, XmlChars(name.c_str())))
            (void)AddAttribute(element, name.c_str(), string(uri));
    }

    void DeclareUsed(xmlNode* top)
    {
        for (const xmlNs* ns : m_used) {
            const bool builtIn = ns->prefix && std::string_view(Chars(ns->prefix)) == "xml";
            if (!builtIn && !m_declared.contains(ns))
                AddDeclaration(top, ns);
        }
    }

    std::set<const xmlNs*> m_used;
    std::set<const xmlNs*> m_declared;
    string m_name;
    string m_store;
};

} // namespace

XmlNodePtr CopyXml(const xmlNode* node)
{
    return PlainCopier().Copy(node);
}

Status AppendXmlCopy(xmlNode* parent, const xmlNode* kept)
{
    XmlNodePtr copy{ xmlDocCopyNode(const_cast<xmlNode*>(kept), parent ? parent->doc : nullptr,
                                    1) };
    if (!parent || !copy)
        return status::kNullPointer;
    if (!xmlAddChild(parent, copy.get()))
        return status::kFailure;
    (void)copy.release(); // the tree's from here on
    return status::kOk;
}

} // namespace vantrel
