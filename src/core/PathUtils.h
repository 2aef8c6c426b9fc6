#pragma once

#include "core/Export.h"

#include <string>
#include <string_view>

/// Questions about the paths that projects and themes hold. Paths are plain text.
namespace Utils {

/// Splits `path` at its last backslash or, when it has none, at its last "/".
///
/// `directory` is what stands before the separator, empty without one; `name` the file name without
/// its extension; `extension` the rest from the last "." of the file name on, with the dot, or
/// empty when the name has no dot. A dot that begins the file name is part of the name too. Any of
/// the three may be null. An empty `path` gives false and touches nothing.
VANTREL_API bool GetDirectoryAndFileName(std::string path, std::string* directory,
                                         std::string* name, std::string* extension);

/// Cuts `path` behind its first "/Content/", so that it names a theme's content folder; a path
/// without that stays whole. Always gives false.
VANTREL_API bool GetContentPath(std::string* path);

/// True when `part` occurs in `text`; false when either is empty.
VANTREL_API bool HasString(std::string text, std::string part);

/// Makes a stored file name a path of this machine: "%CONTENT%" at its head goes, also with one
/// character before it, and then with the one behind it too; each backslash becomes "/". Always
/// gives false.
VANTREL_API bool ResolveFilePath(std::string* path);

/// The way back for a file in the content folder of the document at `document`: the folder becomes
/// "%CONTENT%", its separator stays, and the answer is true. Any other path stays, that of another
/// theme too, and gives false; so does every path without a document.
VANTREL_API bool UnresolveFilePath(std::string* path, const std::string& document = {});

} // namespace Utils

namespace vantrel {

/// True for a path that says by itself where a file is: one that begins with "/", with a backslash,
/// or with a drive letter and ":". A stored path of any other form is relative to a content folder.
VANTREL_API bool IsAbsolutePath(std::string_view path);

/// `path` as `Utils::ResolveFilePath` leaves it at last: a further load changes it no more.
VANTREL_API std::string ResolvedPath(std::string path);

/// True when "%CONTENT%" stands where `Utils::ResolveFilePath` takes it away.
VANTREL_API bool HasContentToken(std::string_view path);

} // namespace vantrel
