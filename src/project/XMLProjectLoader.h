#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/DsXml.h"

#include <string>

class CProjectNode;

/// Builds or fills a tree of nodes from a tree of elements.
///
/// The tree isn't cleared first: repeating elements add to what is there.
class VANTREL_API CDSXMLDataLoader
{
public:
    /// `root` stands for the "Project" element, wherever the document has it. Not owned.
    explicit CDSXMLDataLoader(CProjectNode* root);
    virtual ~CDSXMLDataLoader() = default;

    /// Reads `element` and all below it, but for its child "Productions", which holds nothing of the
    /// tree. Gives 0, whatever the elements held.
    virtual vantrel::Status LoadProject(IXMLDOMNode* element);

    /// Reads one element and what lies below it. Only elements make nodes or are walked into. Null,
    /// or a node that can't be read, gives 1.
    vantrel::Status Traverse(IXMLDOMNode* element, CProjectNode* parent);

    /// The node for an element of that name below `parent`: the root, a child that the parent has, or
    /// a new one, which the parent then owns. A new node without a parent is the caller's. Null when
    /// the name stands for no node here.
    CProjectNode* GetProjectNode(std::string element, CProjectNode* parent);

private:
    vantrel::Status Walk(IXMLDOMNode* element, CProjectNode* parent, const char* passedOver);

    CProjectNode* m_pRoot;
};
