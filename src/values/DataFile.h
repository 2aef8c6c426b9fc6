#pragma once

#include "disc/DSDataFile.h"
#include "values/Node.h"

#include <string>

namespace vantrel {

/// One file that goes onto the disc beside the video.
class DataFile : public NodeHandle<CDSDataFile, eNodeFile>
{
    using F = CDSDataFile;

public:
    using NodeHandle::NodeHandle;

    /// Where the file is found.
    std::string source() const { return Ask(&F::get_SourcePath); }
    Status source(std::string path) const { return Put(&F::put_SourcePath, std::move(path)); }

    /// Where it goes on the disc.
    std::string destination() const { return Ask(&F::get_DestPath); }
    Status destination(std::string path) const { return Put(&F::put_DestPath, std::move(path)); }

    /// The application's kind of file.
    unsigned long tag() const { return Ask(&F::get_Tag); }
    Status tag(unsigned long value) const { return Put(&F::put_Tag, value); }
};

} // namespace vantrel
