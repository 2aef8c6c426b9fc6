#include "storyboard/SbdUtils.h"

#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/QZBaseSBD.h"

#include <cmath>
#include <utility>

using std::string;
using namespace vantrel;

namespace {

CClipObject* AsClip(CBaseObjectImpl* panel)
{
    return panel ? dynamic_cast<CClipObject*>(panel->m_whole) : nullptr;
}

/// The panel of the background, or null.
CBaseObjectImpl* Background(CQZBaseSBD* sbd)
{
    CBaseObjectImpl* panel = nullptr;
    if (sbd)
        (void)sbd->GetPanelBaseObject(0, &panel); // may be missing
    return panel;
}

double LongestStretch(CBaseObjectImpl* panel)
{
    const CClipObject* clip = AsClip(panel);
    if (clip && clip->m_fileDuration > 0.0 && clip->m_speed > 0.0)
        return (clip->m_fileDuration - clip->m_inPoint) / clip->m_speed;
    return panel->m_duration;
}

CProductionObject* ProductionOf(CQZBaseSBD* sbd)
{
    CProductionObject* production = nullptr;
    if (sbd)
        (void)sbd->GetProductionObj(&production); // may be missing
    return production;
}

/// The first audio on the production's list; a "smartsound" is none of ours.
CAudioObject* BackgroundAudio(CQZBaseSBD* sbd)
{
    if (const CProductionObject* production = ProductionOf(sbd)) {
        for (const auto& [id, audio] : production->m_audioList) {
            if (audio)
                return dynamic_cast<CAudioObject*>(audio->m_whole);
        }
    }
    return nullptr;
}

/// Resets what was known of a file that gives way to another. How the file is used stays.
void ForgetFile(CSourceFileImpl& file)
{
    const CSourceFileImpl blank;
    file.m_fileDuration = blank.m_fileDuration;
    file.m_fileSize = blank.m_fileSize;
    file.m_dataRate = blank.m_dataRate;
    file.m_volLabel.clear();
    file.m_cdDrive.clear();
    file.m_scene = blank.m_scene;
    file.m_sceneStart = blank.m_sceneStart;
    file.m_sceneEnd = blank.m_sceneEnd;
    file.m_albumID = blank.m_albumID;
    file.m_aspectRatio = blank.m_aspectRatio;
    file.m_isTivo = blank.m_isTivo;
    file.m_interlacedType = blank.m_interlacedType;
    file.m_interlacedInfo = blank.m_interlacedInfo;
    file.m_sourceType3D = blank.m_sourceType3D;
    file.m_isLeftEyePrecedence = blank.m_isLeftEyePrecedence;
}

/// Gives all that lies on one parent to another.
void MoveChildren(CParentObjectImpl& from, CParentObjectImpl& to)
{
    to.m_layers = std::exchange(from.m_layers, {});
    to.m_layerOrder = std::exchange(from.m_layerOrder, {});
    to.m_audioList = std::exchange(from.m_audioList, {});
    to.m_smartSounds = std::exchange(from.m_smartSounds, {});
    to.m_maxLayerKey = from.m_maxLayerKey;
    const auto adopt = [&to](const auto& part) {
        if (auto* child = part ? dynamic_cast<CSubObjectImpl*>(part->m_whole) : nullptr)
            (void)child->put_Parent(&to); // can't fail
    };
    for (const auto& [key, layer] : to.m_layers) {
        if (!layer.second)
            continue;
        for (const auto& [id, effect] : *layer.second)
            adopt(effect);
    }
    for (const auto& [id, audio] : to.m_audioList)
        adopt(audio);
}

/// A clip at the place of the background. Of a panel that stands there the clip takes over what it
/// is and what lies on it.
CClipObject* MakeBackgroundClip(CQZBaseSBD& sbd)
{
    const auto former = std::exchange(sbd.m_panels[0], nullptr);
    CClipObject* clip = sbd.AddClipPanel(0);
    if (!former)
        return clip;
    CBaseObjectImpl& base = *clip;
    base.m_id = former->m_id;
    base.m_panelId = former->m_panelId;
    base.m_loadedDuration = former->m_loadedDuration;
    base.m_duration = former->m_duration;
    base.m_groupId = former->m_groupId;
    base.m_flags = former->m_flags;
    base.m_speed = former->m_speed;
    base.m_metaData = std::move(former->m_metaData);
    if (auto* colour = dynamic_cast<CColorObject*>(former->m_whole)) {
        MoveChildren(*colour, *clip);
        clip->m_markers = std::move(colour->m_markers);
    }
    return clip;
}

} // namespace

