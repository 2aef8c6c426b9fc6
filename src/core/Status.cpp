#include "core/Status.h"

#include <algorithm>
#include <iterator>

namespace vantrel {

namespace {

struct Words
{
    Status status;
    const char* text;
};

constexpr Words kWords[] = {
    { status::kOk, "done" },
    { status::kNothingDone, "nothing to do" },
    { status::kNotAvailable, "not available" },
    { status::kNoMemory, "out of memory" },
    { status::kBadArgument, "an argument can't be used" },
    { status::kNullPointer, "a part is missing" },
    { status::kFailure, "it failed" },
    { status::kUnexpected, "a node of another kind stands there" },
    { status::kNoProjectNode, "there is no project in it" },
    { status::kNotAButton, "that is no button of the menu" },
    { status::kNoSuchObject, "there is no object of that number" },
    { status::kSynchronised, "the value follows the project's" },
    { status::kNothingToFollow, "there is nothing that it could follow" },
    { status::kBadColour, "a colour's number is above 15" },
    { status::kBadContrast, "a contrast is above 15" },
    { status::kNegativeInPoint, "an in point is negative" },
    { status::kNegativeOutPoint, "an out point is negative" },
    { status::kNoBoundingBox, "a button has no corners of its own" },
    { status::kUnreadableFile, "the file can't be read, or is no XML" },
    { status::kOldVersion, "the file's version is too old" },
    { status::kUnwritableFile, "the file can't be written" },
};

} // namespace

const char* Describe(Status result) noexcept
{
    const auto* words = std::ranges::find(kWords, result, &Words::status);
    if (words != std::end(kWords))
        return words->text;
    return Failed(result) ? "it failed for a reason without words" : "done";
}

} // namespace vantrel
