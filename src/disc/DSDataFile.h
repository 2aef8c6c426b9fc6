#pragma once

#include "project/FormedNode.h"

#include <string>

/// "File": one file that goes onto the disc beside the video. Data files live in the project's
/// "DataFiles" list. Paths are stored as they are. A `get_` gives `status::kNullPointer` for null,
/// else 0.
class VANTREL_API CDSDataFile : public vantrel::FormedNode
{
public:
    CDSDataFile();
    ~CDSDataFile() override;

    vantrel::Status get_ID(long* out) const;

    /// Where the file is found.
    vantrel::Status get_SourcePath(std::string* out) const;
    vantrel::Status put_SourcePath(std::string value);

    /// Where it goes on the disc.
    vantrel::Status get_DestPath(std::string* out) const;
    vantrel::Status put_DestPath(std::string value);

    /// The kind of file; the numbers are the application's.
    vantrel::Status get_Tag(unsigned long* out) const;
    vantrel::Status put_Tag(unsigned long value);

    /// Takes over all that `other` is but its ID and its place in a tree.
    void CopyValues(const CDSDataFile& other);

    /// True when the file has the paths that aren't null and the tag that isn't 0.
    bool Matches(const std::string* source, const std::string* dest, unsigned long tag) const;

    /// Counts one more user of the file. The count is not in the file.
    vantrel::Status IncrementUseCount();

private:
    struct Form;

    std::string m_sourcePath;
    std::string m_destPath;
    unsigned long m_tag = 0;
    long m_useCount = 0;
};
