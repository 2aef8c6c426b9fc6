#include "core/XmlText.h"
#include "richtext/RichTextTree.h"
#include "richtext/VCPTextXMLEditor.h"
#include "xml/XmlPtr.h"

#include <libxml/valid.h>

using std::map;
using std::string;
using namespace vantrel;

// The editor's steps on single nodes.

namespace {

Status SetAttribute(xmlNode* node, const string& name, const string& value)
{
    string store;
    string mended;
    const char* text = XmlText(value, mended);
    const xmlAttr* old = FindAttribute(node, name);
    if (old && ResolvedText(old->children, store) == text)
        return status::kOk;
    return xmlSetProp(node, XmlChars(name.c_str()), XmlChars(text)) ? status::kOk
                                                                    : status::kNullPointer;
}

} // namespace

bool CVCPTextXMLEditor::TestOnlyChildNodeOfOpType(_xmlNode*& node, long* found)
{
    xmlNode* first = nullptr;
    int others = 0;
    for (xmlNode* child : ChildElements(node)) {
        if (TagOf(child) == m_tagName && !first)
            first = child;
        else
            ++others;
    }
    if (found)
        *found = reinterpret_cast<long>(first);
    return first && others == 0;
}

Status CVCPTextXMLEditor::InsertNode(_xmlNode* parent, string name, map<string, string>& attributes,
                                     bool before, _xmlNode*& node, _xmlNode** out)
{
    if (!IsElement(parent) || (node && node->parent != parent) ||
        xmlValidateNCName(XmlChars(name.c_str()), 0) != 0 || !FitsFile(attributes))
        return status::kBadArgument;
    XmlNodePtr made{ xmlNewDocNode(parent->doc, nullptr, XmlChars(name.c_str()), nullptr) };
    if (!made)
        return status::kNullPointer;
    xmlNode* element = made.get();
    const Status set = SetItemAttributes(element, attributes);
    if (Failed(set))
        return set;
    if (!node)
        xmlAddChild(parent, made.release());
    else if (before)
        xmlAddPrevSibling(node, made.release());
    else
        xmlAddNextSibling(node, made.release());
    if (out)
        *out = element;
    return status::kOk;
}

Status CVCPTextXMLEditor::DeleteNode(_xmlNode*& node)
{
    const xmlNode* ancestor = IsElement(node) ? node->parent : nullptr;
    while (ancestor && ancestor != m_body)
        ancestor = ancestor->parent;
    if (!ancestor)
        return status::kBadArgument;
    Unwrap(node);
    SettleTexts(m_body);
    node = nullptr;
    return status::kOk;
}

Status CVCPTextXMLEditor::SetItemAttributes(_xmlNode*& node, map<string, string>& attributes)
{
    return attributes.empty() ? status::kOk : XMLSaveAttributes(node, attributes);
}

Status CVCPTextXMLEditor::XMLSaveAttributes(_xmlNode* node, map<string, string>& attributes)
{
    if (!IsElement(node) || !FitsFile(attributes))
        return status::kBadArgument;
    for (const auto& [name, value] : attributes) {
        if (value == kRemoveAttribute) {
            (void)xmlUnsetProp(node, XmlChars(name.c_str())); // it need not be there
            continue;
        }
        const Status set = SetAttribute(node, name, value);
        if (Failed(set))
            return set;
    }
    return status::kOk;
}
