#pragma once

#include "core/Export.h"
#include "core/Status.h"

#include <libxml/tree.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// The application's kinds of markers.
enum eMarkerType : std::uint32_t
{
};

/// The application's states of a marker.
enum tagENM_MARKER_STATE : std::int32_t
{
};

/// A point in time on a panel.
struct tagMarker
{
    long id = 0;            ///< identity inside its list
    unsigned long type = 0; ///< an `eMarkerType`
    double time = 0.0;      ///< seconds
    long held = -1;         ///< for the application
    bool heldFlag = false;  ///< for the application
    tagENM_MARKER_STATE state{};
};

/// The markers of a panel, in the order of their adding; times are seconds.
///
/// Beside them stands a working list, the markers of one type, which is built when it is asked for
/// and remembered by the type that it was built for. Records belong to the list; a pointer to one is
/// good until that marker is removed.
class VANTREL_API CMarkerDataImpl
{
public:
    CMarkerDataImpl() = default;
    ~CMarkerDataImpl();
    CMarkerDataImpl(const CMarkerDataImpl&) = delete;
    CMarkerDataImpl& operator=(const CMarkerDataImpl&) = delete;

    /// @name Adding and removing
    /// @{
    /// The next id of the process.
    static long GenerateID();
    /// Adds a marker; an `id` that isn't above 0 is replaced by a generated one. Whether the id is
    /// there already is not asked.
    tagMarker* MarkerAddToList(double time, eMarkerType type, long id, tagENM_MARKER_STATE state);
    /// The same, but an `id` above 0 that is there already gives `status::kNothingDone`.
    vantrel::Status MarkerAdd(double time, eMarkerType type, long id, tagENM_MARKER_STATE state);
    /// Gives `status::kNothingDone` for an unknown id.
    vantrel::Status MarkerRemove(long id);
    /// Releases all markers and forgets the timing. `Clear` gives `status::kOk`.
    vantrel::Status Clear();
    void ClearAll();
    /// @}
    /// @name One marker
    /// Of several markers with one id the first counts. An unknown id gives `status::kBadArgument`.
    /// @{
    /// The marker's place, from 0, or -1.
    long LookupIndex(long id) const;
    /// The record, or null.
    tagMarker* FindItemByID(long id);
    vantrel::Status MarkerGetByID(long id, tagMarker* out) const;
    vantrel::Status SetState(long id, tagENM_MARKER_STATE state);
    vantrel::Status SetType(long id, eMarkerType type);
    vantrel::Status SetTime(long id, double time);
    /// @}
    /// @name The working list
    /// @{
    /// Builds the list of the markers whose type is `key`, or of the types 0 and 5 for the key 6,
    /// and gives its size. A negative key gives 0.
    long GenerateList(long key);
    /// True when the in and out points have changed since the last call.
    bool IsTimingDirty();
    /// The stretch of the panel's source that plays; a list that lies on no panel leaves both
    /// alone. Always true.
    bool GetInOutPoints(double& in, double& out) const;
    /// Frames a second, 29.97.
    double GetEditingFrameRate() const;
    /// @}
    /// @name Persistence
    /// @{
    /// Adds "markers" to `node`, or gives `status::kNothingDone` when there are none.
    vantrel::Status SaveMarkersXML(_xmlNode* node) const;
    /// Replaces the markers with those of "markers", when `node` has it. The counter behind
    /// `GenerateID` rises to the ids that are read.
    vantrel::Status LoadMarkersXML(_xmlNode* node);
    /// As `XMLHelpers<void>::LoadAttributes`.
    vantrel::Status LoadAttributes(_xmlNode* node, std::map<std::string, std::string>& attributes);
    /// @}

    static long ms_lBaseID; ///< the last generated id; starts at 300

    std::vector<std::unique_ptr<tagMarker>> m_markers;
    bool m_heldFlag = false;        ///< for the application
    std::vector<tagMarker*> m_list; ///< the working list; points into `m_markers`
    long m_listKey = -1;          ///< what `m_list` was built for; -1 none, 999 the timing changed
    double m_lastInPoint = -1.0;  ///< as `IsTimingDirty` saw it last
    double m_lastOutPoint = -1.0; ///< as `IsTimingDirty` saw it last

protected:
    /// Tells where the panel has its in and out points; they must live as long as the list.
    void SetTiming(const double* inPoint, const double* outPoint)
    {
        m_playFrom = inPoint;
        m_playTo = outPoint;
    }

private:
    tagMarker* Find(long id) const;

    const double* m_playFrom = nullptr; ///< the panel's, not owned
    const double* m_playTo = nullptr;   ///< the panel's, not owned
};
