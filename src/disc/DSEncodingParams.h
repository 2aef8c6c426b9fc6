#pragma once

#include "project/DiscEnums.h"
#include "project/FormedNode.h"

/// "Encoding": the video and audio settings with which a title, a menu or the whole project is encoded.
///
/// A set below the project can be synchronised with the project's: while it is, reading a value
/// gives the project's, and setting one is refused with `status::kSynchronised`. Its own values stay
/// behind, and are what a save writes. A `get_X` gives `status::kNullPointer` for null.
class VANTREL_API CDSEncodingParams : public vantrel::FormedNode
{
public:
    CDSEncodingParams();
    ~CDSEncodingParams() override;

    /// The set that answers for this node: the project's while synchronised, where there is one
    /// three levels up, else this one.
    const CDSEncodingParams& getParams() const;

    virtual vantrel::Status get_VideoResolution(VideoResolution* out);
    virtual vantrel::Status put_VideoResolution(VideoResolution value);
    virtual vantrel::Status get_AspectRatio(AspectRatio* out);
    virtual vantrel::Status put_AspectRatio(AspectRatio value);
    virtual vantrel::Status get_VideoFormat(VideoFormat* out);
    virtual vantrel::Status put_VideoFormat(VideoFormat value);
    virtual vantrel::Status get_VideoBitrate(long* out);
    virtual vantrel::Status put_VideoBitrate(long value);
    virtual vantrel::Status get_AudioFormat(AudioFormat* out);
    virtual vantrel::Status put_AudioFormat(AudioFormat value);
    virtual vantrel::Status get_AudioBitrate(long* out);
    virtual vantrel::Status put_AudioBitrate(long value);
    virtual vantrel::Status get_WideDisplayMode(WideDisplayMode* out);
    virtual vantrel::Status put_WideDisplayMode(WideDisplayMode value);
    virtual vantrel::Status get_VBREncoding(bool* out);
    virtual vantrel::Status put_VBREncoding(bool value);
    virtual vantrel::Status get_TwoPassEncoding(bool* out);
    virtual vantrel::Status put_TwoPassEncoding(bool value);
    /// This node's own flag.
    virtual vantrel::Status get_SyncToProject(bool* out);
    /// Switching it off keeps the values that the set showed until then, but for the aspect ratio,
    /// which becomes its own again. Gives `status::kNothingToFollow` on the project's set and on one
    /// outside a project.
    virtual vantrel::Status put_SyncToProject(bool value);
    virtual vantrel::Status get_SubpictureFormat(SubpictureFormat* out);
    virtual vantrel::Status put_SubpictureFormat(SubpictureFormat value);
    virtual vantrel::Status get_AudioChannels(long* out);
    virtual vantrel::Status put_AudioChannels(long value);

private:
    struct Form;
    template <class T>
    vantrel::Status Put(T CDSEncodingParams::*field, T value);

    VideoResolution m_videoResolution = VideoResolution::Full_D1;
    AspectRatio m_aspectRatio = AspectRatio::_4x3;
    VideoFormat m_videoFormat = VideoFormat::MPEG_2;
    long m_videoBitrate = 8000000;
    AudioFormat m_audioFormat = AudioFormat::AC_3;
    long m_audioBitrate = 224000;
    WideDisplayMode m_wideDisplayMode = WideDisplayMode::Letterbox;
    bool m_VBREncoding = false;
    bool m_twoPassEncoding = false;
    bool m_syncToProject = false; ///< values come from the project's set
    SubpictureFormat m_subpictureFormat = SubpictureFormat::RLE;
    long m_audioChannels = 2;
};
