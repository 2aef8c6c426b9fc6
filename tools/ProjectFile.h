#pragma once

#include <Vantrel.h>

#include <string>

/// Loading and saving for a command line: the library's own reports go to standard error, and a
/// failure comes back as a message for a person.
namespace tool {

/// Loads `path` into `project`. Empty when that went well, else what is wrong with the file.
std::string Load(const std::string& path, CDSProjectData& project);

/// Saves `project` as `path`, which keeps its old content on any failure. Empty when that went well.
std::string Save(const std::string& path, CDSProjectData& project);

/// The version that the file at `path` bears, 0 when it has none or can't be read. Reads no further
/// than it must.
unsigned long FileVersion(const std::string& path);

} // namespace tool
