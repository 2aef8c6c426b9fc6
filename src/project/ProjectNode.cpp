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

namespace {

/// True for nodes whose ID a file holds. The others' are of this process alone.
bool HasLastingID(eNodeType type)
{
    constexpr eNodeType kinds[] = { eNodeFile,    eNodeTitle, eNodeMenu,
                                    eNodeOverlay, eNodeText,  eNodeButton };
    return std::ranges::find(kinds, type) != std::end(kinds);
}

} // namespace

CProjectNode::CProjectNode(eNodeType type) : m_type(type)
{}

CProjectNode::~CProjectNode()
{
    if (m_holder)
        m_holder->Detach(this);
    for (CProjectNode* child : m_children) {
        child->m_holder = nullptr; // the list is going: a child need not leave it
        child->m_parent = nullptr;
        if (child->m_owned)
            delete child;
    }
}

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

bool CProjectNode::AddChild(CProjectNode* child, bool assignID)
{
    return child && Link(child, m_children.size(), assignID);
}

bool CProjectNode::InsertChild(CProjectNode* child, int position, bool assignID)
{
    return child && position >= 0 && Link(child, static_cast<std::size_t>(position), assignID);
}

CProjectNode* CProjectNode::AdoptChild(std::unique_ptr<CProjectNode> child, bool assignID)
{
    if (!child || !Link(child.get(), m_children.size(), assignID))
        return nullptr;
    child->m_owned = true;
    return child.release();
}

bool CProjectNode::Link(CProjectNode* child, std::size_t position, bool assignID)
{
    if (HangsBelow(child))
        return false; // the tree would have no root any more
    if (child->m_holder)
        child->m_holder->Detach(child);
    position = std::min(position, m_children.size()); // the child itself may have left this list
    m_children.insert(m_children.begin() + static_cast<std::ptrdiff_t>(position), child);
    child->m_parent = this;
    child->m_holder = this;
    child->m_idCounts.reset(); // no root any more
    Root().Count(*child, 1);
    if (assignID && child->m_id == 0)
        child->SetID(GetNewID());
    return true;
}

bool CProjectNode::MoveChild(int from, int to)
{
    const int count = GetNumChildren();
    if (from < 0 || from >= count || to < 0 || to >= count)
        return false;
    const auto begin = m_children.begin();
    if (from < to)
        std::rotate(begin + from, begin + from + 1, begin + to + 1);
    else
        std::rotate(begin + to, begin + from, begin + from + 1);
    return true;
}

std::vector<std::unique_ptr<CProjectNode>> CProjectNode::ReleaseChildren(
    const std::function<bool(CProjectNode&)>& which)
{
    std::vector<std::unique_ptr<CProjectNode>> owned;
    CProjectNode& root = Root();
    std::erase_if(m_children, [&](CProjectNode* child) {
        if (!which(*child))
            return false;
        root.Count(*child, -1);
        child->m_holder = nullptr;
        child->m_parent = nullptr;
        if (std::exchange(child->m_owned, false))
            owned.emplace_back(child);
        return true;
    });
    return owned;
}

void CProjectNode::Detach(CProjectNode* child)
{
    Root().Count(*child, -1);
    m_children.erase(std::find(m_children.begin(), m_children.end(), child));
    child->m_holder = nullptr;
    child->m_parent = nullptr;
}

bool CProjectNode::HangsBelow(const CProjectNode* node) const
{
    for (const CProjectNode* above = this; above; above = above->m_holder) {
        if (above == node)
            return true;
    }
    return false;
}

CProjectNode* CProjectNode::GetChild(int index)
{
    return index >= 0 && index < GetNumChildren() ? m_children[static_cast<std::size_t>(index)]
                                                  : nullptr;
}

CProjectNode* CProjectNode::FindChildByType(eNodeType type, string name)
{
    for (CProjectNode* child : m_children) {
        if (child->m_type != type)
            continue;
        const string tag = name.empty() ? string() : child->GetObjectTagName();
        if (tag.empty() || tag == name)
            return child;
    }
    return nullptr;
}

CProjectNode* CProjectNode::FindChildByID(unsigned long id, int* index)
{
    const auto found = std::find_if(m_children.begin(), m_children.end(), [id](auto* child) {
        return static_cast<unsigned long>(child->m_id) == id;
    });
    if (found == m_children.end())
        return nullptr;
    if (index)
        *index = static_cast<int>(found - m_children.begin());
    return *found;
}

CProjectNode& CProjectNode::Root()
{
    CProjectNode* node = this;
    while (node->m_holder)
        node = node->m_holder;
    return *node;
}

/// Counts `added` and all below it so many times, in a root that counts.
void CProjectNode::Count(const CProjectNode& added, long number)
{
    if (!m_idCounts)
        return;
    std::vector<const CProjectNode*> waiting{ &added }; // no recursion: a tree may be deep
    while (!waiting.empty()) {
        const CProjectNode* node = waiting.back();
        waiting.pop_back();
        if (HasLastingID(node->m_type))
            (*m_idCounts)[node->m_id] += number;
        waiting.insert(waiting.end(), node->m_children.begin(), node->m_children.end());
    }
}

bool CProjectNode::IsTaken(long id, const CProjectNode* but)
{
    CProjectNode& root = Root();
    if (!root.m_idCounts) {
        root.m_idCounts = std::make_unique<IDCounts>();
        root.Count(root, 1);
    }
    const auto found = root.m_idCounts->find(id);
    const long own = but && but->m_id == id && but->HangsBelow(&root) ? 1 : 0;
    return found != root.m_idCounts->end() && found->second > own;
}

void CProjectNode::SetID(long id)
{
    if (CProjectNode& root = Root(); root.m_idCounts && HasLastingID(m_type)) {
        --(*root.m_idCounts)[m_id];
        ++(*root.m_idCounts)[id];
    }
    m_id = id;
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
