#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xpath.h>

#include <memory>

namespace vantrel {

/// Releases what libxml2 hands out, each kind by its own function.
struct XmlRelease
{
    void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
    void operator()(xmlNode* node) const { xmlFreeNode(node); }
    void operator()(xmlNs* ns) const { xmlFreeNs(ns); }
    void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
    void operator()(xmlNodeSet* nodes) const { xmlXPathFreeNodeSet(nodes); }
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
    void operator()(xmlChar* text) const { xmlFree(text); }
};

using XmlDocPtr = std::unique_ptr<xmlDoc, XmlRelease>;
/// A node that stands in no tree; with its subtree. A node in a tree belongs to its document.
using XmlNodePtr = std::unique_ptr<xmlNode, XmlRelease>;
/// A namespace that no element declares.
using XmlNsPtr = std::unique_ptr<xmlNs, XmlRelease>;
using XmlContextPtr = std::unique_ptr<xmlXPathContext, XmlRelease>;
using XmlObjectPtr = std::unique_ptr<xmlXPathObject, XmlRelease>;
using XmlNodeSetPtr = std::unique_ptr<xmlNodeSet, XmlRelease>;
using XmlParserPtr = std::unique_ptr<xmlParserCtxt, XmlRelease>;
using XmlTextPtr = std::unique_ptr<xmlChar, XmlRelease>;

} // namespace vantrel
