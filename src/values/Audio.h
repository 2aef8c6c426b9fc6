#pragma once

#include "storyboard/AudioObject.h"
#include "storyboard/Whole.h"
#include "values/Handle.h"
#include "values/Source.h"

#include <map>
#include <utility>

namespace vantrel {

/// A sound on a time line. Times are seconds, levels factors.
class Audio : public Handle<CAudioObject>
{
    using A = CAudioObject;

public:
    using Handle::Handle;
    /// An entry of a list of audio.
    explicit Audio(const std::pair<const long, WholePtr<CAudioInfoImpl>>& entry)
        : Handle(entry.second ? dynamic_cast<A*>(entry.second->m_whole) : nullptr)
    {}

    long id() const { return Field(&A::CSubObjectImpl::m_id); }
    Source source() const { return object(); }
    std::string file() const { return source().file(); }

    /// From the start of what it lies on.
    double start() const { return Field(&A::m_startOffset); }
    Status start(double seconds) const { return Field(&A::m_startOffset, seconds); }
    double end() const { return Field(&A::m_endOffset); }
    Status end(double seconds) const { return Field(&A::m_endOffset, seconds); }
    bool muted() const { return Field(&A::m_mute); }
    Status muted(bool value) const { return Field(&A::m_mute, value); }

    double volume() const { return Field(&A::m_volumeLevel); }
    Status volume(double level) const { return Field(&A::m_volumeLevel, level); }
    double fadeIn() const { return Field(&A::m_fadeIn); }
    Status fadeIn(double seconds) const { return Field(&A::m_fadeIn, seconds); }
    double fadeOut() const { return Field(&A::m_fadeOut); }
    Status fadeOut(double seconds) const { return Field(&A::m_fadeOut, seconds); }
};

} // namespace vantrel
