#include "storyboard/AudioInfo.h"
#include "xml/MemberTable.h"

#include <cmath>

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
    for (const auto& [time, value] : audio.m_mixLevels)
        SaveRows({ AddElement(levels, "level") }, kLevel, Level{ time, value });
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
}

void LoadEqualizer(xmlNode* element, Audio& audio)
{
    if (!element)
        return;
    LoadRows({ element }, kEqualizer, audio);
    audio.m_equalizers.clear();
    for (xmlNode* child : ChildElements(element)) {
        if (!IsNamed(child, "EqualizerModel"))
            continue;
        auto model = std::make_unique<EQualizerModel>(child);
        const long bands = model->m_bands;
        audio.m_equalizers.emplace(bands, std::move(model)); // the first of a size stays
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
