#pragma once

#include "project/Visitor.h"

/// Writes a tree of nodes as a tree of elements, one element a node.
class VANTREL_API CXMLPersistor : public CVisitor
{
public:
    /// Without a position: every walk fails.
    CXMLPersistor() = default;

    /// Writes under `parent`, which must belong to a document.
    explicit CXMLPersistor(IXMLDOMNode* parent);

    /// Writes `node` and all below it as the last child of the present position, which is the same
    /// afterwards. `native` goes to every node. A null node or position, or a node of no row and no
    /// name, gives `status::kNullPointer`. The first failure ends the walk and is returned; what was
    /// written before it stays.
    vantrel::Status Traverse(CProjectNode* node, long native) override;

    /// Puts the node's attributes on `element` and hangs that under the position, which moves to it.
    vantrel::Status Visit(CProjectNode* node, IXMLDOMNode* element, long native) override;

private:
    vantrel::Status WriteChildren(CProjectNode& node, long native);

    IXMLDOMNode* m_pCurrent = nullptr; ///< the document's
    _xmlDoc* m_pDoc = nullptr;         ///< the caller's
};
