#include "storyboard/StoryboardIds.h"

#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/ParentChildren.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SourceFileObject.h"

namespace vantrel {

namespace {

constexpr long kNone = -1; // of an effect to which a load gives no id

} // namespace

// The order is that of a load: the production, the clips with what lies on them, the transitions.
StoryboardIds::StoryboardIds(CQZBaseSBD& storyboard)
{
    ++m_last; // the production's own, which no file holds
    ++m_last; // set aside for a special effect, whether or not there is one
    if (CProductionObject* production = storyboard.m_productionObject.get()) {
        if (production->m_bkgFile)
            Number(*production->m_bkgFile);
        if (production->m_specialEffect)
            Number(*production->m_specialEffect, kNone);
        Number(static_cast<CParentObjectImpl&>(*production));
    }
    for (const auto& [key, panel] : storyboard.m_panels) {
        if (!IsClipKey(key) || !FitsItsKey(key, panel.get()))
            continue;
        if (auto* clip = dynamic_cast<CClipObject*>(panel->m_whole)) {
            Number(static_cast<CSourceFileImpl&>(*clip));
            Number(static_cast<CParentObjectImpl&>(*clip));
            Number(static_cast<CNativeInfoImpl&>(*clip));
        } else if (auto* parent = dynamic_cast<CParentObjectImpl*>(panel->m_whole)) {
            Number(*parent);
        }
        Set(panel->m_id, ++m_last);
    }
    for (const auto& [key, panel] : storyboard.m_panels) {
        if (!IsClipKey(key) && FitsItsKey(key, panel.get()))
            Set(panel->m_id, ++m_last);
    }
}

StoryboardIds::~StoryboardIds()
{
    for (const auto& [field, id] : m_former)
        *field = id;
}

void StoryboardIds::Set(long& field, long id)
{
    m_former.emplace_back(&field, field);
    field = id;
}

void StoryboardIds::Number(CSourceFileImpl& file)
{
    if (file.m_panZoomEffect)
        Number(*file.m_panZoomEffect, kNone);
}

void StoryboardIds::Number(CNativeInfoImpl& native)
{
    if (native.m_nativeAudio)
        Number(static_cast<CSourceFileImpl&>(*native.m_nativeAudio));
}

void StoryboardIds::Number(CEffectInfoImpl& effect, long id)
{
    Set(effect.m_effectID, id);
    if (effect.m_alphaFile)
        Number(static_cast<CSourceFileImpl&>(*effect.m_alphaFile));
    if (auto* motion = dynamic_cast<CMotionObject*>(effect.m_whole)) {
        Number(static_cast<CSourceFileImpl&>(*motion));
        Number(static_cast<CParentObjectImpl&>(*motion));
        Number(static_cast<CNativeInfoImpl&>(*motion));
    }
}

void StoryboardIds::Number(CParentObjectImpl& parent)
{
    for (const auto* layer : LayersInOrder(parent)) {
        for (const auto& [id, effect] : *layer->second.second) {
            if (effect && effect->m_whole)
                Number(*effect, ++m_last);
        }
    }
    for (const auto& [id, audio] : parent.m_audioList) {
        ++m_last;
        if (auto* object = audio ? dynamic_cast<CAudioObject*>(audio->m_whole) : nullptr)
            Number(static_cast<CSourceFileImpl&>(*object));
    }
}

} // namespace vantrel
