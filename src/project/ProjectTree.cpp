#include "project/ProjectNode.h"

#include "project/ResourceLoader.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <set>
#include <utility>

using std::string;
using std::unique_ptr;
using std::vector;

/// The nodes of a tree whose IDs a file holds, in the order of the IDs.
struct VANTREL_INTERNAL CProjectNode::IDIndex
{
    std::set<std::pair<long, const CProjectNode*>> nodes;
};

namespace {

constexpr std::size_t kLong = 64; ///< children that are worth room in front

/// True for nodes whose ID a file holds. The others' are of this process alone.
bool HasLastingID(eNodeType type)
{
    constexpr eNodeType kinds[] = { eNodeFile,    eNodeTitle, eNodeMenu,
                                    eNodeOverlay, eNodeText,  eNodeButton };
    return std::ranges::find(kinds, type) != std::end(kinds);
}

/// The position of a child, looked for from both ends.
std::size_t PositionOf(std::span<CProjectNode* const> children, const CProjectNode* child)
{
    std::size_t front = 0;
    std::size_t back = children.size() - 1;
    while (children[front] != child && children[back] != child) {
        ++front;
        --back;
    }
    return children[front] == child ? front : back;
}

} // namespace

CProjectNode::CProjectNode(eNodeType type) : m_type(type)
{}

CProjectNode::~CProjectNode()
{
    if (m_holder)
        m_holder->Detach(this);
    for (CProjectNode* child : Children()) {
        child->m_holder = nullptr; // the list is going: a child need not leave it
        child->m_parent = nullptr;
        if (child->m_owned)
            delete child;
    }
}

bool CProjectNode::AddChild(CProjectNode* child, bool assignID)
{
    return child && Link(child, Children().size(), assignID);
}

bool CProjectNode::InsertChild(CProjectNode* child, int position, bool assignID)
{
    return child && position >= 0 && Link(child, static_cast<std::size_t>(position), assignID);
}

CProjectNode* CProjectNode::AdoptChild(unique_ptr<CProjectNode> child, bool assignID)
{
    if (!child || !Link(child.get(), Children().size(), assignID))
        return nullptr;
    child->m_owned = true;
    return child.release();
}

bool CProjectNode::Link(CProjectNode* child, std::size_t position, bool assignID)
{
    if (HangsBelow(child))
        return false; // the tree would have no root any more
    if (!MakeRoom(position))
        return false;
    if (child->m_holder)
        child->m_holder->Detach(child);
    PutInto(child,
            std::min(position, Children().size())); // the child itself may have left this list
    child->m_parent = this;
    child->m_holder = this;
    child->m_ids.reset(); // no root any more
    Root().List(*child, true);
    if (assignID && child->m_id == 0)
        child->SetID(GetNewID());
    return true;
}

bool CProjectNode::MoveChild(int from, int to)
{
    const int count = GetNumChildren();
    if (from < 0 || from >= count || to < 0 || to >= count)
        return false;
    (void)MakeRoom(
        static_cast<std::size_t>(to)); // without it there is the room of the child itself
    CProjectNode* const child = GetChild(from);
    TakeOut(static_cast<std::size_t>(from));
    PutInto(child, static_cast<std::size_t>(to));
    return true;
}

unique_ptr<CProjectNode> CProjectNode::ReleaseChild(CProjectNode* child)
{
    if (!child || child->m_holder != this)
        return nullptr;
    Detach(child);
    return unique_ptr<CProjectNode>(std::exchange(child->m_owned, false) ? child : nullptr);
}

