#include "xml/DsXml.h"

#include "core/Report.h"
#include "xml/XmlPtr.h"
#include "xml/XmlReports.h"
#include "xml/XmlValue.h"

#include <libxml/xpathInternals.h>

#include <cstring>
#include <utility>

using std::string;
using std::string_view;
using std::vector;
using namespace vantrel;

static_assert(sizeof(IXMLDOMNode) == sizeof(_xmlNode));
static_assert(sizeof(IXMLDOMElement) == sizeof(_xmlNode));

namespace {

/// The children of a node, of any type. Nodes of other kinds than these have none to walk: an entity
/// reference leads out of the tree, and some kinds hold other things in that place.
xmlNode* Children(const xmlNode* parent)
{
    const bool hasChildren =
        parent && (parent->type == XML_ELEMENT_NODE || parent->type == XML_DOCUMENT_NODE ||
                   parent->type == XML_DOCUMENT_FRAG_NODE);
    return hasChildren ? parent->children : nullptr;
}

xmlNode* FirstNamed(const xmlNode* parent, string_view name)
{
    for (xmlNode* child = Children(parent); child; child = child->next) {
        if (NameOf(child) == name)
            return child;
    }
    return nullptr;
}

void CollectTexts(const xmlNode* node, vector<_xmlNode*>& texts)
{
    for (xmlNode* child = Children(node); child; child = child->next) {
        if (child->type != XML_TEXT_NODE)
            CollectTexts(child, texts);
        else if (!child->content || child->content[0] != '\n')
            texts.push_back(child);
    }
}

bool IsPlainName(const xmlChar* expression)
{
    return expression && xmlValidateNCName(expression, 0) == 0;
}

XmlObjectPtr Evaluate(IXMLDOMElement& element, unsigned char* expression)
{
    const string query = element.getNodeQueryString(expression);
    XmlObjectPtr result{ element.getXPathObject(XmlChars(query.c_str())) };
    if (!result || xmlXPathNodeSetIsEmpty(result->nodesetval))
        return nullptr;
    return result;
}

} // namespace

_xmlNode* IXMLDOMNode::selectSingleNode(unsigned char* path)
{
    _xmlNode* current = this;
    string_view remaining = path ? Chars(path) : "";
    while (current && !remaining.empty()) {
        const std::size_t slash = remaining.find('/');
        current = FirstNamed(current, remaining.substr(0, slash));
        remaining = slash == string_view::npos ? string_view() : remaining.substr(slash + 1);
    }
    return current;
}

_xmlNode* IXMLDOMNode::selectNode(_xmlNode* element, string wanted)
{
    return FirstNamed(element, wanted);
}

vector<_xmlNode*> IXMLDOMNode::selectChildrenNodesAsName(_xmlNode* element, string wanted)
{
    vector<_xmlNode*> found;
    for (xmlNode* child = Children(element); child; child = child->next) {
        if (NameOf(child) == wanted)
            found.push_back(child);
    }
    return found;
}

vector<_xmlNode*> IXMLDOMNode::selectNodes(string wanted)
{
    if (wanted == "text()")
        return selectAllTextNodes();
    return selectChildrenNodesAsName(this, std::move(wanted));
}

vector<_xmlNode*> IXMLDOMNode::selectAllTextNodes()
{
    return traverseTextNode(this);
}

vector<_xmlNode*> IXMLDOMNode::traverseTextNode(_xmlNode* node)
{
    vector<_xmlNode*> texts;
    CollectTexts(node, texts);
    return texts;
}

int IXMLDOMNode::Compare(const unsigned char* a, const unsigned char* b)
{
    return std::strcmp(Chars(a), Chars(b));
}

_xmlNode* IXMLDOMElement::selectSingleNode(unsigned char* expression)
{
    if (IsElement(this) && IsPlainName(expression))
        return FindChildElement(this, Chars(expression));
    const XmlObjectPtr result = Evaluate(*this, expression);
    xmlNode* const first = result ? result->nodesetval->nodeTab[0] : nullptr;
    return first && first->type == XML_NAMESPACE_DECL ? nullptr : first; // one goes with the result
}

_xmlNodeSet* IXMLDOMElement::selectNodes(unsigned char* expression)
{
    if (!IsElement(this) || !IsPlainName(expression)) {
        const XmlObjectPtr result = Evaluate(*this, expression);
        return result ? std::exchange(result->nodesetval, nullptr) : nullptr;
    }

    XmlNodeSetPtr found;
    for (xmlNode* child : ChildElements(this)) {
        if (!IsNamed(child, Chars(expression)))
            continue;
        if (!found)
            found.reset(xmlXPathNodeSetCreate(nullptr));
        if (!found || xmlXPathNodeSetAddUnique(found.get(), child) != 0)
            return nullptr;
    }
    return found.release();
}

string IXMLDOMElement::getNodeQueryString(unsigned char* expression)
{
    const XmlTextPtr path{ xmlGetNodePath(this) };
    string query = path ? Chars(path.get()) : "";
    query += '/';
    query += expression ? Chars(expression) : "";
    return query;
}

_xmlXPathObject* IXMLDOMElement::getXPathObject(const unsigned char* query)
{
    const XmlReports reports;
    const XmlContextPtr context{ xmlXPathNewContext(doc) };
    if (!context) {
        Report("getXPathObject: context is NULL\n");
        return nullptr;
    }
    XmlObjectPtr result{ xmlXPathEvalExpression(query, context.get()) };
    if (!result) {
        Report("getXPathObject: expression result is NULL\n");
        return nullptr;
    }
    return result.release();
}
