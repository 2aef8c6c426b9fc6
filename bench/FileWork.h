#pragma once

#include <string>

namespace bench {

/// What one process measures. A floor is the same work by libxml2 alone.
enum class Work
{
    kLoad,      ///< making a project and loading a file into it
    kLoadFloor, ///< parsing the file and releasing the document
    kSave,      ///< saving a project that is in memory
    kSaveFloor  ///< building, saving and releasing the same plain tree from data in memory
};

struct Measurement
{
    double seconds = 0.0;   ///< by the clock
    double processor = 0.0; ///< seconds that the processor worked, which no other program disturbs
    double tidied = 0.0;    ///< the same with what the heap leaves to be done after a release
    double kilobytes = 0.0; ///< peak of resident memory above what was there before the work
};

/// Measures once, in this very process. A save reads `file` beforehand and writes `out`. A failure
/// ends the process with a message.
Measurement Measure(Work work, const std::string& file, const std::string& out);

} // namespace bench
