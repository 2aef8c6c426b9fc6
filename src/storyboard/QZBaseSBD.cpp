#include "storyboard/QZBaseSBD.h"

#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/TransitionObject.h"

#include <algorithm>
#include <limits>
#include <type_traits>
#include <utility>

using std::string;
using namespace vantrel;

std::int64_t g_SbdCreateCount = 0;
std::int64_t g_SbdReleaseCount = 0;

namespace {

constexpr long kHighest = std::numeric_limits<long>::max();

template <class Panel>
Panel* AddPanel(CQZBaseSBD& sbd, long key)
{
    if (IsClipKey(key) == std::is_same_v<Panel, CTransitionObject>)
        return nullptr;
    auto panel = std::make_unique<Panel>();
    Panel* added = panel.get();
    added->SetSBD(&sbd);
    (void)added->put_ParentProduction(&sbd); // setters that can't fail
    (void)added->CBaseObjectImpl::put_ID(sbd.NextID());
    sbd.m_panels[key].reset(panel.release());
    return added;
}

} // namespace

bool vantrel::FitsItsKey(long key, const CBaseObjectImpl* panel)
{
    if (!panel || !panel->m_whole)
        return false;
    if (dynamic_cast<const CTransitionObject*>(panel->m_whole))
        return !IsClipKey(key);
    const bool isClip = dynamic_cast<const CClipObject*>(panel->m_whole) ||
                        dynamic_cast<const CColorObject*>(panel->m_whole);
    return !isClip || IsClipKey(key); // an application's own panel is what its key says
}

CQZBaseSBD::CQZBaseSBD() : m_heldRecord(std::make_unique<HeldRecord>())
{}

CQZBaseSBD::~CQZBaseSBD() = default;

Status CQZBaseSBD::FinalRelease()
{
    m_productionObject.reset();
    m_panels.clear();
    m_groups.clear();
    m_sections.clear();
    m_strayPanels.clear();
    m_strayGroups.clear();
    return status::kOk;
}

Status CQZBaseSBD::NewProduction()
{
    (void)CloseProduction(); // neither can fail
    (void)FinalRelease();
    m_productionObject = std::make_unique<CProductionObject>();
    m_productionObject->SetSBD(this);
    return m_productionObject->put_ID(NextID());
}

Status CQZBaseSBD::CloseProduction()
{
    m_workingPath.clear();
    m_heldFlag2 = false;
    m_heldFlag4 = false;
    m_heldFlag5 = false;
    m_heldCount1 = 0;
    m_heldCount2 = 0;
    m_nextID = 0;
    m_heldState2 = 0;
    return status::kOk;
}

Status CQZBaseSBD::LoadProductionFromXML(_xmlNode* node)
{
    if (!node)
        return status::kBadArgument;
    (void)CloseProduction(); // can't fail
    return PersistXML(node, false);
}

Status CQZBaseSBD::SaveProductionToXML(_xmlNode* node)
{
    if (!node)
        return status::kBadArgument;
    string workingPath = std::exchange(m_workingPath, string());
    const Status saved = PersistXML(node, true);
    m_workingPath = std::move(workingPath);
    return saved;
}

Status CQZBaseSBD::GetProductionObj(CProductionObject** out) const
{
    if (!out)
        return status::kBadArgument;
    if (!m_productionObject)
        return status::kNullPointer;
    *out = m_productionObject.get();
    return status::kOk;
}

Status CQZBaseSBD::get_Version(string* out) const
{
    if (!out)
        return status::kBadArgument;
    *out = m_version;
    return status::kOk;
}

Status CQZBaseSBD::put_Version(string value)
{
    m_version = std::move(value);
    return status::kOk;
}

Status CQZBaseSBD::GetPanelBaseObject(long panel, CBaseObjectImpl** out) const
{
    if (!out)
        return status::kBadArgument;
    if (panel > CalculatePanelNumber())
        return status::kNothingDone;
    const auto found = m_panels.find(panel);
    if (found == m_panels.end())
        return status::kNothingDone;
    *out = found->second.get();
    return status::kOk;
}

long CQZBaseSBD::CalculatePanelNumber() const
{
    long count = 0;
    if (!m_panels.empty()) {
        const long highest = m_panels.rbegin()->first;
        count = highest == kHighest ? kHighest : highest + 1;
    }
    for (const auto& [key, group] : m_groups) {
        long end = count;
        if (group)
            (void)group->GetGroupInfo(nullptr, nullptr, &end, nullptr, nullptr); // can't fail
        count = std::max(count, end);
    }
    return count;
}

double CQZBaseSBD::ComputeDuration() const
{
    double sum = 0.0;
    for (const auto& [key, panel] : m_panels) {
        if (panel)
            sum += IsClipKey(key) ? panel->m_duration : -panel->m_duration;
    }
    return sum > 0.0 ? sum : 0.0;
}

CColorObject* CQZBaseSBD::AddColorPanel(long key)
{
    return AddPanel<CColorObject>(*this, key);
}

CClipObject* CQZBaseSBD::AddClipPanel(long key)
{
    return AddPanel<CClipObject>(*this, key);
}

CTransitionObject* CQZBaseSBD::AddTransition(long key)
{
    return AddPanel<CTransitionObject>(*this, key);
}

Status CQZBaseSBD::RemovePanel(long key)
{
    return m_panels.erase(key) > 0 ? status::kOk : status::kNothingDone;
}

CGroupObject* CQZBaseSBD::AddGroup(long key)
{
    std::unique_ptr<CGroupObject>& group = m_groups[key];
    group = std::make_unique<CGroupObject>();
    return group.get();
}

Status CQZBaseSBD::AddSection(long startID, long endID)
{
    m_sections[startID] = endID;
    return status::kOk;
}

long CQZBaseSBD::NextID()
{
    m_nextID = m_nextID == kHighest ? 1 : m_nextID + 1;
    return m_nextID;
}
