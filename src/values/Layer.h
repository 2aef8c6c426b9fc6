#pragma once

#include "core/Message.h"
#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "transform/QZEffect.h"
#include "values/Audio.h"
#include "values/Items.h"
#include "xml/XMLHelpers.h"
#include "xml/XmlPtr.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <ranges>
#include <set>
#include <string>
#include <string_view>
#include <utility>

/// @file
/// What lies on a panel, a motion or a whole time line: layers of effects, and sounds.

namespace vantrel {

class Carrier;

/// An effect on a layer; a motion is one that carries effects and sounds of its own.
class Effect : public Handle<CEffectInfoImpl>
{
    using E = CEffectInfoImpl;

public:
    using Handle::Handle;
    /// An entry of a layer.
    explicit Effect(const std::pair<const long, WholePtr<CEffectInfoImpl>>& entry)
        : Handle(entry.second.get())
    {}

    long id() const { return Field(&E::m_effectID); }
    bool isMotion() const { return object() && object()->IsMotion(); }

    /// In seconds, from the start of what the effect lies on.
    double start() const { return Place().start; }
    double end() const { return Place().end; }
    Status place(double start, double end) const
    {
        auto* part = Whole<CSubObjectImpl>();
        if (!part)
            return status::kNullPointer;
        part->m_startOffset = start;
        part->m_endOffset = end;
        return status::kOk;
    }

    /// The file of a motion; empty for another effect.
    Source source() const { return Whole<CSourceFileImpl>(); }
    /// What lies on a motion; empty for another effect.
    Carrier carrier() const;

    /// @name Data
    /// The XML that the plug-in of the effect understands.
    /// @{
    /// Stays the effect's; null for none.
    _xmlNode* data() const { return Field(&E::m_data); }
    /// Gives the effect a copy of `node`.
    Status data(_xmlNode* node) const
    {
        CQZEffect effect;
        (void)effect.Attach(object()); // without a target it refuses the data
        return effect.setXMLData(node);
    }
    /// The same from text; `status::kBadArgument` for what is no XML.
    Status data(std::string_view xml) const
    {
        const MessageScope silence(nullptr);
        const XmlDocPtr doc{ xmlReadMemory(xml.data(), static_cast<int>(xml.size()), nullptr,
                                           nullptr, XML_PARSE_NONET | XML_PARSE_NOERROR) };
        return doc ? data(xmlDocGetRootElement(doc.get())) : status::kBadArgument;
    }
    /// The name that the data gives the effect, or empty.
    std::string name() const
    {
        std::string name;
        if (data())
            (void)XMLHelpers<void>::LoadStringNode(data(), "name", "", &name); // or none
        return name;
    }
    /// @}

private:
    struct Times
    {
        double start = 0.0;
        double end = 0.0;
    };
    template <class Part>
    Part* Whole() const
    {
        return object() ? dynamic_cast<Part*>(object()->m_whole) : nullptr;
    }
    Times Place() const
    {
        const auto* part = Whole<CSubObjectImpl>();
        return part ? Times{ part->m_startOffset, part->m_endOffset } : Times{};
    }
};

/// One layer of effects.
class Layer : public Handle<const CParentObjectImpl::Layer>
{
public:
    using Effects = Items<Effect, CParentObjectImpl::EffectMap>;

    Layer() = default;
    Layer(long key, const CParentObjectImpl::Layer* layer) : Handle(layer), m_key(key) {}

    long key() const { return m_key; }
    tagENM_LAYER_TYPE type() const { return object() ? object()->first : tagENM_LAYER_TYPE{}; }
    Effects effects() const { return Effects(object() ? object()->second.get() : nullptr); }

private:
    long m_key = 0;
};

/// The layers of a carrier in the order of the file; one that a file names twice comes once.
class Layers : public std::ranges::view_base
{
public:
    class Iterator
    {
    public:
        using value_type = Layer;
        using difference_type = std::ptrdiff_t;
        using iterator_concept = std::input_iterator_tag;

        Iterator() = default;
        explicit Iterator(const CParentObjectImpl* parent) : m_parent(parent) { Settle(); }

        Layer operator*() const { return m_layer; }
        Iterator& operator++()
        {
            m_told.insert(m_layer.key());
            ++m_index;
            Settle();
            return *this;
        }
        void operator++(int) { ++*this; }
        friend bool operator==(const Iterator& a, std::default_sentinel_t) { return !a.m_layer; }

    private:
        void Settle()
        {
            m_layer = Layer();
            for (; m_parent && m_index < m_parent->m_layerOrder.size(); ++m_index) {
                const long key = m_parent->m_layerOrder[m_index];
                const auto found = m_parent->m_layers.find(key);
                if (found != m_parent->m_layers.end() && !m_told.contains(key)) {
                    m_layer = Layer(key, &found->second);
                    return;
                }
            }
        }

        const CParentObjectImpl* m_parent = nullptr;
        std::size_t m_index = 0;
        std::set<long> m_told; ///< the keys that have been met
        Layer m_layer;
    };

    Layers() = default;
    explicit Layers(const CParentObjectImpl* parent) : m_parent(parent) {}

