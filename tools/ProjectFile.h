#pragma once

#include <Vantrel.h>

#include <string>

/// Loading and saving for a command line: the library's own reports go to standard error, and a
/// failure comes back as a message for a person.
namespace tool {

/// While it lives, what the library prints goes elsewhere: it tells of some failures on standard
/// output, and the tool's output is for its answers alone.
class OutputGuard
{
public:
    enum Destination
    {
        kErrors,  ///< standard error
        kNowhere, ///< for questions, whose answers tell as much; standard error goes there too
    };
    explicit OutputGuard(Destination destination);
    OutputGuard(const OutputGuard&) = delete;
    OutputGuard& operator=(const OutputGuard&) = delete;
    ~OutputGuard();

private:
    int m_output = -1;
    int m_errors = -1;
};

/// Loads `path` into `project`. Empty when that went well, else what is wrong with the file.
std::string Load(const std::string& path, CDSProjectData& project);

/// Saves `project` as `path`, which keeps its old content on any failure. Empty when that went well.
std::string Save(const std::string& path, CDSProjectData& project);

/// The version that the file at `path` bears, 0 when it has none or can't be read. Reads no further
/// than it must.
unsigned long FileVersion(const std::string& path);

} // namespace tool
