#pragma once

#include "disc/DSTitle.h"
#include "values/Bits.h"
#include "values/Command.h"
#include "values/Encoding.h"
#include "values/Positions.h"
#include "values/Storyboard.h"

#include <string>

namespace vantrel {

/// One playable title of the disc, with the storyboard that says what it plays.
class Title : public NodeHandle<CDSTitle, eNodeTitle>
{
    using T = CDSTitle;

public:
    using NodeHandle::NodeHandle;

    std::string label() const { return Ask(&T::get_Label); }
    Status label(std::string value) const { return Put(&T::put_Label, std::move(value)); }
    Bits<TitleTag> tag() const { return Bits<TitleTag>(Ask(&T::get_Tag)); }
    Status tag(Bits<TitleTag> bits) const { return Put(&T::put_Tag, bits.number()); }
    /// The application's.
    unsigned long flags() const { return Ask(&T::get_Flags); }
    Status flags(unsigned long value) const { return Put(&T::put_Flags, value); }
    /// The title's place on the disc; `status::kBadArgument` for a negative one.
    long discIndex() const { return Ask(&T::get_DiscIndex); }
    Status discIndex(long value) const { return Put(&T::put_DiscIndex, value); }
    /// How long a still stays, in seconds; `status::kBadArgument` for a negative value.
    long stillWaitTime() const { return Ask(&T::get_StillWaitTime); }
    Status stillWaitTime(long seconds) const { return Put(&T::put_StillWaitTime, seconds); }
    /// Duration and size once the title has been built.
    unsigned long vobDuration() const { return Ask(&T::get_VOBDuration); }
    Status vobDuration(unsigned long value) const { return Put(&T::put_VOBDuration, value); }
    double vobSize() const { return Ask(&T::get_VOBSize); }
    Status vobSize(double value) const { return Put(&T::put_VOBSize, value); }

    /// Both are empty for a title that a file brought without.
    Commands commands() const
    {
        return Child<Commands>(static_cast<int>(position::InTitle::commands));
    }
    Encoding encoding() const
    {
        return Child<Encoding>(static_cast<int>(position::InTitle::encoding));
    }

    /// @name Storyboard
    /// @{
    /// Empty when the title has none.
    Storyboard storyboard() const { return Ask(&T::GetProduction); }
    /// The title's storyboard, made when there is none.
    Storyboard makeStoryboard() const
    {
        if (object())
            (void)object()->CreateProduction(); // 1 when there is one
        return storyboard();
    }
    Status removeStoryboard() const
    {
        return object() ? object()->ReleaseProduction() : status::kNullPointer;
    }
    /// The duration of the storyboard, in seconds.
    double duration() const { return storyboard().duration(); }
    /// @}
};

} // namespace vantrel
