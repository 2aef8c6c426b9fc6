#include "project/XMLPersistor.h"

#include "project/ProjectNode.h"
#include "project/XMLPersistTable.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

using std::string;
using namespace vantrel;

namespace {

/// The name under which a node is written; empty when it has none.
string ElementName(CProjectNode& node)
{
    string name = node.GetObjectTagName();
    if (name.empty()) {
        if (const XMLPersistEntry* row = FindEntry(node.GetType()))
            name = row->strElement;
    }
    return name;
}

/// False when a node of the tree asks for a name that no element can have.
bool HasNames(CProjectNode& node)
{
    const string name = node.GetObjectTagName();
    if (!name.empty() && !IsName(name.c_str()))
        return false;
    for (int i = 0; i < node.GetNumChildren(); ++i) {
        if (!HasNames(*node.GetChild(i)))
            return false;
    }
    return true;
}

} // namespace

CXMLPersistor::CXMLPersistor(IXMLDOMNode* parent)
    : m_pCurrent(parent),
      m_pDoc(parent ? parent->doc : nullptr)
{}

Status CXMLPersistor::Traverse(CProjectNode* node, long native)
{
    if (!m_pCurrent || !node)
        return status::kNullPointer;
    const string name = ElementName(*node);
    if (name.empty())
        return status::kNullPointer;
    if (m_depth == 0 && !HasNames(*node))
        return status::kBadArgument;
    XmlNodePtr element{ xmlNewDocNode(m_pDoc, nullptr, XmlChars(name.c_str()), nullptr) };
    if (!element)
        return status::kNullPointer;

    IXMLDOMNode* const above = m_pCurrent;
    ++m_depth;
    Status result = Visit(node, AsNode(element.get()), native);
    if (!Failed(result)) {
        (void)element.release(); // linked in: the document's from here on
        if (node->GetNumChildren() > 0)
            result = WriteChildren(*node, native);
        m_pCurrent = above;
    }
    --m_depth;
    return result;
}

Status CXMLPersistor::WriteChildren(CProjectNode& node, long native)
{
    Status result = status::kOk;
    for (int i = 0; i < node.GetNumChildren() && !Failed(result); ++i)
        result = Traverse(node.GetChild(i), native);
    return result;
}

Status CXMLPersistor::Visit(CProjectNode* node, IXMLDOMNode* element, long native)
{
    const Status written = node->Write(element, native);
    if (Failed(written))
        return written;
    if (!element || !m_pCurrent || !xmlAddChild(m_pCurrent, element))
        return status::kNullPointer;
    m_pCurrent = element;
    return status::kOk;
}
