#include "storyboard/AudioInfo.h"
#include "core/Number.h"
#include "xml/KeptXml.h"
#include "xml/MemberTable.h"

#include <cmath>
#include <iterator>

using namespace vantrel;

namespace {

using namespace vantrel::member;
using Audio = CAudioInfoImpl;

/// One point of the envelope.
struct Level
{
    double time = 0.0;
    double value = 0.0;
};

// The elements of "level".
constexpr MemberRow<Level> kLevel[] = {
    Double<&Level::time>("time"),
    Double<&Level::value>("value"),
};

// The elements of "NoiseFilter".
constexpr MemberRow<Audio> kNoiseFilter[] = {
    Double<&Audio::m_startSamplingTime>("StartSamplingTime"),
    Double<&Audio::m_samplingDuration>("SamplingDuration"),
    String<&Audio::m_proxyFilterFile>("ProxyFilterFile"),
    String<&Audio::m_nativeFilterFile>("NativeFilterFile"),
};

void SaveNoiseFilter(const MemberPlace& place, const char* name, const Audio& audio)
{
    SaveRows({ AddMember(place, name) }, kNoiseFilter, audio);
}

void LoadNoiseFilter(xmlNode* element, Audio& audio)
{
    LoadRows({ element }, kNoiseFilter, audio);
}

void SaveMixLevels(const MemberPlace& place, const char* name, const Audio& audio)
{
    xmlNode* levels = AddMember(place, name);
    for (auto level = audio.m_mixLevels.begin(); level != audio.m_mixLevels.end(); ++level) {
        const auto next = std::next(level);
        const bool isLast =
            next == audio.m_mixLevels.end() || NumberText(next->first) != NumberText(level->first);
        if (isLast && !std::isnan(level->first)) // of times that a file can't tell apart
            SaveRows({ AddElement(levels, "level") }, kLevel, Level{ level->first, level->second });
    }
}

void LoadMixLevels(xmlNode* element, Audio& audio)
{
    if (!element)
        return;
    audio.m_mixLevels.clear();
    for (xmlNode* child : ChildElements(element)) {
        Level level;
        if (!IsNamed(child, "level"))
            continue;
        LoadRows({ child }, kLevel, level);
        if (!std::isnan(level.time)) // has no place in an order
            audio.m_mixLevels[level.time] = level.value;
    }
}

// The value of "Equalizer"; the models follow it.
constexpr MemberRow<Audio> kEqualizer[] = {
    Long<&Audio::m_currentEqualizer>("CurrentEqualizer"),
};

void SaveEqualizer(const MemberPlace& place, const char* name, const Audio& audio)
{
    xmlNode* equalizer = AddMember(place, name);
    SaveRows({ equalizer }, kEqualizer, audio);
    for (const auto& [bands, model] : audio.m_equalizers) {
        if (model)
            (void)model->PersistToXML(AddElement(equalizer, "EqualizerModel"), true);
    }
    for (const KeptXmlPtr& kept : audio.m_moreEqualizers)
        (void)AppendKeptXml(equalizer, kept); // fails for want of memory alone
}

void LoadEqualizer(xmlNode* element, Audio& audio)
{
    if (!element)
        return;
    LoadRows({ element }, kEqualizer, audio);
    audio.m_equalizers.clear();
    audio.m_moreEqualizers.clear();
    for (xmlNode* child : ChildElements(element)) {
        if (!IsNamed(child, "EqualizerModel"))
            continue;
        auto model = std::make_unique<EQualizerModel>(child);
        std::unique_ptr<EQualizerModel>& first = audio.m_equalizers[model->m_bands];
        if (first)
            audio.m_moreEqualizers.push_back(KeepXml(child)); // of a size that is there
        else
            first = std::move(model);
    }
}

void SaveComment(const MemberPlace& place, const char* text, const Audio&)
{
    (void)XMLHelpers<void>::AppendComment(place.node, text); // nothing depends on it
}

// The elements of "audioInfo".
constexpr MemberRow<Audio> kAudioInfo[] = {
    Double<&Audio::m_volumeLevel>("volumeLevel"),
    Long<&Audio::m_channels>("channels"),
    Long<&Audio::m_inputChannel>("inputChannel"),
    Long<&Audio::m_audioStream>("audioStream"),
    Double<&Audio::m_fadeIn>("fadeIn"),
    Double<&Audio::m_fadeOut>("fadeOut"),
    Double<&Audio::m_fadeInLevel>("fadeInLevel"),
    Double<&Audio::m_fadeOutLevel>("fadeOutLevel"),
    Bool<&Audio::m_canRepeat>("canRepeat"),
    UInt2<&Audio::m_audioType>("audioType"),
    { "NoiseFilter", SaveNoiseFilter, LoadNoiseFilter },
    { "Audio Envelope Points List", SaveComment, nullptr },
    { "mixLevels", SaveMixLevels, LoadMixLevels },
    { "Audio Equalizer Settings", SaveComment, nullptr },
    { "Equalizer", SaveEqualizer, LoadEqualizer },
};

} // namespace

Status CXMLAudioInfoImpl::SaveMembers()
{
    SaveTable(kAudioInfo);
    return status::kOk;
}

Status CXMLAudioInfoImpl::LoadMembers()
{
    LoadTable(kAudioInfo);
    return status::kOk;
}
