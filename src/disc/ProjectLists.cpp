#include "core/Property.h"
#include "disc/ChildPositions.h"
#include "disc/DSDataFile.h"
#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"

#include <algorithm>
#include <iterator>

using std::string;
using namespace vantrel;

namespace {

/// The first child for which `is` holds, as the class that the list holds; null without one.
template <class Node, class Predicate>
Node* FindIn(CProjectNode* list, Predicate is)
{
    for (int i = 0; list && i < list->GetNumChildren(); ++i) {
        auto* node = dynamic_cast<Node*>(list->GetChild(i));
        if (node && is(*node))
            return node;
    }
    return nullptr;
}

/// The position of a number that counts from 1; -1, which no list has, for one below.
long PositionOf(long index)
{
    return index > 0 ? index - 1 : -1;
}

/// True for a template. A menu that is ordinary too is one to its project.
bool IsTemplate(const CDSMenu& menu)
{
    unsigned long tag = 0;
    (void)menu.get_Tag(&tag);
    return (tag & kTemplateMenu) != 0 && (tag & kOrdinaryMenu) == 0;
}

Status Copied(const CDSDataFile& file, CDSDataFile* out)
{
    return Guarded([&] {
        out->CopyValues(file);
        return status::kOk;
    });
}

/// Which of several with one ID is removed: the first menu that is a template, else the first. Null for
/// none.
CProjectNode* ChosenOf(const std::vector<CProjectNode*>& nodes)
{
    const auto goes = std::ranges::find_if(nodes, [](CProjectNode* node) {
        const auto* menu = dynamic_cast<const CDSMenu*>(node);
        return menu && IsTemplate(*menu);
    });
    if (goes != nodes.end())
        return *goes;
    return nodes.empty() ? nullptr : nodes.front();
}

} // namespace

Status CDSProjectData::GetTitle(long index, CDSTitle** out)
{
    if (!out)
        return status::kNullPointer;
    CProjectNode* titles = GetChild(ProjectChild::Titles);
    if (!titles)
        return status::kNothingDone;
    *out = nullptr;
    (void)GetObject(titles, PositionOf(index), out); // beyond the list there is no title
    return status::kOk;
}

Status CDSProjectData::AddTitle(long index, CDSTitle* title)
{
    return AddTo(ProjectChild::Titles, index, title);
}

Status CDSProjectData::RemoveTitle(long id, CDSTitle* title)
{
    return RemoveFrom(ProjectChild::Titles, id, title);
}

Status CDSProjectData::MoveTitle(long from, long to)
{
    return MoveIn(ProjectChild::Titles, from, to);
}

Status CDSProjectData::GetMenu(long index, CDSMenu** out)
{
    return out ? GetObject(GetChild(ProjectChild::Menus), PositionOf(index), out)
               : status::kNullPointer;
}

Status CDSProjectData::AddMenu(long index, CDSMenu* menu)
{
    return AddTo(ProjectChild::Menus, index, menu);
}

Status CDSProjectData::InsertMenu(long index, CDSMenu* menu)
{
    return AddTo(ProjectChild::Menus, index, menu);
}

Status CDSProjectData::RemoveMenu(long id, CDSMenu* menu)
{
    return RemoveFrom(ProjectChild::Menus, id, menu);
}

Status CDSProjectData::RemoveMenus(const std::set<long>& ids)
{
    CProjectNode* menus = GetChild(ProjectChild::Menus);
    if (!menus)
        return status::kNullPointer;

    return Guarded([&] {
        std::set<const CProjectNode*> chosen;
        for (const long id : ids) {
            if (const CProjectNode* menu = ChosenOf(menus->FindChildrenByID(id)))
                chosen.insert(menu);
        }
        m_removed.reserve(m_removed.size() + chosen.size());
        auto owned = menus->ReleaseChildren(
            [&chosen](CProjectNode& menu) { return chosen.contains(&menu); });
        std::move(owned.begin(), owned.end(), std::back_inserter(m_removed));
        return chosen.size() == ids.size() ? status::kOk : status::kNoSuchObject;
    });
}

Status CDSProjectData::MoveMenu(long from, long to)
{
    return MoveIn(ProjectChild::Menus, from, to);
}

bool CDSProjectData::GetMenuAsType(MenuTypes type, CDSMenu** out)
{
    if (!out)
        return false;
    const auto hasType = [type](const CDSMenu& menu) {
        unsigned long tag = 0;
        (void)menu.get_Tag(&tag);
        return tag == static_cast<unsigned long>(type);
    };
    CDSMenu* found = FindIn<CDSMenu>(GetChild(ProjectChild::Menus), hasType);
    if (found)
        *out = found;
    return found != nullptr;
}