vector<unique_ptr<CProjectNode>> CProjectNode::ReleaseChildren(
    const std::function<bool(CProjectNode&)>& which)
{
    vector<unique_ptr<CProjectNode>> owned;
    owned.reserve(Children().size());
    CProjectNode& root = Root();
    m_children.erase(m_children.begin(), m_children.begin() + m_firstChild);
    m_firstChild = 0;
    std::erase_if(m_children, [&](CProjectNode* child) {
        if (!which(*child))
            return false;
        root.Unlist(*child, true);
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
    Root().Unlist(*child, true);
    TakeOut(PositionOf(Children(), child));
    child->m_holder = nullptr;
    child->m_parent = nullptr;
}

/// Sees to it that `PutInto` finds a free slot, and that many of them cost no more than one each. False
/// where memory runs out.
bool CProjectNode::MakeRoom(std::size_t position)
{
    const std::size_t count = Children().size();
    try {
        if (m_firstChild == 0 && count >= kLong && position < count / 2) {
            m_children.insert(m_children.begin(), count / 2, nullptr);
            m_firstChild = static_cast<std::uint32_t>(count / 2);
        }
        if (m_children.size() < m_children.capacity())
            return true;
        if (m_firstChild > count) {
            m_children.erase(m_children.begin(), m_children.begin() + m_firstChild);
            m_firstChild = 0;
        } else {
            m_children.reserve(std::max<std::size_t>(1, 2 * m_children.size()));
        }
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

/// Puts a child at a position, into a slot that is free. What is nearer to an end makes way.
void CProjectNode::PutInto(CProjectNode* child, std::size_t position)
{
    const std::size_t count = Children().size();
    const bool isFull = m_children.size() == m_children.capacity();
    if (m_firstChild > 0 && (position < count - position || isFull)) {
        const auto first = m_children.begin() + m_firstChild;
        std::move(first, first + static_cast<std::ptrdiff_t>(position), first - 1);
        --m_firstChild;
        Children()[position] = child;
    } else {
        m_children.insert(m_children.begin() + m_firstChild + static_cast<std::ptrdiff_t>(position),
                          child);
    }
}

/// The way back.
void CProjectNode::TakeOut(std::size_t position)
{
    const std::size_t count = Children().size();
    const auto first = m_children.begin() + m_firstChild;
    const auto taken = first + static_cast<std::ptrdiff_t>(position);
    if (position < count / 2) {
        std::move_backward(first, taken, taken + 1);
        ++m_firstChild;
    } else {
        m_children.erase(taken);
    }
}

bool CProjectNode::HangsBelow(const CProjectNode* node) const
{
    for (const CProjectNode* above = this; above; above = above->m_holder) {
        if (above == node)
            return true;
    }
    return false;
}

std::span<CProjectNode*> CProjectNode::Children()
{
    return std::span(m_children).subspan(m_firstChild);
}

int CProjectNode::GetNumChildren() const
{
    return static_cast<int>(m_children.size() - m_firstChild);
}

CProjectNode* CProjectNode::GetChild(int index)
{
    return index >= 0 && index < GetNumChildren() ? Children()[static_cast<std::size_t>(index)]
                                                  : nullptr;
}

CProjectNode* CProjectNode::FindChildByType(eNodeType type, string name)
{
    for (CProjectNode* child : Children()) {
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
    const auto children = Children();
    const auto found = std::ranges::find_if(children, [id](const CProjectNode* child) {
        return static_cast<unsigned long>(child->m_id) == id;
    });
    if (found == children.end())
        return nullptr;
    if (index)
        *index = static_cast<int>(found - children.begin());
    return *found;
}

CProjectNode& CProjectNode::Root()
{
    CProjectNode* node = this;
    while (node->m_holder)
        node = node->m_holder;
    return *node;
}

/// Runs `change` for `node`, or for it and all below it, in a root that has an index. An index that
/// no memory is left for goes: the next question makes another.
template <class Change>
void CProjectNode::ChangeIndex(const CProjectNode& node, bool deep, Change change)
{
    if (!m_ids)
        return;
    try {
        vector<const CProjectNode*> waiting{ &node }; // no recursion: a tree may be deep
        while (!waiting.empty()) {
            const CProjectNode* next = waiting.back();
            waiting.pop_back();
            if (HasLastingID(next->m_type))
                change(std::pair(next->m_id, next));
            if (deep)
                waiting.insert(waiting.end(), next->m_children.begin() + next->m_firstChild,
                               next->m_children.end());
        }
    } catch (const std::bad_alloc&) {
        m_ids.reset();
    }
}

void CProjectNode::List(const CProjectNode& node, bool deep)
{
    ChangeIndex(node, deep, [this](const auto& entry) { m_ids->nodes.insert(entry); });
}

void CProjectNode::Unlist(const CProjectNode& node, bool deep)
{
    ChangeIndex(node, deep, [this](const auto& entry) { m_ids->nodes.erase(entry); });
}

/// The index of a root, made at the first need.
const CProjectNode::IDIndex& CProjectNode::Index()
{
    if (!m_ids) {
        m_ids = std::make_unique<IDIndex>();
        List(*this, true);
        if (!m_ids)
            throw std::bad_alloc();
    }
    return *m_ids;
}

bool CProjectNode::IsTaken(long id, const CProjectNode* but)
{
    const auto& nodes = Root().Index().nodes;
    auto found = nodes.lower_bound({ id, nullptr });
    if (found != nodes.end() && found->second == but)
        ++found;
    return found != nodes.end() && found->first == id;
}

vector<CProjectNode*> CProjectNode::FindChildrenByID(long id)
{
    vector<CProjectNode*> found;
    const auto& nodes = Root().Index().nodes;
    for (auto entry = nodes.lower_bound({ id, nullptr });
         entry != nodes.end() && entry->first == id; ++entry) {
        if (entry->second->m_holder == this)
            found.push_back(const_cast<CProjectNode*>(entry->second)); // a child of this one
    }
    if (found.size() > 1) {
        const std::set<CProjectNode*> wanted(found.begin(), found.end());
        std::ranges::copy_if(Children(), found.begin(),
                             [&wanted](CProjectNode* child) { return wanted.contains(child); });
    }
    return found;
}
