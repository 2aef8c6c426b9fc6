#include "project/FormedNode.h"

#include "core/Property.h"
#include "project/NodeForm.h"
#include "xml/XmlValue.h"

#include <algorithm>

using std::map;
using std::string;

namespace vantrel {

FormedNode::FormedNode(eNodeType type, const NodeForm& form) : CProjectNode(type), m_form(&form)
{}

Status FormedNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    return Guarded([&] {
        m_form->fill(*this, attributes, native);
        return status::kOk;
    });
}

Status FormedNode::ParseAttributeMap(const map<string, string>& attributes)
{
    return Guarded([&] {
        m_form->parse(*this, attributes);
        return status::kOk;
    });
}

Status FormedNode::ReadXML(IXMLDOMNode* node)
{
    return Guarded([&] {
        if (!node || !m_form->isExactly(*this))
            return CProjectNode::ReadXML(node);
        KeepDocumentPath(node->doc);
        if (!IsElement(node) || !node->properties)
            return status::kNothingDone;
        m_form->read(*this, node);
        return status::kOk;
    });
}

Status FormedNode::WriteXML(IXMLDOMNode* node, long native)
{
    return Guarded([&] {
        const bool isFresh = node && IsElement(node) && !node->properties;
        return isFresh && m_form->isExactly(*this) ? m_form->write(*this, node, native != 0)
                                                   : CProjectNode::WriteXML(node, native);
    });
}

bool FormedNode::HasFixedChild(eNodeType type) const
{
    return std::ranges::any_of(m_form->children,
                               [type](const FixedChild& child) { return child.type == type; });
}

Status FormedNode::MakeFixedChildren(bool assignIDs)
{
    return Guarded([&] {
        int position = 0;
        for (const FixedChild& child : m_form->children) {
            if (!FindChildByType(child.type, child.element)) {
                AdoptChild(child.make(child), assignIDs);
                (void)MoveChild(GetNumChildren() - 1, position); // the last at the worst
            }
            ++position;
        }
        return status::kOk;
    });
}

} // namespace vantrel
