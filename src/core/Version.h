#pragma once

#include "core/Export.h"

extern "C" {
/// The version of the library's interface, 1.0.
VANTREL_API extern const double VantrelVersionNumber;
/// The version as text, with a line feed at its end, as tools find it in a binary.
VANTREL_API extern const unsigned char VantrelVersionString[];
}

namespace vantrel {

/// The version that the writer stamps on a project file.
inline constexpr unsigned long kFileVersion = 900;
/// The oldest file version that the reader accepts.
inline constexpr unsigned long kOldestFileVersion = 800;

} // namespace vantrel