bool CDSProjectData::GetMainTempMenu(CDSMenu** out)
{
    return GetMenuAsType(MenuTypes::MainTemplate, out);
}

bool CDSProjectData::GetChapTempMenu(CDSMenu** out)
{
    return GetMenuAsType(MenuTypes::ChapterTemplate, out);
}

Status CDSProjectData::GetDataFile(long index, CDSDataFile* out)
{
    if (!out)
        return status::kNullPointer;
    CDSDataFile* file = nullptr;
    const Status found = GetObject(GetChild(ProjectChild::DataFiles), PositionOf(index), &file);
    if (Failed(found))
        return found;
    return file ? Copied(*file, out) : status::kNoSuchObject;
}

Status CDSProjectData::AddDataFile(long index, CDSDataFile* file)
{
    return AddTo(ProjectChild::DataFiles, index, file);
}

Status CDSProjectData::RemoveDataFile(long id, CDSDataFile* file)
{
    return RemoveFrom(ProjectChild::DataFiles, id, file);
}

Status CDSProjectData::MoveDataFile(long from, long to)
{
    return MoveIn(ProjectChild::DataFiles, from, to);
}

Status CDSProjectData::FindDataFile(string* source, string* dest, unsigned long tag,
                                    CDSDataFile* out)
{
    if (!out)
        return status::kNullPointer;
    const CDSDataFile* found =
        FindIn<CDSDataFile>(GetChild(ProjectChild::DataFiles), [&](const CDSDataFile& file) {
            return file.Matches(source, dest, tag);
        });
    return found ? Copied(*found, out) : status::kNothingDone;
}

Status CDSProjectData::RemoveDataFileBySource(string* source, CDSDataFile* out)
{
    if (!source)
        return status::kNullPointer;
    CDSDataFile* found =
        FindIn<CDSDataFile>(GetChild(ProjectChild::DataFiles), [source](const CDSDataFile& file) {
            return file.Matches(source, nullptr, 0);
        });
    if (!found)
        return status::kNoSuchObject;
    const Status copied = out ? Copied(*found, out) : status::kOk;
    return Failed(copied) ? copied : RemoveDataFile(0, found);
}

Status CDSProjectData::_Clear()
{
    for (const int list : { ProjectChild::Titles, ProjectChild::Menus, ProjectChild::DataFiles,
                            ProjectChild::Commands }) {
        if (CProjectNode* node = GetChild(list))
            (void)node->ReleaseChildren([](CProjectNode&) { return true; }); // released here
    }
    return status::kOk;
}

Status CDSProjectData::AddTo(int position, long index, CProjectNode* node)
{
    CProjectNode* list = GetChild(position);
    if (!node || !list)
        return status::kNullPointer;
    const int count = list->GetNumChildren();
    if (index < 0 || index > count + 1L)
        return status::kNoSuchObject;
    const int place = index == 0 ? count : static_cast<int>(index) - 1;
    const bool ownsStoryboard = position == ProjectChild::Titles || position == ProjectChild::Menus;
    return Guarded([&] {
        if (ownsStoryboard)
            (void)IsTaken(0, nullptr); // what needs memory for the question below comes first
        if (!list->InsertChild(node, place, true))
            return status::kBadArgument;
        if (ownsStoryboard && IsTaken(node->GetID(), node))
            node->SetID(GetNewID()); // two of one ID would share an element of the file
        return status::kOk;
    });
}

Status CDSProjectData::RemoveFrom(int position, long id, CProjectNode* node)
{
    CProjectNode* list = GetChild(position);
    if (!list)
        return status::kNullPointer;
    return Guarded([&] {
        if (!node)
            node = ChosenOf(list->FindChildrenByID(id));
        const int count = list->GetNumChildren();
        m_removed.emplace_back(); // before anything is changed
        m_removed.back() = list->ReleaseChild(node);
        if (!m_removed.back())
            m_removed.pop_back();
        return list->GetNumChildren() < count ? status::kOk : status::kNoSuchObject;
    });
}

Status CDSProjectData::MoveIn(int position, long from, long to)
{
    CProjectNode* list = GetChild(position);
    if (!list)
        return status::kNullPointer;
    const long count = list->GetNumChildren();
    if (from < 1 || from > count || to < 1 || to > count)
        return status::kNoSuchObject;
    (void)list->MoveChild(static_cast<int>(from) - 1, static_cast<int>(to) - 1); // in the list
    return status::kOk;
}