    Iterator begin() const { return Iterator(m_parent); }
    std::default_sentinel_t end() const { return {}; }
    bool empty() const { return begin() == end(); }
    Layer front() const { return *begin(); }
    Layer find(long key) const
    {
        for (const Layer layer : *this) {
            if (layer.key() == key)
                return layer;
        }
        return {};
    }

private:
    const CParentObjectImpl* m_parent = nullptr; ///< not owned; may be null
};

/// The effects of all layers, layer after layer.
class Effects : public std::ranges::view_base
{
public:
    class Iterator
    {
    public:
        using value_type = Effect;
        using difference_type = std::ptrdiff_t;
        using iterator_concept = std::input_iterator_tag;

        Iterator() = default;
        explicit Iterator(const CParentObjectImpl* parent) : m_layer(parent)
        {
            m_effect = (*m_layer).effects().begin();
            Settle();
        }

        Effect operator*() const { return *m_effect; }
        Iterator& operator++()
        {
            ++m_effect;
            Settle();
            return *this;
        }
        void operator++(int) { ++*this; }
        friend bool operator==(const Iterator& a, std::default_sentinel_t end)
        {
            return a.m_layer == end;
        }

    private:
        void Settle()
        {
            constexpr auto end = std::default_sentinel;
            while (m_layer != end && m_effect == end) {
                ++m_layer;
                m_effect = (*m_layer).effects().begin();
            }
        }

        Layers::Iterator m_layer;
        Layer::Effects::Iterator m_effect;
    };

    Effects() = default;
    explicit Effects(const CParentObjectImpl* parent) : m_parent(parent) {}

    Iterator begin() const { return Iterator(m_parent); }
    std::default_sentinel_t end() const { return {}; }
    bool empty() const { return begin() == end(); }
    Effect front() const { return *begin(); }

private:
    const CParentObjectImpl* m_parent = nullptr; ///< not owned; may be null
};

/// What can carry effects and sounds. All of them are the carrier's.
class Carrier : public Handle<CParentObjectImpl>
{
public:
    using Handle::Handle;
    using Sounds = Items<Audio, std::map<long, WholePtr<CAudioInfoImpl>>>;

    Layers layers() const { return Layers(object()); }
    Effects effects() const { return Effects(object()); }
    Sounds audio() const { return Sounds(object() ? &object()->m_audioList : nullptr); }

    /// Puts an effect on the layer of that key, behind those that are there. The layer is made, with
    /// that type, when it isn't there. Keys and types are the application's.
    Effect addEffect(long layerKey, long layerType) const
    {
        return object() ? Effect(object()->AddEffect(layerKey, tagENM_LAYER_TYPE(layerType)))
                        : Effect();
    }
    Effect addMotion(long layerKey, long layerType) const
    {
        return object() ? Effect(object()->AddMotion(layerKey, tagENM_LAYER_TYPE(layerType)))
                        : Effect();
    }
    /// A sound that plays from `start` to `end`, in seconds from the carrier's start.
    Audio addAudio(std::string file, double start, double end) const
    {
        if (!object())
            return {};
        CAudioObject* audio = object()->AddAudio();
        audio->m_fileName = std::move(file);
        audio->m_startOffset = start;
        audio->m_endOffset = end;
        return audio;
    }

    /// Releases an effect or a sound; `status::kNoSuchObject` for one that lies elsewhere.
    Status remove(Effect effect) const
    {
        if (!object() || !effect)
            return status::kNullPointer;
        for (auto& [key, layer] : object()->m_layers) {
            if (layer.second && Erase(*layer.second, effect.id(), effect.object()))
                return status::kOk;
        }
        return status::kNoSuchObject;
    }
    Status remove(Audio audio) const
    {
        if (!object() || !audio)
            return status::kNullPointer;
        const CAudioInfoImpl* part = audio.object();
        return Erase(object()->m_audioList, audio.id(), part) ? status::kOk : status::kNoSuchObject;
    }

private:
    template <class Map, class Part>
    static bool Erase(Map& map, long id, const Part* part)
    {
        const auto found = map.find(id);
        if (found == map.end() || found->second.get() != part)
            return false;
        map.erase(found);
        return true;
    }
};

inline Carrier Effect::carrier() const
{
    return Whole<CParentObjectImpl>();
}

/// The questions and changes of a carrier, for what has one.
template <class Derived>
class Carries
{
public:
    Layers layers() const { return Mine().layers(); }
    Effects effects() const { return Mine().effects(); }
    Carrier::Sounds audio() const { return Mine().audio(); }
    Effect addEffect(long layerKey, long layerType) const
    {
        return Mine().addEffect(layerKey, layerType);
    }
    Effect addMotion(long layerKey, long layerType) const
    {
        return Mine().addMotion(layerKey, layerType);
    }
    Audio addAudio(std::string file, double start, double end) const
    {
        return Mine().addAudio(std::move(file), start, end);
    }
    Status remove(Effect effect) const { return Mine().remove(effect); }
    Status remove(Audio audio) const { return Mine().remove(audio); }

private:
    Carrier Mine() const { return static_cast<const Derived&>(*this).carrier(); }
};

} // namespace vantrel

template <>
inline constexpr bool std::ranges::enable_borrowed_range<vantrel::Layers> = true;
template <>
inline constexpr bool std::ranges::enable_borrowed_range<vantrel::Effects> = true;
