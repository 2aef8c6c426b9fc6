#pragma once

#include "project/ProjectNode.h"

namespace vantrel {

struct NodeForm;

/// The base of the library's own nodes: what their attributes and fixed children are stands in one
/// table a class, and here is, once, what runs it.
///
/// A class derived from one of them by an application goes through the map of attributes, so that its
/// overrides of `FillAttributeMap` and `ParseAttributeMap` count. An application's node of a kind of its
/// own derives from `CProjectNode` and fills and parses the map itself.
class VANTREL_API FormedNode : public CProjectNode
{
public:
    Status FillAttributeMap(std::map<std::string, std::string>& attributes, bool native) override;
    Status ParseAttributeMap(const std::map<std::string, std::string>& attributes) override;
    Status ReadXML(IXMLDOMNode* node) override;
    Status WriteXML(IXMLDOMNode* node, long native) override;

    /// True when the class has a fixed child of that type, there or not.
    bool HasFixedChild(eNodeType type) const;

    /// Makes those of the class's fixed children that aren't there, each at its own position, and owns
    /// them. Gives `status::kNoMemory` when one could not be made; those before it stay.
    Status MakeFixedChildren(bool assignIDs);

protected:
    FormedNode(eNodeType type, const NodeForm& form);

private:
    const NodeForm* m_form; ///< its class's
};

} // namespace vantrel
