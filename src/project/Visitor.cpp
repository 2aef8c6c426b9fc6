#include "project/Visitor.h"

#include "project/ProjectNode.h"

using namespace vantrel;

Status CVisitor::Traverse(CProjectNode* node, long arg)
{
    ++m_depth;
    (void)Visit(node, reinterpret_cast<IXMLDOMNode*>(arg), 0); // a visit doesn't stop the walk
    for (int i = 0; i < node->GetNumChildren(); ++i)
        (void)Traverse(node->GetChild(i), arg);
    --m_depth;
    return status::kOk;
}
