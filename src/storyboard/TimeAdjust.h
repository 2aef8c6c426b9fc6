#pragma once

#include "core/Export.h"

/// Turns seconds into frames and back.
class VANTREL_API CVCUTimeAdjust
{
public:
    /// A rate that is not above 0 is taken as 29.97.
    explicit CVCUTimeAdjust(double framesPerSecond);

    /// The start of the frame that holds `time`.
    double FrameStart(double time) const;
    /// The middle of the frame that holds `time`.
    double FrameMid(double time) const;
    /// The number of the frame that holds `time`, from 0. A time beyond every frame gives the
    /// first or the last number there is, and one that is no number 0.
    long FrameNumber(double time) const;
    double Frame2Start(long frame) const;
    double Frame2Mid(long frame) const;

    double m_frameLength; ///< seconds
};
