#include "project/XMLProjectLoader.h"

#include "project/ElementLookup.h"
#include "project/FormedNode.h"
#include "project/NodeFactory.h"
#include "xml/XmlValue.h"

#include <memory>
#include <utility>

using std::string;
using namespace vantrel;

namespace {

/// The child that the parent has for a fixed element; a title makes its own at the first need.
CProjectNode* FixedChild(const XMLPersistEntry& row, CProjectNode& parent)
{
    CProjectNode* child = parent.FindChildByType(row.nodeType, row.strElement);
    auto* formed = child ? nullptr : dynamic_cast<FormedNode*>(&parent);
    if (!formed || !formed->HasFixedChild(row.nodeType))
        return child;
    (void)formed->MakeFixedChildren(false); // told by what is found
    return parent.FindChildByType(row.nodeType, row.strElement);
}

CProjectNode* NodeOf(const XMLPersistEntry& row, CProjectNode* root, CProjectNode* parent)
{
    if (row.nodeType == root->GetType())
        return root;
    if (!row.bCreate)
        return parent ? FixedChild(row, *parent) : nullptr;
    std::unique_ptr<CProjectNode> node = MakeNode(row.nodeType);
    // The link comes before the reading, so that a node can ask its parents while it is read.
    return parent ? parent->AdoptChild(std::move(node), false) : node.release();
}

} // namespace

CDSXMLDataLoader::CDSXMLDataLoader(CProjectNode* root) : m_pRoot(root)
{}

Status CDSXMLDataLoader::LoadProject(IXMLDOMNode* element)
{
    // A bad element spoils no more than itself. The root of a file may have any name.
    if (FindElement(NameOf(element)) == FindElement("Project")) {
        (void)Traverse(element, nullptr);
        return status::kOk;
    }
    for (xmlNode* child : ChildElements(element)) {
        if (NameOf(child) != "Productions")
            (void)Traverse(AsNode(child), nullptr);
    }
    return status::kOk;
}

Status CDSXMLDataLoader::Traverse(IXMLDOMNode* element, CProjectNode* parent)
{
    if (!element)
        return status::kNothingDone;
    if (!IsElement(element))
        return status::kOk;

    const XMLPersistEntry* row = FindElement(NameOf(element));
    CProjectNode* node = row ? NodeOf(*row, m_pRoot, parent) : nullptr;
    // What no parent took is read all the same, and gone when its element has been walked.
    const bool taken = parent || node == m_pRoot || !row || !row->bCreate;
    const std::unique_ptr<CProjectNode> unreachable(taken ? nullptr : node);
    if (node && Failed(node->Read(element)))
        return status::kNothingDone;
    if (row && row->bLeaf)
        return status::kOk;
    for (xmlNode* child : ChildElements(element))
        (void)Traverse(AsNode(child), node);
    return status::kOk;
}

CProjectNode* CDSXMLDataLoader::GetProjectNode(string element, CProjectNode* parent)
{
    const XMLPersistEntry* row = FindElement(element);
    return row ? NodeOf(*row, m_pRoot, parent) : nullptr;
}
