#include "core/Number.h"
#include "storyboard/ParentChildren.h"
#include "storyboard/TimeAdjust.h"
#include "xml/KeptXml.h"
#include "xml/MemberTable.h"

#include <algorithm>
#include <limits>

using std::string;
using std::string_view;
using namespace vantrel;

namespace {

using Layer = CParentObjectImpl::Layer;
using EffectMap = CParentObjectImpl::EffectMap;

constexpr const char* kMotion = "motion";
constexpr const char* kEffect = "effect";
constexpr const char* kAudioFile = "audiofile";
constexpr const char* kSmartSound = "smartsound";

constexpr tagENM_LAYER_TYPE kFlatLayer{ 1 }; // of an effect that stands under "effects" itself

/// The type that a layer's key told when files had no version yet.
tagENM_LAYER_TYPE OldLayerType(long key)
{
    switch (key) {
    case 0:
        return tagENM_LAYER_TYPE{ 3 };
    case 2:
        return tagENM_LAYER_TYPE{ 1 };
    case 4:
        return tagENM_LAYER_TYPE{ 2 };
    default:
        return tagENM_LAYER_TYPE{ 0 };
    }
}

long NumberAttribute(const xmlNode* element, const char* name)
{
    string store;
    return ParseLong(AttributeText(element, name, store));
}

bool HasChild(const xmlNode* element, string_view name)
{
    return FindChildElement(element, name) != nullptr;
}

/// Reads the children of one parent.
class ParentReader
{
public:
    explicit ParentReader(CParentObjectImpl& parent) : m_parent(parent)
    {
        string version;
        m_isOld = parent.GetSBD() && parent.GetSBD()->get_Version(&version) == status::kOk &&
                  version.empty();
    }

    void ReadLayer(const xmlNode* element)
    {
        if (!HasChild(element, kEffect))
            return;
        const long key = NumberAttribute(element, "key");
        const tagENM_LAYER_TYPE type =
            m_isOld ? OldLayerType(key)
                    : static_cast<tagENM_LAYER_TYPE>(NumberAttribute(element, "type"));
        EffectMap& effects = LayerOf(key, type);
        for (xmlNode* child : ChildElements(element)) {
            if (IsNamed(child, kEffect))
                ReadEffect(child, effects);
        }
    }

    void ReadFlatEffect(xmlNode* element)
    {
        ReadEffect(element, LayerOf(NumberAttribute(element, "key"), kFlatLayer));
    }

    void ReadAudio(xmlNode* element)
    {
        const long id = NextChildID(m_parent, m_parent.m_audioList);
        string store;
        if (AttributeText(element, "type", store) == kSmartSound) {
            m_parent.m_smartSounds[id] = KeepXml(element); // another program's
            m_parent.m_audioList.emplace(id, nullptr);
            return;
        }
        auto audio = MakeChild<CAudioObject>(m_parent, id);
        (void)audio->LoadXML(element); // it stays with what it read
        m_parent.m_audioList.emplace(id, audio.release());
    }

private:
    /// The layer of that key; the first of it tells the type.
    EffectMap& LayerOf(long key, tagENM_LAYER_TYPE type)
    {
        Layer& layer = m_parent.m_layers[key];
        if (!layer.second) {
            layer = { type, std::make_unique<EffectMap>() };
            m_parent.m_layerOrder.push_back(key);
            m_parent.m_maxLayerKey = std::max(m_parent.m_maxLayerKey, key);
        }
        return *layer.second;
    }

    void ReadEffect(xmlNode* element, EffectMap& effects)
    {
        string store;
        if (AttributeText(element, "type", store) == kMotion)
            ReadAs<CMotionObject>(element, effects);
        else
            ReadAs<CEffectObject>(element, effects);
    }

    template <class Object>
    void ReadAs(xmlNode* element, EffectMap& effects)
    {
        const long id = NextChildID(m_parent, effects);
        auto object = MakeChild<Object>(m_parent, id);
        object->m_isOldVersion = m_isOld;
        (void)object->LoadXML(element); // it stays with what it read
        if (object->IsOldVersion())
            AdjustTimes(*object);
        effects.emplace(id, object.release());
    }

    void AdjustTimes(CSubObjectImpl& object) const
    {
        object.m_startOffset = m_frames.FrameMid(object.m_startOffset);
        const long end = m_frames.FrameNumber(object.m_endOffset);
        object.m_endOffset =
            m_frames.Frame2Mid(end == std::numeric_limits<long>::min() ? end : end - 1);
    }

    CParentObjectImpl& m_parent;
    const CVCUTimeAdjust m_frames{ 29.97 };
    bool m_isOld;
};

void SaveEffects(const MemberPlace& place, const char* name, const CParentObjectImpl& parent)
{
    xmlNode* effects = AddMember(place, name);
    for (const auto* entry : LayersInOrder(parent)) {
        xmlNode* layer = AddElement(effects, "layer");
        (void)AddAttribute(layer, "key",
                           NumberText(entry->first)); // fails for want of memory alone
        (void)AddAttribute(layer, "type", NumberText(long{ entry->second.first }));
        for (const auto& [id, effect] : *entry->second.second) {
            if (!effect || !effect->m_whole)
                continue;
            xmlNode* element = AddElement(layer, kEffect);
            (void)AddAttribute(element, "type", effect->IsMotion() ? kMotion : kEffect);
            (void)effect->m_whole->SaveXML(element); // can't fail on a node
        }
    }
}

void LoadEffects(xmlNode* element, CParentObjectImpl& parent)
{
    if (!element)
        return;
    parent.m_layers.clear();
    parent.m_layerOrder.clear();
    ParentReader reader(parent);
    const bool layered = HasChild(element, "layer");
    for (xmlNode* child : ChildElements(element)) {
        if (layered && IsNamed(child, "layer"))
            reader.ReadLayer(child);
        else if (!layered && IsNamed(child, kEffect))
            reader.ReadFlatEffect(child);
    }
}

void SaveAudioList(const MemberPlace& place, const char* name, const CParentObjectImpl& parent)
{
    xmlNode* list = AddMember(place, name);
    for (const auto& [id, audio] : parent.m_audioList) {
        const auto kept = parent.m_smartSounds.find(id);
        if (!audio && kept != parent.m_smartSounds.end()) {
            (void)AppendKeptXml(list, kept->second); // fails for want of memory alone
            continue;
        }
        xmlNode* element = AddElement(list, "audio");
        (void)AddAttribute(element, "type", audio ? kAudioFile : kSmartSound);
        if (audio && audio->m_whole)
            (void)audio->m_whole->SaveXML(element); // can't fail on a node
    }
}

void LoadAudioList(xmlNode* element, CParentObjectImpl& parent)
{
    if (!element)
        return;
    parent.m_audioList.clear();
    parent.m_smartSounds.clear();
    ParentReader reader(parent);
    for (xmlNode* child : ChildElements(element)) {
        if (IsNamed(child, "audio"))
            reader.ReadAudio(child);
    }
}

// The elements of "parentObject".
constexpr MemberRow<CParentObjectImpl> kParentObject[] = {
    { "effects", SaveEffects, LoadEffects },
    { "audioList", SaveAudioList, LoadAudioList },
};

} // namespace

Status CXMLParentObjectImpl::SaveMembers()
{
    SaveTable(kParentObject);
    return status::kOk;
}

Status CXMLParentObjectImpl::LoadMembers()
{
    LoadTable(kParentObject);
    return status::kOk;
}
