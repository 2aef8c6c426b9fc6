#include "storyboard/TimeAdjust.h"

#include <cmath>
#include <limits>

namespace {

constexpr double kUsualRate = 29.97;

} // namespace

CVCUTimeAdjust::CVCUTimeAdjust(double framesPerSecond)
    : m_frameLength(1.0 / (framesPerSecond > 0.0 ? framesPerSecond : kUsualRate))
{}

double CVCUTimeAdjust::FrameStart(double time) const
{
    return m_frameLength * std::floor(time / m_frameLength);
}

double CVCUTimeAdjust::FrameMid(double time) const
{
    return FrameStart(time) + m_frameLength / 2.0;
}

long CVCUTimeAdjust::FrameNumber(double time) const
{
    constexpr double limit = 0x1p63; // what a `long` has no more room for
    const double frame = std::floor(time / m_frameLength);
    if (frame >= limit)
        return std::numeric_limits<long>::max();
    if (frame < -limit)
        return std::numeric_limits<long>::min();
    return std::isnan(frame) ? 0 : static_cast<long>(frame);
}

double CVCUTimeAdjust::Frame2Start(long frame) const
{
    return static_cast<double>(frame) * m_frameLength;
}

double CVCUTimeAdjust::Frame2Mid(long frame) const
{
    return Frame2Start(frame) + m_frameLength / 2.0;
}
