#pragma once

#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/TransitionObject.h"
#include "values/Layer.h"

#include <cstddef>
#include <iterator>
#include <map>
#include <memory>
#include <ranges>
#include <vector>

namespace vantrel {

/// A point in time on a panel, in seconds from its start.
class Marker : public Handle<tagMarker>
{
public:
    using Handle::Handle;
    /// An entry of a list of markers.
    explicit Marker(const std::unique_ptr<tagMarker>& entry) : Handle(entry.get()) {}

    long id() const { return Field(&tagMarker::id); }
    double time() const { return Field(&tagMarker::time); }
    /// The application's.
    unsigned long type() const { return Field(&tagMarker::type); }
    long state() const { return Field(&tagMarker::state); }
};

/// What a panel shows.
enum class PanelKind
{
    none, ///< of an empty handle
    clip, ///< a file
    colour,
    gap,
    transition,
};

/// One panel of a storyboard, with its place on the time line. Times are seconds.
///
/// The place is that of the moment in which the handle was made: a handle that was taken before the
/// time line changed goes on telling the old one.
class Panel : public Handle<CBaseObjectImpl>, public Carries<Panel>
{
    using P = CBaseObjectImpl;

public:
    using Markers = Items<Marker, std::vector<std::unique_ptr<tagMarker>>>;

    Panel() = default;
    Panel(long key, CBaseObjectImpl* panel, double start)
        : Handle(panel),
          m_key(key),
          m_start(start)
    {}

    /// Even for what is shown, odd for a transition between two of these.
    long key() const { return m_key; }
    long id() const { return Field(&P::m_id); }
    PanelKind kind() const
    {
        if (as<CClipObject>())
            return PanelKind::clip;
        if (const auto* colour = as<CColorObject>())
            return colour->m_isGap ? PanelKind::gap : PanelKind::colour;
        return object() ? PanelKind::transition : PanelKind::none;
    }

    double start() const { return m_start; }
    double end() const { return m_start + duration(); }
    double duration() const { return Field(&P::m_duration); }
    Status duration(double seconds) const { return Field(&P::m_duration, seconds); }
    double speed() const { return Field(&P::m_speed); }
    Status speed(double factor) const { return Field(&P::m_speed, factor); }

    /// The file of a clip; empty for any other.
    Source source() const { return as<CClipObject>(); }
    std::string file() const { return source().file(); }
    /// The sound of the clip's own file; empty for none.
    Audio nativeAudio() const
    {
        const auto* clip = as<CClipObject>();
        return clip ? clip->m_nativeAudio.get() : nullptr;
    }
    /// Of a colour, red in the lowest byte.
    unsigned long colour() const
    {
        const auto* colour = as<CColorObject>();
        return colour ? colour->m_color : 0;
    }
    Status colour(unsigned long value) const
    {
        auto* colour = as<CColorObject>();
        if (!colour)
            return status::kUnexpected;
        colour->m_color = value;
        return status::kOk;
    }

    /// What lies on a clip or a colour; empty for a transition.
    Carrier carrier() const
    {
        if (auto* clip = as<CClipObject>())
            return clip;
        return as<CColorObject>();
    }

    using Carries::remove;

    /// @name Markers of a clip or a colour
    /// @{
    Markers markers() const
    {
        const CMarkerDataImpl* list = MarkerList();
        return Markers(list ? &list->m_markers : nullptr);
    }
    /// The type is the application's.
    Marker addMarker(double time, unsigned type = 0) const
    {
        CMarkerDataImpl* list = MarkerList();
        return list ? list->MarkerAddToList(time, static_cast<eMarkerType>(type), 0, {}) : nullptr;
    }
    Status remove(Marker marker) const
    {
        CMarkerDataImpl* list = MarkerList();
        return list ? list->MarkerRemove(marker.id()) : status::kNullPointer;
    }
    /// @}

    /// The complete object as what it is, `panel.as<CClipObject>()`; null when it is something else.
    template <class Whole>
    Whole* as() const
    {
        return object() ? dynamic_cast<Whole*>(object()->m_whole) : nullptr;
    }

private:
    CMarkerDataImpl* MarkerList() const { return as<CMarkerDataImpl>(); }

    long m_key = 0;
    double m_start = 0.0;
};

/// The panels of a storyboard in their order, or those of one kind: a view that borrows the
/// storyboard. A transition lies over the end of the clip before it and the start of the one behind.
class Panels : public std::ranges::view_base
{
public:
    enum Choice
    {
        kAll,
        kClips, ///< what is shown: files, colours, gaps
        kTransitions,
    };
    using Map = std::map<long, WholePtr<CBaseObjectImpl>>;

    class Iterator
    {
    public:
        using value_type = Panel;
        using difference_type = std::ptrdiff_t;
        using iterator_concept = std::forward_iterator_tag;
        using iterator_category = std::input_iterator_tag;

        Iterator() = default;
        Iterator(const Map* panels, Choice choice) : m_panels(panels), m_choice(choice)
        {
            if (m_panels)
                m_place = m_panels->begin();
            Settle();
        }

        Panel operator*() const { return m_panel; }
        const Panel* operator->() const { return &m_panel; }
        Iterator& operator++()
        {
            Pass();
            Settle();
            return *this;
        }
        Iterator operator++(int)
        {
            Iterator old = *this;
            ++*this;
            return old;
        }
        friend bool operator==(const Iterator& a, const Iterator& b)
        {
            return a.m_place == b.m_place;
        }
        friend bool operator==(const Iterator& a, std::default_sentinel_t) { return !a.m_panel; }

    private:
        bool IsTransition() const { return m_place->first % 2 != 0; }
        double Duration() const { return m_place->second ? m_place->second->m_duration : 0.0; }
        double Start() const { return IsTransition() ? m_time - Duration() : m_time; }
        void Pass()
        {
            m_time += IsTransition() ? -Duration() : Duration();
            ++m_place;
        }
        void Settle()
        {
            m_panel = Panel();
            for (; m_panels && m_place != m_panels->end(); Pass()) {
                const bool isChosen =
                    m_choice == kAll || (m_choice == kTransitions) == IsTransition();
                if (!isChosen || !m_place->second)
                    continue;
                m_panel = Panel(m_place->first, m_place->second.get(), Start());
                return;
            }
        }

        const Map* m_panels = nullptr;
        Choice m_choice = kAll;
        Map::const_iterator m_place{};
        double m_time = 0.0; ///< where the next clip starts, as far as is known yet
        Panel m_panel;
    };

    Panels() = default;
    Panels(const Map* panels, Choice choice) : m_panels(panels), m_choice(choice) {}

    Iterator begin() const { return { m_panels, m_choice }; }
    std::default_sentinel_t end() const { return {}; }

    bool empty() const { return begin() == end(); }
    long count() const { return static_cast<long>(std::ranges::distance(*this)); }
    Panel front() const { return *begin(); }
    /// The one of that key, or an empty handle.
    Panel find(long key) const
    {
        for (const Panel panel : *this) {
            if (panel.key() == key)
                return panel;
        }
        return {};
    }

private:
    const Map* m_panels = nullptr; ///< not owned; may be null
    Choice m_choice = kAll;
};

} // namespace vantrel

template <>
inline constexpr bool std::ranges::enable_borrowed_range<vantrel::Panels> = true;
