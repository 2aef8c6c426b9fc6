#pragma once

#include "core/Export.h"

#include <cstdint>

// Headers of a window system are known to define such words as macros, which no namespace keeps out.
#if defined(Status) || defined(None) || defined(Bool) || defined(Success)
#error "Include Vantrel's headers before those that define Status, None, Bool or Success as macros"
#endif

namespace vantrel {

/// The 32-bit result of an operation: negative is failure, 0 success, 1 success with nothing done
/// or nothing found.
using Status = std::int32_t;

/// The codes that operations of this library return.
namespace status {

constexpr Status Code(std::uint32_t code)
{
    return static_cast<Status>(code);
}

inline constexpr Status kOk = 0;          ///< done
inline constexpr Status kNothingDone = 1; ///< nothing done or nothing found; not a failure

inline constexpr Status kNotAvailable = Code(0x80000001); ///< no XML node, or can't proceed
inline constexpr Status kNoMemory = Code(0x80000002);     ///< a child could not be allocated
inline constexpr Status kBadArgument = Code(0x80000003);  ///< bad argument: null node, empty key
inline constexpr Status kNullPointer = Code(0x80000005);  ///< null out-pointer, or a part missing
inline constexpr Status kFailure = Code(0x80000008);      ///< general failure
inline constexpr Status kUnexpected = Code(0x8000FFFF);   ///< no target, or a node of another type

inline constexpr Status kNoProjectNode = Code(0xC201003D);   ///< `LoadXML` without a node
inline constexpr Status kNotAButton = Code(0xC201004D);      ///< default button is none of the menu
inline constexpr Status kNoSuchObject = Code(0xC201004E);    ///< a numbered object doesn't exist
inline constexpr Status kSynchronised = Code(0xC2010054);    ///< value follows the project's
inline constexpr Status kNothingToFollow = Code(0xC2010055); ///< set can't be synchronised
inline constexpr Status kBadColour = Code(0xC201005A);       ///< colour index above 15
inline constexpr Status kBadContrast = Code(0xC201005B);     ///< contrast above 15
inline constexpr Status kNegativeInPoint = Code(0xC2010064);
inline constexpr Status kNegativeOutPoint = Code(0xC2010065);
inline constexpr Status kNoBoundingBox = Code(0xC201006A);  ///< a button has no corners of its own
inline constexpr Status kUnreadableFile = Code(0xC2010142); ///< can't be read or parsed
inline constexpr Status kOldVersion = Code(0xC2010143);     ///< version below 800, or none
inline constexpr Status kUnwritableFile = Code(0xC2010144); ///< can't be opened, written or closed

} // namespace status

/// True for a failure; 1 is none.
constexpr bool Failed(Status result)
{
    return result < 0;
}

/// A status in words, as "the file can't be written"; never null, and never to be released.
VANTREL_API const char* Describe(Status result) noexcept;

} // namespace vantrel

static_assert(sizeof(long) == 8, "the project model needs 64-bit long");
