#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "storyboard/EQualizerModel.h"
#include "xml/KeptXmlPtr.h"
#include "xml/XMLWrapper.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CPersistObject;

/// How a sound is played: volume, fades, an envelope of mix levels, equalizers and a noise filter.
/// Times are seconds, levels factors.
class VANTREL_API CAudioInfoImpl
{
public:
    CAudioInfoImpl() = default;
    CAudioInfoImpl(const CAudioInfoImpl&) = delete;
    CAudioInfoImpl& operator=(const CAudioInfoImpl&) = delete;

    double m_volumeLevel = 1.0;
    double m_fadeIn = 0.1;
    double m_fadeOut = 0.1;
    double m_fadeInLevel = 1.0;
    double m_fadeOutLevel = 1.0;
    long m_channels = 1;
    long m_audioStream = 0;
    bool m_canRepeat = false;
    long m_inputChannel = -1;
    std::uint32_t m_audioType = 1;        ///< 16 bits of it are persisted
    std::map<double, double> m_mixLevels; ///< the envelope: time to level
    long m_currentEqualizer = -1;
    std::map<long, std::unique_ptr<EQualizerModel>> m_equalizers; ///< by number of bands
    double m_startSamplingTime = -1.0;                            ///< of the noise filter
    double m_samplingDuration = 1.0;
    std::string m_proxyFilterFile;
    std::string m_nativeFilterFile;
    CPersistObject* m_whole = nullptr; ///< the complete object that this is a part of, or null
    /// Elements of further models with a number of bands that `m_equalizers` has.
    std::vector<vantrel::KeptXmlPtr> m_moreEqualizers;
};

/// Persists audio data as "audioInfo".
class VANTREL_API CXMLAudioInfoImpl : public XMLWrapper<CAudioInfoImpl>
{
public:
    explicit CXMLAudioInfoImpl(CAudioInfoImpl& object) : XMLWrapper(object, "audioInfo") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
