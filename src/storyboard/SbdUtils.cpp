#include "storyboard/SbdUtils.h"

#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/QZBaseSBD.h"

#include <cmath>
#include <utility>

using std::string;
using namespace vantrel;

namespace {

bool IsClipKey(long key)
{
    return key % 2 == 0;
}

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
    if (!(duration >= 0.0))
        return status::kBadArgument;
    if (!sbd)
        return status::kNullPointer;

    CBaseObjectImpl* last = nullptr;
    double sum = 0.0;
    for (const auto& [key, panel] : sbd->m_panels) {
        if (!panel)
            continue;
        sum += IsClipKey(key) ? panel->m_duration : -panel->m_duration;
        if (IsClipKey(key))
            last = panel.get();
    }
    if (!last)
        return status::kNullPointer;
    const double others = sum - last->m_duration;
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

    CBaseObjectImpl* former = Background(sbd);
    CClipObject* clip = AsClip(former);
    if (!clip) {
        const double duration = former ? former->m_duration : 0.0;
        clip = sbd->AddClipPanel(0);
        clip->m_duration = duration;
    }
    clip->SetClipType(eClipFileSource);

    const string name = CSourceFileImpl::CleanFileName(std::move(path));
    if (clip->m_fileName != name) {
        clip->m_fileName = name;
        clip->m_fileDuration = 0.0; // these were the former file's
        clip->m_fileSize = 0.0;
        clip->m_dataRate = 0.0;
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
    audio->m_fileName = CSourceFileImpl::CleanFileName(std::move(path));
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
