#include "project/ProjectNode.h"

#include "core/PathUtils.h"
#include "core/Property.h"
#include "core/Report.h"
#include "project/AttributeSlots.h"
#include "project/ResourceLoader.h"
#include "xml/XmlValue.h"

#include <algorithm>
#include <utility>

using std::map;
using std::string;
using namespace vantrel;

unsigned long CProjectNode::sm_dwNextID = 1;

Status CProjectNode::Read(IXMLDOMNode* node)
{
    return node ? ReadXML(node) : status::kNotAvailable;
}

Status CProjectNode::Write(IXMLDOMNode* node, long native)
{
    return node ? WriteXML(node, native) : status::kNotAvailable;
}

void CProjectNode::SetDirtyFlag()
{
    if (m_parent)
        m_parent->SetDirtyFlag();
}

string CProjectNode::GetObjectTagName()
{
    return {};
}

int CProjectNode::NodeInserted()
{
    return 0;
}

int CProjectNode::RemovingNode()
{
    return 0;
}

Status CProjectNode::ReadXML(IXMLDOMNode* node)
{
    if (!node)
        return status::kNothingDone;
    KeepDocumentPath(node->doc);
    if (!IsElement(node) || !node->properties)
        return status::kNothingDone;
    return ReadAttributesByMap(node);
}

bool CProjectNode::ParseResString(string source, string* out)
{
    if (!m_documentPath)
        return false;
    if (!m_pResLoader)
        m_pResLoader = std::make_unique<CResourceLoader>();
    constexpr std::string_view table = "ThemeStrings.xml";
    string file;
    file.reserve(m_documentPath->size() + table.size());
    file = *m_documentPath;
    (void)Utils::GetContentPath(&file); // a path without a content folder has no table beside it
    file += table;
    (void)m_pResLoader->InitWithXmlFile(file.c_str()); // tables that came earlier may still serve

    const string* text = m_pResLoader->FindText(source);
    if (out)
        *out = text ? *text : source;
    return text != nullptr;
}

Status CProjectNode::ReadAttributesByMap(const _xmlNode* element)
{
    map<string, string> attributes;
    string store;
    for (const xmlAttr* attribute = element->properties; attribute; attribute = attribute->next) {
        if (!attribute->ns) // one with a prefix is another's
            attributes.insert_or_assign(Chars(attribute->name),
                                        string(ResolvedText(attribute->children, store)));
    }
    return ParseAttributeMap(attributes);
}

Status CProjectNode::WriteXML(IXMLDOMNode* node, long native)
{
    map<string, string> attributes;
    const Status filled = FillAttributeMap(attributes, native != 0);
    return Failed(filled) ? filled : WriteNodeAttributes(node, attributes);
}

Status CProjectNode::WriteNodeAttributes(IXMLDOMNode* node, const map<string, string>& attributes)
{
    if (!node)
        return status::kBadArgument;
    for (const auto& [name, value] : attributes) {
        if (!IsName(name.c_str())) {
            Report("Failed on attribute: ", name, "\n");
            return status::kNullPointer;
        }
        (void)xmlUnsetProp(node, XmlChars(name.c_str())); // the same name twice would be no XML
        const Status added = AddReportedAttribute(node, name.c_str(), value);
        if (Failed(added))
            return added;
    }
    return status::kOk;
}

void CProjectNode::SetID(long id)
{
    Root().Unlist(*this, false);
    m_id = id;
    Root().List(*this, false);
    const auto next = static_cast<unsigned long>(id) + 1;
    if (id >= 0 && next > sm_dwNextID)
        sm_dwNextID = next;
}

long CProjectNode::GetNewID()
{
    const unsigned long id = sm_dwNextID++;
    if (sm_dwNextID == 0)
        sm_dwNextID = 1; // 0 means no ID
    return static_cast<long>(id);
}

void CProjectNode::SetName(string name)
{
    m_name = std::move(name);
}

const string& CProjectNode::GetName() const
{
    return m_name;
}

const string& CProjectNode::DocumentPath() const
{
    static const string none;
    const CProjectNode* node = this;
    while (node && !node->m_documentPath)
        node = node->m_parent;
    return node ? *node->m_documentPath : none;
}

void CProjectNode::KeepDocumentPath(const _xmlDoc* doc)
{
    if (!doc || !doc->URL)
        return;
    const char* path = Chars(doc->URL);
    if (m_parent && m_parent->m_documentPath && *m_parent->m_documentPath == path)
        m_documentPath = m_parent->m_documentPath; // a project has many nodes and one path
    else
        m_documentPath = std::make_shared<const string>(path);
}
