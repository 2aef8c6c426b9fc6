#pragma once

#include "storyboard/SourceFile.h"
#include "values/Handle.h"

#include <string>

namespace vantrel {

/// A media file as a storyboard uses it. Times are seconds.
class Source : public Handle<CSourceFileImpl>
{
    using S = CSourceFileImpl;

public:
    using Handle::Handle;

    std::string file() const { return Field(&S::m_fileName); }
    Status file(std::string path) const { return Field(&S::m_fileName, std::move(path)); }
    /// The stretch of the file that is used.
    double inPoint() const { return Field(&S::m_inPoint); }
    Status inPoint(double seconds) const { return Field(&S::m_inPoint, seconds); }
    double outPoint() const { return Field(&S::m_outPoint); }
    Status outPoint(double seconds) const { return Field(&S::m_outPoint, seconds); }
    /// Of the whole file; 0 when it isn't known.
    double fileDuration() const { return Field(&S::m_fileDuration); }
    Status fileDuration(double seconds) const { return Field(&S::m_fileDuration, seconds); }
    long rotation() const { return Field(&S::m_rotation); }
    Status rotation(long degrees) const { return Field(&S::m_rotation, degrees); }
};

} // namespace vantrel
