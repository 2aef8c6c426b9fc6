#pragma once

#include "core/Export.h"

#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <string>
#include <vector>

/// Views of a libxml2 node: a pointer to either class is the `_xmlNode*` under another type. They
/// have no data, are never constructed, and own nothing: what they hand out belongs to the document
/// and lives as long as it does. On a document read without options, the white space between two
/// elements is a text node of the name "text", which the walks see like any other.

/// Finds nodes by walking child names; knows no XPath.
class VANTREL_API IXMLDOMNode : public _xmlNode
{
public:
    IXMLDOMNode() = delete;

    /// Goes down a "/"-separated path of names, always to the first child of each name and never
    /// back. An empty path is this node, a trailing "/" is ignored, a leading one matches nothing.
    /// Null when a step matches nothing.
    _xmlNode* selectSingleNode(unsigned char* path);

    /// The first child of `element` with that name, or null.
    _xmlNode* selectNode(_xmlNode* element, std::string wanted);

    /// All children of `element` with that name, whatever their type, in document order.
    std::vector<_xmlNode*> selectChildrenNodesAsName(_xmlNode* element, std::string wanted);

    /// The children of this node with that name, or for "text()" all text below this node.
    std::vector<_xmlNode*> selectNodes(std::string wanted);

    /// The text nodes below this node, at any depth, in document order, without those that begin
    /// with a line feed: that is the indentation between elements.
    std::vector<_xmlNode*> selectAllTextNodes();

    /// The walk behind `selectAllTextNodes`. It enters elements only, so that entity references,
    /// which may form a ring, end it. Null gives an empty vector.
    std::vector<_xmlNode*> traverseTextNode(_xmlNode* node);

    /// `strcmp` of the two strings: 0 means equal.
    int Compare(const unsigned char* a, const unsigned char* b);
};

/// Finds nodes by an XPath expression relative to this element.
class VANTREL_API IXMLDOMElement : public _xmlNode
{
public:
    IXMLDOMElement() = delete;

    /// The first node that the expression selects, or null. A plain name is looked for among the
    /// child elements without a namespace, as XPath would, but in no more time than that takes.
    _xmlNode* selectSingleNode(unsigned char* expression);

    /// All nodes that the expression selects, or null when there are none. The set is the caller's,
    /// who releases it with `xmlXPathFreeNodeSet`; its nodes stay the document's.
    _xmlNodeSet* selectNodes(unsigned char* expression);

    /// The absolute expression for one that is relative to this element.
    std::string getNodeQueryString(unsigned char* expression);

    /// Evaluates an absolute expression on this node's document. The object is the caller's, who
    /// releases it with `xmlXPathFreeObject`. A failure is printed and gives null.
    _xmlXPathObject* getXPathObject(const unsigned char* query);
};

namespace vantrel {

inline IXMLDOMNode* AsNode(_xmlNode* node)
{
    return static_cast<IXMLDOMNode*>(node);
}

inline IXMLDOMElement* AsElement(_xmlNode* node)
{
    return static_cast<IXMLDOMElement*>(node);
}

} // namespace vantrel
