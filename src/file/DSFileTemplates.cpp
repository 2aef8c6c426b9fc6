#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>

using std::map;
using std::set;
using namespace vantrel;

namespace {

constexpr int kMostLinks = 3; // of a chain of templates that are followed from one start

/// Which templates a project has, and which of them something refers to.
struct Templates
{
    map<long, long> made; ///< a template's ID to that of the template that it was made from
    set<long> used;       ///< may also name what is no template
};

Templates FindTemplates(CDSProjectData& project)
{
    Templates templates;
    long count = 0;
    (void)project.get_MenuCount(&count);
    for (long index = 1; index <= count; ++index) {
        CDSMenu* menu = nullptr;
        (void)project.GetMenu(index, &menu);
        if (!menu)
            continue;
        unsigned long tag = 0;
        long madeFrom = 0;
        (void)menu->get_Tag(&tag);
        (void)menu->get_TemplateID(&madeFrom);
        if (tag & kOrdinaryMenu) {
            if (madeFrom != 0)
                templates.used.insert(madeFrom);
        } else if ((tag & kTemplateMenu) && menu->GetID() != 0) {
            templates.made[menu->GetID()] = madeFrom;
        }
    }
    return templates;
}

/// Adds the templates that used ones were made from. What is added behind the present one gets its
/// own turn, so that a chain of rising IDs is followed to its end.
void FollowChains(Templates& templates)
{
    for (const long start : templates.used) {
        long current = start;
        for (int link = 0; link < kMostLinks; ++link) {
            const auto made = templates.made.find(current);
            if (made != templates.made.end()) {
                current = made->second;
                templates.used.insert(current);
            }
            if (current == start)
                break;
        }
    }
}

} // namespace

Status CDSFileService::RemoveUnusedTemplates(CDSProjectData* project)
{
    if (!project)
        return status::kNullPointer;
    Templates templates = FindTemplates(*project);
    long titles = 0;
    (void)project->get_TitleCount(&titles);
    if (templates.used.empty() && titles == 0)
        return status::kOk; // a project of nothing but templates is a new one
    FollowChains(templates);

    set<long> unused;
    for (const auto& [id, madeFrom] : templates.made) {
        if (!templates.used.contains(id))
            unused.insert(id);
    }
    (void)project->RemoveMenus(unused); // all of them are there
    return status::kOk;
}
