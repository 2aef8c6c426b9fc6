#include "storyboard/MarkerData.h"

#include "core/Property.h"
#include "xml/MemberTable.h"
#include "xml/XMLHelpers.h"

#include <algorithm>
#include <limits>

using namespace vantrel;

namespace {

constexpr long kFirstBaseID = 300;
constexpr long kNoList = -1;
constexpr long kTimingChanged = 999;
constexpr long kChaptersAndTheLike = 6; // a key of the working list that stands for two types

bool Passes(const tagMarker& marker, long key)
{
    if (key == kChaptersAndTheLike)
        return marker.type == 0 || marker.type == 5;
    return marker.type == static_cast<unsigned long>(key);
}

// The elements of "marker".
constexpr MemberRow<tagMarker> kMarker[] = {
    member::Long<&tagMarker::id>("id"),
    member::ULong<&tagMarker::type>("type"),
    member::Double<&tagMarker::time>("time"),
    member::Long<&tagMarker::state>("state"),
};

} // namespace

long CMarkerDataImpl::ms_lBaseID = kFirstBaseID;

CMarkerDataImpl::~CMarkerDataImpl()
{
    ClearAll();
}

long CMarkerDataImpl::GenerateID()
{
    if (ms_lBaseID == std::numeric_limits<long>::max())
        ms_lBaseID = kFirstBaseID; // a file may have brought the last id there is
    return ++ms_lBaseID;
}

tagMarker* CMarkerDataImpl::MarkerAddToList(double time, eMarkerType type, long id,
                                            tagENM_MARKER_STATE state)
{
    auto marker = std::make_unique<tagMarker>();
    marker->id = id > 0 ? id : GenerateID();
    marker->type = type;
    marker->time = time;
    marker->state = state;
    m_listKey = kNoList;
    return m_markers.emplace_back(std::move(marker)).get();
}

Status CMarkerDataImpl::MarkerAdd(double time, eMarkerType type, long id, tagENM_MARKER_STATE state)
{
    if (id > 0 && Find(id))
        return status::kNothingDone;
    MarkerAddToList(time, type, id, state);
    return status::kOk;
}

Status CMarkerDataImpl::MarkerRemove(long id)
{
    const long index = LookupIndex(id);
    if (index < 0)
        return status::kNothingDone;
    m_list.clear(); // it may point at the record
    m_listKey = kNoList;
    m_markers.erase(m_markers.begin() + index);
    return status::kOk;
}

Status CMarkerDataImpl::Clear()
{
    ClearAll();
    return status::kOk;
}

void CMarkerDataImpl::ClearAll()
{
    m_list.clear();
    m_listKey = kNoList;
    m_markers.clear();
    m_lastInPoint = -1.0;
    m_lastOutPoint = -1.0;
}

long CMarkerDataImpl::LookupIndex(long id) const
{
    const auto found = std::ranges::find(m_markers, id, [](const auto& m) { return m->id; });
    return found == m_markers.end() ? -1 : found - m_markers.begin();
}

tagMarker* CMarkerDataImpl::Find(long id) const
{
    const long index = LookupIndex(id);
    return index < 0 ? nullptr : m_markers[static_cast<std::size_t>(index)].get();
}

tagMarker* CMarkerDataImpl::FindItemByID(long id)
{
    tagMarker* marker = Find(id);
    double in = 0.0;
    double out = 0.0;
    return marker && GetInOutPoints(in, out) ? marker : nullptr;
}

Status CMarkerDataImpl::MarkerGetByID(long id, tagMarker* out) const
{
    const tagMarker* marker = Find(id);
    return marker ? Give(out, *marker) : status::kBadArgument;
}

Status CMarkerDataImpl::SetState(long id, tagENM_MARKER_STATE state)
{
    tagMarker* marker = Find(id);
    return marker ? Give(&marker->state, state) : status::kBadArgument;
}

Status CMarkerDataImpl::SetType(long id, eMarkerType type)
{
    tagMarker* marker = Find(id);
    return marker ? Give(&marker->type, type) : status::kBadArgument;
}

Status CMarkerDataImpl::SetTime(long id, double time)
{
    tagMarker* marker = Find(id);
    return marker ? Give(&marker->time, time) : status::kBadArgument;
}

long CMarkerDataImpl::GenerateList(long key)
{
    if (key < 0)
        return 0;
    if (key != m_listKey) {
        double in = 0.0;
        double out = 0.0;
        if (!GetInOutPoints(in, out))
            return 0;
        m_list.clear();
        m_listKey = key;
        for (const auto& marker : m_markers) {
            if (Passes(*marker, key))
                m_list.push_back(marker.get());
        }
    }
    return static_cast<long>(m_list.size());
}

bool CMarkerDataImpl::IsTimingDirty()
{
    double in = 0.0;
    double out = 0.0;
    if (!GetInOutPoints(in, out))
        return true;
    if (in == m_lastInPoint && out == m_lastOutPoint)
        return false;
    m_lastInPoint = in;
    m_lastOutPoint = out;
    m_listKey = kTimingChanged;
    return true;
}

bool CMarkerDataImpl::GetInOutPoints(double& in, double& out) const
{
    if (m_playFrom)
        in = *m_playFrom;
    if (m_playTo)
        out = *m_playTo;
    return true;
}

double CMarkerDataImpl::GetEditingFrameRate() const
{
    return 29.97;
}

Status CMarkerDataImpl::SaveMarkersXML(_xmlNode* node) const
{
    if (m_markers.empty())
        return status::kNothingDone;
    xmlNode* markers = AddElement(node, "markers");
    for (const auto& marker : m_markers)
        SaveRows({ AddElement(markers, "marker") }, kMarker, *marker);
    return status::kOk;
}

Status CMarkerDataImpl::LoadMarkersXML(_xmlNode* node)
{
    const xmlNode* markers = FindChildElement(node, "markers");
    if (!markers)
        return status::kOk;
    ClearAll();
    std::vector<tagMarker> found;
    for (xmlNode* child : ChildElements(markers)) {
        if (!IsNamed(child, "marker"))
            continue;
        LoadRows({ child }, kMarker, found.emplace_back());
        ms_lBaseID = std::max(ms_lBaseID, found.back().id);
    }
    for (const tagMarker& read : found) // no new id before all given ones are known
        MarkerAddToList(read.time, static_cast<eMarkerType>(read.type), read.id, read.state);
    return status::kOk;
}

Status CMarkerDataImpl::LoadAttributes(_xmlNode* node,
                                       std::map<std::string, std::string>& attributes)
{
    return XMLHelpers<void>::LoadAttributes(node, attributes);
}
