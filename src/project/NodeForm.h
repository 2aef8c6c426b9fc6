#pragma once

#include "project/AttributeTable.h"
#include "project/ProjectNode.h"

#include <typeinfo>

namespace vantrel {

/// The file form of one class of nodes, as the base class uses it.
struct NodeForm
{
    /// True when the object is of this very class, so that no override is passed over.
    bool (*isExactly)(const CProjectNode& node);
    Status (*read)(CProjectNode& node, const _xmlNode* element);
    Status (*write)(const CProjectNode& node, _xmlNode* element, bool native);
};

/// The form that an attribute table gives.
template <class Node, AttributeTable<Node> (*Table)()>
inline constexpr NodeForm kFormOf{
    [](const CProjectNode& node) { return typeid(node) == typeid(Node); },
    [](CProjectNode& node, const _xmlNode* element) {
        Table().Read(static_cast<Node&>(node), element);
        return status::kOk;
    },
    [](const CProjectNode& node, _xmlNode* element, bool native) {
        return Table().Write(static_cast<const Node&>(node), native, element);
    },
};

} // namespace vantrel
