#pragma once

#include "core/Export.h"
#include "core/Status.h"

#include <string>

class CQZBaseSBD;

/// What titles and menus ask and tell their storyboard. Durations are seconds.
///
/// A setter gives `status::kNullPointer` for a null storyboard. A getter leaves its output alone
/// when there is nothing to tell, and gives `status::kOk`; a null output gives
/// `status::kNullPointer`.

/// The duration of the time line; 0.0 without a storyboard or a production.
VANTREL_API double getSbdDuration(CQZBaseSBD* sbd);

/// The duration that the time line would have if each clip played its file to the end, from its in
/// point and at its speed. A clip whose file's duration isn't known counts as it is.
VANTREL_API double getMaxSbdDuration(CQZBaseSBD* sbd);

/// Gives the last clip the duration that makes the whole `duration`. A negative one, one that is no
/// number, or one that the other panels exceed gives `status::kBadArgument`; a storyboard without
/// a clip `status::kNullPointer`.
VANTREL_API vantrel::Status setSbdDuration(CQZBaseSBD* sbd, double duration);

/// The file name of panel 0, when that shows a file.
VANTREL_API vantrel::Status getSbdBkgndVideo(CQZBaseSBD* sbd, std::string* out);

/// Makes panel 0 show the whole of this file, whose name is cleaned as one that is read. The panel
/// keeps its duration or, with `fitToVideo`, takes that of the file when it is known: another file
/// than before is not. An empty path gives `status::kBadArgument`.
VANTREL_API vantrel::Status setSbdBkgndVideo(CQZBaseSBD* sbd, std::string path, bool fitToVideo);

/// The file name of the first audio that lies on the production.
VANTREL_API vantrel::Status getSbdBkgndAudio(CQZBaseSBD* sbd, std::string* out);

/// Gives the first audio of the production this file, and makes that audio, for the whole of the
/// time line, when there is none. An empty path removes it. No production gives
/// `status::kNullPointer`.
VANTREL_API vantrel::Status setSbdBkgndAudio(CQZBaseSBD* sbd, std::string path);

/// Makes the first audio of the production end with the time line.
VANTREL_API vantrel::Status _matchBkgndAudioDuration(CQZBaseSBD* sbd);
