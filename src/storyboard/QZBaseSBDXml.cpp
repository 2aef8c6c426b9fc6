#include "core/Number.h"
#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/KeptElement.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/StoryboardIds.h"
#include "storyboard/TransitionObject.h"
#include "xml/KeptXml.h"
#include "xml/MemberTable.h"

#include <set>

using std::string;
using namespace vantrel;

namespace {

using Storyboard = CQZBaseSBD;

constexpr const char* kClip = "clip";
constexpr const char* kTransition = "transition";
constexpr const char* kGroup = "group";
constexpr const char* kSections = "MarkerSections";
constexpr const char* kSection = "Section";
constexpr const char* kSolidColor = "solid color";
constexpr const char* kFileSource = "file source";
constexpr const char* kPresentVersion = "9.0";

/// One marker section.
struct Section
{
    long start = 0;
    long end = 0;
};

// The elements of "Section".
constexpr MemberRow<Section> kSectionRows[] = {
    member::Long<&Section::start>("StartID"),
    member::Long<&Section::end>("EndID"),
};

void LoadSections(const xmlNode* production, Storyboard& sbd)
{
    for (xmlNode* child : ChildElements(FindChildElement(production, kSections))) {
        Section section;
        if (!IsNamed(child, kSection))
            continue;
        LoadRows({ child }, kSectionRows, section);
        (void)sbd.AddSection(section.start, section.end); // can't fail
    }
}

void SaveVersion(const MemberPlace& place, const char* name, const Storyboard& sbd)
{
    AddValue<typed::String>(place.node, name,
                            sbd.m_version.empty() ? kPresentVersion : sbd.m_version);
}

void SaveProduction(const MemberPlace& place, const char* name, const Storyboard& sbd)
{
    xmlNode* element = AddElement(place.node, name);
    if (sbd.m_productionObject)
        (void)sbd.m_productionObject->SaveXML(element); // can't fail on a node
    (void)sbd.SaveSectionsXML(element);                 // there may be none
}

void LoadProduction(xmlNode* element, Storyboard& sbd)
{
    auto production = std::make_unique<CProductionObject>();
    production->SetSBD(&sbd);
    (void)production->put_ID(sbd.NextID());
    (void)production->LoadXML(element); // a missing element leaves the defaults
    sbd.m_productionObject = std::move(production);
    LoadSections(element, sbd);
}

/// What the panel is counts, not what it says of itself: so its content is read as it was written.
const char* TypeOfClip(const CBaseObjectImpl* panel)
{
    const CPersistObject* whole = panel ? panel->m_whole : nullptr;
    if (dynamic_cast<const CColorObject*>(whole))
        return kSolidColor;
    const bool isColor = panel && panel->GetClipType() == eClipSolidColor;
    return isColor && !dynamic_cast<const CClipObject*>(whole) ? kSolidColor : kFileSource;
}

/// Adds an element with a key. What follows a clip bears that clip's type too; null for none.
xmlNode* AddKeyed(xmlNode* parent, const char* name, long key, const char* type)
{
    xmlNode* element = AddElement(parent, name);
    (void)AddAttribute(element, "key", NumberText(key)); // fails for want of memory alone
    if (type)
        (void)AddAttribute(element, "type", type);
    return element;
}

void SaveStrays(xmlNode* parent, const std::vector<KeptXmlPtr>& strays)
{
    for (const KeptXmlPtr& stray : strays)
        (void)AppendKeptXml(parent, stray); // fails for want of memory alone
}

void SavePanels(const MemberPlace& place, const char* name, const Storyboard& sbd)
{
    xmlNode* panels = AddElement(place.node, name);
    const char* type = nullptr;
    for (const auto& [key, panel] : sbd.m_panels) {
        if (!FitsItsKey(key, panel.get()))
            continue;
        if (IsClipKey(key))
            type = TypeOfClip(panel.get());
        xmlNode* element = AddKeyed(panels, IsClipKey(key) ? kClip : kTransition, key, type);
        (void)panel->m_whole->SaveXML(element); // can't fail on a node
    }
    for (const auto& [key, panel] : sbd.m_panels) { // the rest where a load finds the strays
        if (!panel || !panel->m_whole || FitsItsKey(key, panel.get()))
            continue;
        const bool isTransition = IsClipKey(key);
        xmlNode* element = AddKeyed(panels, isTransition ? kTransition : kClip, key,
                                    isTransition ? nullptr : TypeOfClip(panel.get()));
        (void)panel->m_whole->SaveXML(element); // can't fail on a node
        DropEmptyTexts(element);
    }
    SaveStrays(panels, sbd.m_strayPanels);
}

template <class Panel>
std::unique_ptr<Panel> ReadPanel(xmlNode* element, Storyboard& sbd, ClipType type)
{
    auto panel = std::make_unique<Panel>(ForReading());
    panel->SetSBD(&sbd);
    panel->SetClipType(type);
    (void)panel->put_ParentProduction(&sbd); // can't fail
    (void)panel->LoadXML(element);           // it stays with what it read
    return panel;
}

WholePtr<CBaseObjectImpl> ReadClip(xmlNode* element, Storyboard& sbd)
{
    string store;
    if (AttributeText(element, "type", store) == kSolidColor)
        return WholePtr<CBaseObjectImpl>(
            ReadPanel<CColorObject>(element, sbd, eClipSolidColor).release());
    return WholePtr<CBaseObjectImpl>(
        ReadPanel<CClipObject>(element, sbd, eClipFileSource).release());
}

WholePtr<CBaseObjectImpl> ReadTransition(xmlNode* element, Storyboard& sbd)
{
    return WholePtr<CBaseObjectImpl>(
        ReadPanel<CTransitionObject>(element, sbd, eClipSolidColor).release());
}

long KeyOf(const xmlNode* element)
{
    string store;
    return ParseLong(AttributeText(element, "key", store));
}

bool HasKey(const xmlNode* element)
{
    string store;
    return !AttributeText(element, "key", store).empty();
}

void LoadPanels(xmlNode* element, Storyboard& sbd)
{
    if (!element)
        return;
    const auto isStray = [](const xmlNode* child) {
        const bool isClip = IsNamed(child, kClip);
        return (isClip || IsNamed(child, kTransition)) &&
               (!HasKey(child) || IsClipKey(KeyOf(child)) != isClip);
    };
    sbd.m_strayPanels.clear();
    for (xmlNode* child : ChildElements(element)) {
        if (isStray(child))
            sbd.m_strayPanels.emplace_back(CopyXml(child).release());
    }
    const auto load = [&](const char* name, auto read) {
        for (xmlNode* child : ChildElements(element)) {
            if (!IsNamed(child, name) || isStray(child))
                continue;
            WholePtr<CBaseObjectImpl> panel = read(child, sbd);
            (void)panel->put_ID(sbd.NextID()); // behind those of what lies on it
            sbd.m_panels[KeyOf(child)] = std::move(panel);
        }
    };
    load(kClip, ReadClip); // the clips first, so that transitions don't move their ids
    load(kTransition, ReadTransition);
}

void SaveGroups(const MemberPlace& place, const char* name, const Storyboard& sbd)
{
    xmlNode* groups = AddElement(place.node, name);
    const char* type = nullptr;
    for (auto last = sbd.m_panels.rbegin(); last != sbd.m_panels.rend() && !type; ++last)
        type = IsClipKey(last->first) && FitsItsKey(last->first, last->second.get())
                   ? TypeOfClip(last->second.get())
                   : nullptr;
    for (const auto& [key, group] : sbd.m_groups) {
        if (group)
            (void)group->SaveXML(AddKeyed(groups, kGroup, key, type)); // can't fail on a node
    }
    SaveStrays(groups, sbd.m_strayGroups);
}

void LoadGroups(xmlNode* element, Storyboard& sbd)
{
    if (!element)
        return;
    sbd.m_strayGroups.clear();
    std::set<long> taken;
    for (xmlNode* child : ChildElements(element)) {
        if (!IsNamed(child, kGroup))
            continue;
        if (HasKey(child) && taken.insert(KeyOf(child)).second)
            (void)sbd.AddGroup(KeyOf(child))->LoadXML(child); // it stays with what it read
        else
            sbd.m_strayGroups.emplace_back(CopyXml(child).release());
    }
}

// The elements of a storyboard.
constexpr MemberRow<Storyboard> kStoryboard[] = {
    { "version", SaveVersion, member::LoadField<typed::String, &Storyboard::m_version> },
    member::Bool<&Storyboard::m_isVOB>("isVOB"),
    { "production", SaveProduction, LoadProduction },
    { "panels", SavePanels, LoadPanels },
    { "groups", SaveGroups, LoadGroups },
};

} // namespace

Status CQZBaseSBD::PersistXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kBadArgument;
    if (!save) {
        LoadRows({ node }, kStoryboard, *this);
        return status::kOk;
    }
    const StoryboardIds ids(*this);
    SaveRows({ node }, kStoryboard, *this);
    return status::kOk;
}

Status CQZBaseSBD::SaveSectionsXML(_xmlNode* parent) const
{
    if (m_sections.empty())
        return status::kNothingDone;
    xmlNode* sections = AddElement(parent, kSections);
    for (const auto& [start, end] : m_sections)
        SaveRows({ AddElement(sections, kSection) }, kSectionRows, Section{ start, end });
    return status::kOk;
}