double getSbdDuration(CQZBaseSBD* sbd)
{
    double duration = 0.0;
    if (const CProductionObject* production = ProductionOf(sbd))
        (void)production->get_Duration(&duration); // fails on null alone
    return duration;
}

double getMaxSbdDuration(CQZBaseSBD* sbd)
{
    if (!ProductionOf(sbd))
        return 0.0;
    double sum = 0.0;
    for (const auto& [key, panel] : sbd->m_panels) {
        if (panel)
            sum += IsClipKey(key) ? LongestStretch(panel.get()) : -panel->m_duration;
    }
    return sum > 0.0 ? sum : 0.0;
}

Status setSbdDuration(CQZBaseSBD* sbd, double duration)
{
    if (!(duration >= 0.0) || !std::isfinite(duration))
        return status::kBadArgument;
    if (!sbd)
        return status::kNullPointer;

    CBaseObjectImpl* last = nullptr;
    for (const auto& [key, panel] : sbd->m_panels) {
        if (panel && IsClipKey(key))
            last = panel.get();
    }
    if (!last)
        return status::kNullPointer;
    double others = 0.0; // without the last clip, whose own duration may be no number
    for (const auto& [key, panel] : sbd->m_panels) {
        if (panel && panel.get() != last)
            others += IsClipKey(key) ? panel->m_duration : -panel->m_duration;
    }
    if (!(others <= duration))
        return status::kBadArgument;
    last->m_duration = duration - others;
    return status::kOk;
}

Status getSbdBkgndVideo(CQZBaseSBD* sbd, string* out)
{
    CBaseObjectImpl* panel = Background(sbd);
    if (!out)
        return status::kNullPointer;
    if (panel && panel->GetClipType() == eClipFileSource && AsClip(panel))
        return AsClip(panel)->get_FileName(out);
    return status::kOk;
}

Status setSbdBkgndVideo(CQZBaseSBD* sbd, string path, bool fitToVideo)
{
    if (!sbd)
        return status::kNullPointer;
    if (path.empty())
        return status::kBadArgument;

    CClipObject* clip = AsClip(Background(sbd));
    if (!clip)
        clip = MakeBackgroundClip(*sbd);
    clip->SetClipType(eClipFileSource);

    const string name = CSourceFileImpl::CleanFileName(std::move(path));
    if (clip->m_fileName != name) {
        ForgetFile(*clip);
        clip->m_fileName = name;
        clip->m_type = CSourceFileImpl().m_type;
        clip->m_nativeAudio.reset();
        clip->m_canUseNativeAudio = true; // as far as anybody knows
    }
    clip->m_inPoint = 0.0;
    clip->m_outPoint = 0.0;
    if (fitToVideo && clip->m_fileDuration > 0.0)
        clip->m_duration = clip->m_fileDuration;
    return status::kOk;
}

Status getSbdBkgndAudio(CQZBaseSBD* sbd, string* out)
{
    if (!out)
        return status::kNullPointer;
    const CAudioObject* audio = BackgroundAudio(sbd);
    return audio ? audio->get_FileName(out) : status::kOk;
}

Status setSbdBkgndAudio(CQZBaseSBD* sbd, string path)
{
    CProductionObject* production = ProductionOf(sbd);
    if (!production)
        return status::kNullPointer;
    CAudioObject* audio = BackgroundAudio(sbd);
    if (path.empty()) {
        if (audio)
            std::erase_if(production->m_audioList,
                          [audio](const auto& entry) { return entry.second.get() == audio; });
        return status::kOk;
    }
    if (!audio) {
        audio = production->AddAudio();
        audio->m_endOffset = getSbdDuration(sbd);
    }
    const string name = CSourceFileImpl::CleanFileName(std::move(path));
    if (audio->m_fileName != name) {
        ForgetFile(*audio);
        audio->m_fileName = name;
    }
    audio->m_inPoint = 0.0;
    audio->m_outPoint = 0.0;
    return status::kOk;
}

Status _matchBkgndAudioDuration(CQZBaseSBD* sbd)
{
    if (!sbd)
        return status::kNullPointer;
    if (CAudioObject* audio = BackgroundAudio(sbd))
        audio->m_endOffset = getSbdDuration(sbd);
    return status::kOk;
}
