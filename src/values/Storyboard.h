#pragma once

#include "storyboard/GroupObj.h"
#include "storyboard/ProductionObject.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SbdUtils.h"
#include "values/Panel.h"

#include <cmath>
#include <map>
#include <memory>
#include <string>

namespace vantrel {

/// A group of panels.
class Group : public Handle<CGroupObject>
{
    using G = CGroupObject;

public:
    using Handle::Handle;
    /// An entry of a storyboard's groups.
    explicit Group(const std::pair<const long, std::unique_ptr<CGroupObject>>& entry)
        : Handle(entry.second.get()),
          m_key(entry.first)
    {}

    long key() const { return m_key; }
    long id() const { return Field(&G::m_id); }
    std::string name() const { return Field(&G::m_name); }
    Status name(std::string value) const { return Field(&G::m_name, std::move(value)); }
    std::string description() const { return Field(&G::m_description); }
    Status description(std::string value) const
    {
        return Field(&G::m_description, std::move(value));
    }
    /// Panel numbers.
    long start() const { return Field(&G::m_start); }
    Status start(long panel) const { return Field(&G::m_start, panel); }
    long end() const { return Field(&G::m_end); }
    Status end(long panel) const { return Field(&G::m_end, panel); }

private:
    long m_key = 0;
};

/// The time line behind a title or a menu, in seconds. What lies on the whole of it, effects and
/// sounds, is asked of the storyboard itself.
/// @code
///     auto line = title.makeStoryboard();
///     line.addClip("ferry.mpg", 2, 14);
///     line.addTransition(1);
///     line.addClip("road.mpg", 0, 8);
///     line.addAudio("accordion.wav", 0, line.duration()).fadeOut(3);
/// @endcode
class Storyboard : public Handle<CQZBaseSBD>, public Carries<Storyboard>
{
    using S = CQZBaseSBD;

public:
    using Handle::Handle;
    using Groups = Items<Group, std::map<long, std::unique_ptr<CGroupObject>>>;

    double duration() const { return getSbdDuration(object()); }
    /// Gives the last clip the duration that makes the whole so long.
    Status duration(double seconds) const { return setSbdDuration(object(), seconds); }
    std::string version() const { return Field(&S::m_version); }
    /// Frames a second.
    double frameRate() const { return Production().Get(&CProductionObject::m_editFrameRate); }
    Status frameRate(double value) const
    {
        return Production().Set(&CProductionObject::m_editFrameRate, value);
    }
    double aspectRatio() const { return Production().Get(&CProductionObject::m_aspectRatio); }
    Status aspectRatio(double value) const
    {
        return Production().Set(&CProductionObject::m_aspectRatio, value);
    }

    /// @name Panels
    /// @{
    Panels panels() const { return Choose(Panels::kAll); }
    Panels clips() const { return Choose(Panels::kClips); }
    Panels transitions() const { return Choose(Panels::kTransitions); }

    /// Appends a clip that shows `file` from `inPoint` to `outPoint`. Empty when these are no
    /// stretch of time.
    Panel addClip(std::string file, double inPoint, double outPoint) const
    {
        if (!object() || !IsSpan(outPoint - inPoint))
            return {};
        const long key = NextClip();
        CClipObject* clip = object()->AddClipPanel(key);
        clip->m_fileName = std::move(file);
        clip->m_inPoint = inPoint;
        clip->m_outPoint = outPoint;
        clip->m_duration = outPoint - inPoint;
        return panels().find(key);
    }
    /// Appends a colour, red in the lowest byte.
    Panel addColour(unsigned long colour, double seconds) const
    {
        if (!object() || !IsSpan(seconds))
            return {};
        const long key = NextClip();
        CColorObject* panel = object()->AddColorPanel(key);
        panel->m_color = colour;
        panel->m_duration = seconds;
        return panels().find(key);
    }
    /// Puts a transition behind the last clip, in the place of one that is there. Empty without a
    /// clip.
    Panel addTransition(double seconds) const
    {
        if (!object() || object()->m_panels.empty() || !IsSpan(seconds))
            return {};
        const long key = NextClip() - 1;
        object()->AddTransition(key)->m_duration = seconds;
        return panels().find(key);
    }
    /// Releases a panel. The keys of the others stay.
    Status remove(Panel panel) const
    {
        if (!object() || !panel)
            return status::kNullPointer;
        CBaseObjectImpl* found = nullptr;
        (void)object()->GetPanelBaseObject(panel.key(), &found); // null tells
        return found == panel.object() ? object()->RemovePanel(panel.key()) : status::kNoSuchObject;
    }
    using Carries::remove;
    /// @}

    Groups groups() const { return Groups(object() ? &object()->m_groups : nullptr); }
    /// Start and end marker IDs of the sections.
    std::map<long, long> sections() const { return Field(&S::m_sections); }

    /// What lies on the time line as a whole.
    Carrier carrier() const { return object() ? object()->m_productionObject.get() : nullptr; }

private:
    /// The settings of the whole.
    class Settings : public Handle<CProductionObject>
    {
    public:
        using Handle::Handle;
        template <class Value>
        Value Get(Value CProductionObject::*field) const
        {
            return Field(field);
        }
        template <class Value>
        Status Set(Value CProductionObject::*field, Value value) const
        {
            return Field(field, value);
        }
    };
    Settings Production() const { return object() ? object()->m_productionObject.get() : nullptr; }
    Panels Choose(Panels::Choice choice) const
    {
        return { object() ? &object()->m_panels : nullptr, choice };
    }
    static bool IsSpan(double seconds) { return std::isfinite(seconds) && seconds >= 0.0; }
    /// The even key behind all panels.
    long NextClip() const
    {
        const auto& panels = object()->m_panels;
        return panels.empty() ? 0 : panels.rbegin()->first / 2 * 2 + 2;
    }
};

} // namespace vantrel
