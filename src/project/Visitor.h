#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/DsXml.h"

#include <cstdint>

class CProjectNode;

/// The base of what walks over a tree of nodes.
class VANTREL_API CVisitor
{
public:
    virtual ~CVisitor() = default;

    /// Visits `node`, then its children in order, whatever they return. `arg` goes to every visit in
    /// the place of the XML node. Gives 0.
    virtual vantrel::Status Traverse(CProjectNode* node, long arg);

    /// What happens at each node.
    virtual vantrel::Status Visit(CProjectNode* node, IXMLDOMNode* element, long native) = 0;

protected:
    std::int32_t m_depth = 0; ///< how many nodes the walk is inside of
};
