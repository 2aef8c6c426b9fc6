#pragma once

#include "disc/DSEncodingParams.h"
#include "values/Node.h"

namespace vantrel {

/// How a title, a menu or the whole project is encoded. Rates are bits a second.
///
/// One that follows the project's shows the project's values, and refuses others with
/// `status::kSynchronised`.
class Encoding : public NodeHandle<CDSEncodingParams, eNodeEncoding>
{
    using E = CDSEncodingParams;

public:
    using NodeHandle::NodeHandle;

    // clang-format off
    VideoFormat videoFormat() const                     { return Ask(&E::get_VideoFormat); }
    Status videoFormat(VideoFormat value) const         { return Put(&E::put_VideoFormat, value); }
    VideoResolution videoResolution() const             { return Ask(&E::get_VideoResolution); }
    Status videoResolution(VideoResolution value) const { return Put(&E::put_VideoResolution, value); }
    AspectRatio aspectRatio() const                     { return Ask(&E::get_AspectRatio); }
    Status aspectRatio(AspectRatio value) const         { return Put(&E::put_AspectRatio, value); }
    long videoBitrate() const                           { return Ask(&E::get_VideoBitrate); }
    Status videoBitrate(long value) const               { return Put(&E::put_VideoBitrate, value); }
    bool variableRate() const                           { return Ask(&E::get_VBREncoding); }
    Status variableRate(bool value) const               { return Put(&E::put_VBREncoding, value); }
    bool twoPasses() const                              { return Ask(&E::get_TwoPassEncoding); }
    Status twoPasses(bool value) const                  { return Put(&E::put_TwoPassEncoding, value); }
    AudioFormat audioFormat() const                     { return Ask(&E::get_AudioFormat); }
    Status audioFormat(AudioFormat value) const         { return Put(&E::put_AudioFormat, value); }
    long audioBitrate() const                           { return Ask(&E::get_AudioBitrate); }
    Status audioBitrate(long value) const               { return Put(&E::put_AudioBitrate, value); }
    long audioChannels() const                          { return Ask(&E::get_AudioChannels); }
    Status audioChannels(long value) const              { return Put(&E::put_AudioChannels, value); }
    WideDisplayMode wideDisplayMode() const             { return Ask(&E::get_WideDisplayMode); }
    Status wideDisplayMode(WideDisplayMode value) const { return Put(&E::put_WideDisplayMode, value); }
    SubpictureFormat subpictureFormat() const           { return Ask(&E::get_SubpictureFormat); }
    Status subpictureFormat(SubpictureFormat value) const
                                                        { return Put(&E::put_SubpictureFormat, value); }
    /// `status::kNothingToFollow` on the project's own, and outside a project.
    Status followsProject(bool value) const             { return Put(&E::put_SyncToProject, value); }
    bool followsProject() const                         { return Ask(&E::get_SyncToProject); }
    // clang-format on
};

} // namespace vantrel
