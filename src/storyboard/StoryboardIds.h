#pragma once

#include <utility>
#include <vector>

class CEffectInfoImpl;
class CNativeInfoImpl;
class CParentObjectImpl;
class CQZBaseSBD;
class CSourceFileImpl;

namespace vantrel {

/// Gives the objects of a storyboard, while it lives, the ids that the next load of it will give them,
/// so that a file that was saved, loaded and saved again is the same. Afterwards the objects have
/// their own again: a program may hold on to those.
class StoryboardIds
{
public:
    explicit StoryboardIds(CQZBaseSBD& storyboard);
    StoryboardIds(const StoryboardIds&) = delete;
    StoryboardIds& operator=(const StoryboardIds&) = delete;
    ~StoryboardIds();

private:
    void Number(CSourceFileImpl& file);
    void Number(CEffectInfoImpl& effect, long id);
    void Number(CNativeInfoImpl& native);
    void Number(CParentObjectImpl& parent);
    void Set(long& field, long id);

    long m_last = 0;
    std::vector<std::pair<long*, long>> m_former;
};

} // namespace vantrel
