#include "ProjectFile.h"

#include <libxml/xmlreader.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <system_error>
#include <unistd.h>

using std::string;
using namespace vantrel;

namespace tool {

namespace {

/// Makes `original` the file again that `saved` is, and closes that.
void GiveBack(int saved, int original)
{
    if (saved >= 0) {
        dup2(saved, original);
        close(saved);
    }
}

/// A file open for reading.
class OpenFile
{
public:
    explicit OpenFile(const string& path) : m_file(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile()
    {
        if (m_file >= 0)
            close(m_file);
    }
    int get() const { return m_file; }

private:
    int m_file;
};

/// `what` with the status behind it, as "(0xC2010142)".
string Message(const string& what, Status result)
{
    char code[16];
    std::snprintf(code, sizeof code, "0x%08X", static_cast<unsigned>(result));
    return what + " (" + code + ")";
}

string UnreadableText(const string& path)
{
    if (access(path.c_str(), R_OK) != 0)
        return string("can't be read: ") + std::strerror(errno);
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        return "is a folder";
    return "is no well-formed XML file";
}

string OldVersionText(unsigned long version)
{
    const string needed =
        ": " + std::to_string(vantrel::kOldestFileVersion) + " or later is needed";
    if (version == 0)
        return "has no version" + needed;
    return "version " + std::to_string(version) + " is too old" + needed;
}

string LoadMessage(const string& path, Status result)
{
    switch (result) {
    case status::kUnreadableFile:
        return Message(UnreadableText(path), result);
    case status::kOldVersion:
        return Message(OldVersionText(FileVersion(path)), result);
    case status::kNullPointer:
        return Message("is an empty document", result);
    default:
        return Message("can't be loaded", result);
    }
}

} // namespace

OutputGuard::OutputGuard(Destination destination)
{
    std::fflush(stdout);
    m_output = dup(STDOUT_FILENO);
    m_errors = dup(STDERR_FILENO);
    if (destination == kErrors) {
        dup2(STDERR_FILENO, STDOUT_FILENO);
    } else if (const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC); nowhere >= 0) {
        dup2(nowhere, STDOUT_FILENO);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
}

OutputGuard::~OutputGuard()
{
    std::fflush(stdout);
    GiveBack(m_output, STDOUT_FILENO);
    GiveBack(m_errors, STDERR_FILENO);
}

string Load(const string& path, CDSProjectData& project)
{
    const OutputGuard guard(OutputGuard::kErrors);
    CDSFileService service;
    const Status result = service.LoadProject(path.c_str(), &project);
    return Failed(result) ? LoadMessage(path, result) : string();
}

string Save(const string& path, CDSProjectData& project)
{
    const OutputGuard guard(OutputGuard::kErrors);
    CDSFileService service;
    const Status result = service.SaveProjectAtomic(path, &project);
    if (!Failed(result))
        return {};
    if (result == status::kUnwritableFile)
        return Message("can't be written", result);
    return Message(path.empty() ? "an empty path can't be written" : "can't be saved", result);
}

unsigned long FileVersion(const string& path)
{
    struct FreeReader
    {
        void operator()(xmlTextReader* reader) const { xmlFreeTextReader(reader); }
    };
    const OpenFile file(path);
    const std::unique_ptr<xmlTextReader, FreeReader> reader(
        xmlReaderForFd(file.get(), nullptr, nullptr, XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    unsigned long version = 0;
    while (reader && xmlTextReaderRead(reader.get()) == 1) {
        const auto* name = reinterpret_cast<const char*>(xmlTextReaderConstName(reader.get()));
        if (xmlTextReaderNodeType(reader.get()) != XML_READER_TYPE_ELEMENT ||
            xmlTextReaderDepth(reader.get()) != 1 || std::strcmp(name, "Project") != 0)
            continue;
        const unsigned char attribute[] = "Version";
        const std::unique_ptr<xmlChar, vantrel::XmlRelease> value(
            xmlTextReaderGetAttribute(reader.get(), attribute));
        if (value)
            version = std::strtoul(reinterpret_cast<const char*>(value.get()), nullptr, 10);
        break;
    }
    return version;
}

} // namespace tool
