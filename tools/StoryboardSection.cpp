#include "Sections.h"

#include <set>

using std::string;

namespace tool {

namespace {

void AddParts(Json& facts, const CParentObjectImpl& parent);

void AddPlace(Json& facts, const CSubObjectImpl& object)
{
    facts["start"] = NumberFact(object.m_startOffset);
    facts["end"] = NumberFact(object.m_endOffset);
    facts["mute"] = object.m_mute;
}

void AddFile(Json& facts, const CSourceFileImpl& file)
{
    facts["file"] = file.m_fileName;
    facts["inPoint"] = NumberFact(file.m_inPoint);
    facts["outPoint"] = NumberFact(file.m_outPoint);
}

Json AudioFacts(const CAudioInfoImpl* info)
{
    const auto* audio = dynamic_cast<const CAudioObject*>(info ? info->m_whole : nullptr);
    if (!audio)
        return nullptr;
    Json facts{ { "id", audio->CSubObjectImpl::m_id } };
    AddFile(facts, *audio);
    AddPlace(facts, *audio);
    facts["volume"] = NumberFact(audio->m_volumeLevel);
    facts["fadeIn"] = NumberFact(audio->m_fadeIn);
    facts["fadeOut"] = NumberFact(audio->m_fadeOut);
    facts["envelope"] = Json::array();
    for (const auto& [time, level] : audio->m_mixLevels)
        facts["envelope"].push_back({ NumberFact(time), NumberFact(level) });
    facts["equalizers"] = Json::array();
    for (const auto& [bands, model] : audio->m_equalizers)
        facts["equalizers"].push_back(bands);
    return facts;
}

void AddNativeAudio(Json& facts, const CNativeInfoImpl& native)
{
    facts["nativeAudio"] = AudioFacts(native.m_nativeAudio.get());
}

Json EffectFacts(const CEffectInfoImpl& effect)
{
    const auto* motion = dynamic_cast<const CMotionObject*>(effect.m_whole);
    string name;
    if (effect.m_data)
        (void)XMLHelpers<void>::LoadStringNode(effect.m_data, "name", "", &name); // or none
    Json facts{ { "id", effect.m_effectID }, { "kind", motion ? "motion" : "effect" } };
    facts["name"] = name;
    if (const auto* object = dynamic_cast<const CSubObjectImpl*>(effect.m_whole))
        AddPlace(facts, *object);
    if (motion) {
        AddFile(facts, *motion);
        AddParts(facts, *motion);
        AddNativeAudio(facts, *motion);
    }
    return facts;
}

Json LayerFacts(long key, const CParentObjectImpl::Layer& layer)
{
    Json facts{ { "key", key }, { "type", long(layer.first) }, { "effects", Json::array() } };
    for (const auto& [id, effect] : *layer.second)
        facts["effects"].push_back(EffectFacts(*effect));
    return facts;
}

/// What lies on a panel, a motion or the production.
void AddParts(Json& facts, const CParentObjectImpl& parent)
{
    facts["layers"] = Json::array();
    std::set<long> told; // a file may name a layer twice
    for (const long key : parent.m_layerOrder) {
        const auto layer = parent.m_layers.find(key);
        if (layer != parent.m_layers.end() && told.insert(key).second)
            facts["layers"].push_back(LayerFacts(key, layer->second));
    }
    facts["audio"] = Json::array();
    for (const auto& [id, audio] : parent.m_audioList) {
        if (Json sound = AudioFacts(audio.get()); !sound.is_null())
            facts["audio"].push_back(std::move(sound));
    }
}

void AddMarkers(Json& facts, const CMarkerDataImpl& markers)
{
    facts["markers"] = Json::array();
    for (const auto& marker : markers.m_markers) {
        facts["markers"].push_back({ { "id", marker->id },
                                     { "type", marker->type },
                                     { "time", NumberFact(marker->time) },
                                     { "state", long(marker->state) } });
    }
}

void AddKind(Json& facts, const CBaseObjectImpl& panel)
{
    if (const auto* clip = dynamic_cast<const CClipObject*>(panel.m_whole)) {
        facts["kind"] = "file";
        AddFile(facts, *clip);
        AddParts(facts, *clip);
        AddNativeAudio(facts, *clip);
        AddMarkers(facts, *clip);
    } else if (const auto* colour = dynamic_cast<const CColorObject*>(panel.m_whole)) {
        facts["kind"] = colour->m_isGap ? "gap" : "colour";
        facts["colour"] = ColourFact(colour->m_color);
        AddParts(facts, *colour);
        AddMarkers(facts, *colour);
    } else {
        facts["kind"] = "transition";
    }
}

/// Panels with the times that they start at: a transition lies over the end of the clip before it
/// and the start of the one behind it.
Json PanelFacts(const CQZBaseSBD& storyboard)
{
    Json panels = Json::array();
    double time = 0.0;
    for (const auto& [key, panel] : storyboard.m_panels) {
        const bool over = key % 2 != 0;
        time -= over ? panel->m_duration : 0.0;
        Json facts{ { "key", key }, { "id", panel->m_id }, { "start", NumberFact(time) } };
        facts["end"] = NumberFact(time + panel->m_duration);
        facts["duration"] = NumberFact(panel->m_duration);
        facts["speed"] = NumberFact(panel->m_speed);
        AddKind(facts, *panel);
        panels.push_back(std::move(facts));
        time += over ? 0.0 : panel->m_duration;
    }
    return panels;
}

Json GroupFacts(const CQZBaseSBD& storyboard)
{
    Json groups = Json::array();
    for (const auto& [key, group] : storyboard.m_groups) {
        groups.push_back({ { "key", key },
                           { "id", group->m_id },
                           { "name", group->m_name },
                           { "description", group->m_description },
                           { "start", group->m_start },
                           { "end", group->m_end } });
    }
    return groups;
}

} // namespace

Json StoryboardFacts(CQZBaseSBD* storyboard)
{
    if (!storyboard)
        return nullptr;
    Json facts{ { "version", storyboard->m_version },
                { "duration", NumberFact(getSbdDuration(storyboard)) } };
    const CProductionObject unset;
    const auto& production =
        storyboard->m_productionObject ? *storyboard->m_productionObject : unset;
    facts["frameRate"] = NumberFact(production.m_editFrameRate);
    facts["aspectRatio"] = NumberFact(production.m_aspectRatio);
    facts["panels"] = PanelFacts(*storyboard);
    AddParts(facts, production);
    facts["sections"] = Json::array();
    for (const auto& [start, end] : storyboard->m_sections)
        facts["sections"].push_back({ { "start", start }, { "end", end } });
    facts["groups"] = GroupFacts(*storyboard);
    return facts;
}

} // namespace tool
