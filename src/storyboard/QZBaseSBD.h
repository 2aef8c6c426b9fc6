#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "storyboard/GroupObj.h"
#include "storyboard/ProductionObject.h"
#include "storyboard/Whole.h"
#include "xml/KeptXmlPtr.h"
#include "xml/PersistObject.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CClipObject;
class CColorObject;
class CTransitionObject;
struct tagMarker;
struct tagTLMarker;

namespace vantrel {

/// True for the key of a clip, false for that of a transition.
constexpr bool IsClipKey(long key)
{
    return key % 2 == 0;
}

/// True for a panel that a save can write at its place: there is one, and its kind is that of its key.
VANTREL_API bool FitsItsKey(long key, const CBaseObjectImpl* panel);

} // namespace vantrel

/// The time line behind one title or one menu.
///
/// A storyboard holds one production, which carries the settings of the whole, a numbered run of
/// panels, groups of panels, and marker sections. Panels have keys: an even key holds a clip, which
/// is a colour (`CColorObject`) or a file (`CClipObject`), and an odd key a transition
/// (`CTransitionObject`), so that the keys in order read clip, transition, clip. Times are seconds.
///
/// Everything in it is the storyboard's and goes with it. What a load or an `Add...` replaces is
/// released at that moment. A loaded storyboard keeps nothing of the document that it was read from,
/// but the load takes the data of effects out of that document.
class VANTREL_API CQZBaseSBD : public CPersistObject
{
public:
    CQZBaseSBD();

    /// Writes or reads the subtree of the storyboard. A read makes a new production in any case,
    /// lays the panels, groups and sections that it finds over those that are there, and never
    /// reports what is missing.
    vantrel::Status PersistXML(_xmlNode* node, bool save) override;
    ~CQZBaseSBD() override;
    /// Releases the production, panels, groups and sections. Always `status::kOk`.
    virtual vantrel::Status FinalRelease();

    /// @name Productions
    /// @{
    /// Closes, releases what there is, and makes an empty production. Always `status::kOk`.
    vantrel::Status NewProduction();
    /// Resets counters and held text; the objects stay. Always `status::kOk`.
    vantrel::Status CloseProduction();
    /// Closes and reads. Null gives `status::kBadArgument` and changes nothing.
    vantrel::Status LoadProductionFromXML(_xmlNode* node);
    /// Writes without the working path, which comes back afterwards. Null gives
    /// `status::kBadArgument`.
    vantrel::Status SaveProductionToXML(_xmlNode* node);
    /// The production stays the storyboard's. Null gives `status::kBadArgument`, and a storyboard
    /// without a production `status::kNullPointer`.
    vantrel::Status GetProductionObj(CProductionObject** out) const;
    /// Null gives `status::kBadArgument`.
    vantrel::Status get_Version(std::string* out) const;
    vantrel::Status put_Version(std::string value);
    /// @}
    /// @name Panels, groups and sections
    /// @{
    /// The panel of a key, which stays the storyboard's. Gives `status::kNothingDone`, and leaves
    /// `out` alone, when there is none; null gives `status::kBadArgument`.
    vantrel::Status GetPanelBaseObject(long panel, CBaseObjectImpl** out) const;
    /// The highest key plus 1, or the highest end of a group if that is larger.
    long CalculatePanelNumber() const;
    /// The durations of the clips less those of the transitions, and never below 0.0.
    double ComputeDuration() const;
    /// Makes a panel with the next id, in the place of one that is there. It stays the storyboard's.
    /// A key of the other kind gives null, and changes nothing.
    CColorObject* AddColorPanel(long key);
    CClipObject* AddClipPanel(long key);
    CTransitionObject* AddTransition(long key);
    /// Releases a panel. Gives `status::kNothingDone` when there is none of that key.
    vantrel::Status RemovePanel(long key);
    /// Makes a group, in the place of one that is there. It stays the storyboard's.
    CGroupObject* AddGroup(long key);
    /// Adds a marker section, or changes the end of the one that starts there.
    vantrel::Status AddSection(long startID, long endID);
    /// Writes "MarkerSections" under `parent`. Gives `status::kNothingDone` when there are none.
    vantrel::Status SaveSectionsXML(_xmlNode* parent) const;
    /// @}
    /// The next object id: the only source of ids inside a storyboard.
    long NextID();

    /// Fields named "held" are the application's: the library carries them and no more.
    std::vector<tagMarker*> m_markers;           ///< held, not owned
    std::vector<tagTLMarker*> m_timelineMarkers; ///< held, not owned
    long m_heldMarker = -1;
    bool m_heldMarkerFlag = false;
    std::map<long, long> m_sections; ///< start marker id to end marker id
    std::map<long, double> m_heldTimes;
    std::map<long, long> m_heldNumbers;
    std::vector<long> m_heldList;
    std::int32_t m_heldMode = 2;
    std::string m_workingPath; ///< never written to a file
    bool m_heldFlag1 = true;
    bool m_heldFlag2 = false;
    bool m_isVOB = false;
    bool m_heldFlag4 = false;
    bool m_heldFlag5 = false;
    bool m_heldFlag6 = true;
    bool m_heldFlag7 = false;
    std::string m_version = "9.0"; ///< of the subtree; empty marks an old file
    long m_heldCount1 = 0;
    bool m_heldFlag8 = true;
    long m_heldCount2 = 0;
    bool m_heldFlag9 = false;
    bool m_heldFlag10 = false;
    struct HeldRecord
    {
        long first = 450;
        long second = 0;
        std::string text1;
        std::string text2;
    };
    std::unique_ptr<HeldRecord> m_heldRecord;
    std::map<long, vantrel::WholePtr<CBaseObjectImpl>> m_panels; ///< by key
    std::map<long, std::unique_ptr<CGroupObject>> m_groups;      ///< by key
    std::unique_ptr<CProductionObject> m_productionObject;       ///< or null
    std::map<long, void*> m_heldObjects;
    std::map<std::string, CQZBaseSBD*> m_heldStoryboards; ///< not owned
    std::int32_t m_heldState1 = 0;
    long m_heldLimit = 24;
    long m_heldCount3 = 0;
    long m_heldCount4 = 0;
    std::string m_heldText1;
    std::string m_heldText2;
    long m_nextID = 0; ///< the last id handed out
    std::int32_t m_heldState2 = 0;
    std::string m_heldText3;
    /// Elements of panels and groups that a file had under no key of their kind: they go back as they
    /// stood, behind the others.
    std::vector<vantrel::KeptXmlPtr> m_strayPanels;
    std::vector<vantrel::KeptXmlPtr> m_strayGroups;
};

/// How many storyboards the application made and released; the library leaves both alone.
extern VANTREL_API std::int64_t g_SbdCreateCount;
extern VANTREL_API std::int64_t g_SbdReleaseCount;
