#include "disc/DSEncodingParams.h"

#include "core/Property.h"
#include "disc/ChildPositions.h"
#include "project/NodeForm.h"

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

// The attributes of "Encoding". They are the node's own values, also while it is synchronised.
struct VANTREL_INTERNAL CDSEncodingParams::Form
{
    using Set = CDSEncodingParams;
    static constexpr auto rows = Rows<Set>(
        Enum<&Set::m_videoResolution>("videoResolution"), Enum<&Set::m_aspectRatio>("aspectRatio"),
        Enum<&Set::m_audioFormat>("audioFormat"), Enum<&Set::m_wideDisplayMode>("wideDisplayMode"),
        Enum<&Set::m_subpictureFormat>("subpictureFormat"),
        Enum<&Set::m_videoFormat>("HDVideoFormat").ReadOnly(), // an older name, overridden by:
        Enum<&Set::m_videoFormat>("videoFormat"), Decimal<&Set::m_videoBitrate>("videoBitrate"),
        Decimal<&Set::m_audioBitrate>("audioBitrate"),
        Decimal<&Set::m_audioChannels>("audioChannels"),
        Bool<&Set::m_syncToProject>("syncToProject"), Bool<&Set::m_VBREncoding>("VBREncoding"),
        Bool<&Set::m_twoPassEncoding>("twoPassEncoding"));
};

CDSEncodingParams::CDSEncodingParams() : FormedNode(eNodeEncoding, kFormOf<CDSEncodingParams, Form>)
{}

CDSEncodingParams::~CDSEncodingParams() = default;

const CDSEncodingParams& CDSEncodingParams::getParams() const
{
    if (!m_syncToProject)
        return *this;
    CProjectNode* above = GetParent(); // the title or menu, then its list, then the project
    for (int level = 1; level < 3 && above; ++level)
        above = above->GetParent();
    CProjectNode* shared = above ? above->GetChild(ProjectChild::Encoding) : nullptr;
    const auto* params = dynamic_cast<const CDSEncodingParams*>(shared);
    return params ? *params : *this;
}

/// Sets one of this node's own values, unless the project's stands in front of it.
template <class T>
Status CDSEncodingParams::Put(T CDSEncodingParams::*field, T value)
{
    return m_syncToProject ? status::kSynchronised : Take(this->*field, value);
}

Status CDSEncodingParams::get_SyncToProject(bool* out)
{
    return Give(out, m_syncToProject);
}

Status CDSEncodingParams::put_SyncToProject(bool value)
{
    const CProjectNode* above = GetParent();
    if (!above || above->GetType() == eNodeProject || !above->GetParent())
        return status::kNothingToFollow;
    if (m_syncToProject && !value) {
        const CDSEncodingParams& shown = getParams();
        m_videoResolution = shown.m_videoResolution;
        m_videoBitrate = shown.m_videoBitrate;
        m_audioFormat = shown.m_audioFormat;
        m_videoFormat = shown.m_videoFormat;
        m_audioBitrate = shown.m_audioBitrate;
        m_wideDisplayMode = shown.m_wideDisplayMode;
        m_VBREncoding = shown.m_VBREncoding;
        m_twoPassEncoding = shown.m_twoPassEncoding;
        m_subpictureFormat = shown.m_subpictureFormat;
        m_audioChannels = shown.m_audioChannels;
    }
    m_syncToProject = value;
    return status::kOk;
}

// clang-format off
Status CDSEncodingParams::get_VideoResolution(VideoResolution* out) { return Give(out, getParams().m_videoResolution); }
Status CDSEncodingParams::put_VideoResolution(VideoResolution value) { return Put(&CDSEncodingParams::m_videoResolution, value); }
Status CDSEncodingParams::get_AspectRatio(AspectRatio* out) { return Give(out, getParams().m_aspectRatio); }
Status CDSEncodingParams::put_AspectRatio(AspectRatio value) { return Put(&CDSEncodingParams::m_aspectRatio, value); }
Status CDSEncodingParams::get_VideoFormat(VideoFormat* out) { return Give(out, getParams().m_videoFormat); }
Status CDSEncodingParams::put_VideoFormat(VideoFormat value) { return Put(&CDSEncodingParams::m_videoFormat, value); }
Status CDSEncodingParams::get_VideoBitrate(long* out) { return Give(out, getParams().m_videoBitrate); }
Status CDSEncodingParams::put_VideoBitrate(long value) { return Put(&CDSEncodingParams::m_videoBitrate, value); }
Status CDSEncodingParams::get_AudioFormat(AudioFormat* out) { return Give(out, getParams().m_audioFormat); }
Status CDSEncodingParams::put_AudioFormat(AudioFormat value) { return Put(&CDSEncodingParams::m_audioFormat, value); }
Status CDSEncodingParams::get_AudioBitrate(long* out) { return Give(out, getParams().m_audioBitrate); }
Status CDSEncodingParams::put_AudioBitrate(long value) { return Put(&CDSEncodingParams::m_audioBitrate, value); }
Status CDSEncodingParams::get_WideDisplayMode(WideDisplayMode* out) { return Give(out, getParams().m_wideDisplayMode); }
Status CDSEncodingParams::put_WideDisplayMode(WideDisplayMode value) { return Put(&CDSEncodingParams::m_wideDisplayMode, value); }
Status CDSEncodingParams::get_VBREncoding(bool* out) { return Give(out, getParams().m_VBREncoding); }
Status CDSEncodingParams::put_VBREncoding(bool value) { return Put(&CDSEncodingParams::m_VBREncoding, value); }
Status CDSEncodingParams::get_TwoPassEncoding(bool* out) { return Give(out, getParams().m_twoPassEncoding); }
Status CDSEncodingParams::put_TwoPassEncoding(bool value) { return Put(&CDSEncodingParams::m_twoPassEncoding, value); }
Status CDSEncodingParams::get_SubpictureFormat(SubpictureFormat* out) { return Give(out, getParams().m_subpictureFormat); }
Status CDSEncodingParams::put_SubpictureFormat(SubpictureFormat value) { return Put(&CDSEncodingParams::m_subpictureFormat, value); }
Status CDSEncodingParams::get_AudioChannels(long* out) { return Give(out, getParams().m_audioChannels); }
Status CDSEncodingParams::put_AudioChannels(long value) { return Put(&CDSEncodingParams::m_audioChannels, value); }
// clang-format on
