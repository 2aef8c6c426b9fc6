#include "xml/XmlFile.h"

#include "core/Report.h"
#include "xml/XmlReports.h"
#include "xml/XmlValue.h"

#include <libxml/xmlsave.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

using std::string;
using std::string_view;

namespace vantrel {

namespace {

/// An open file descriptor.
class FileHandle
{
public:
    FileHandle() = default;
    explicit FileHandle(int fd) : m_fd(fd) {}
    FileHandle(FileHandle&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept
    {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~FileHandle() { Close(); }

    explicit operator bool() const { return m_fd >= 0; }
    int get() const { return m_fd; }

    /// False when the system reports that data was lost.
    bool Close() { return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0; }

private:
    int m_fd = -1;
};

FileHandle Open(const char* path, int flags)
{
    int fd;
    do
        fd = ::open(path, flags | O_CLOEXEC, 0666);
    while (fd < 0 && errno == EINTR);
    return FileHandle(fd);
}

bool WriteAll(int fd, string_view bytes)
{
    // In larger pieces the kernel may take up to ten times as long to copy the same bytes.
    constexpr std::size_t most = 64 * 1024;
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), std::min(bytes.size(), most));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

/// Makes sure that `size` bytes fit; on failure the file is as it was.
bool ReserveRoom(int fd, off_t oldSize, std::size_t size)
{
    if (size == 0 || ::posix_fallocate(fd, 0, static_cast<off_t>(size)) == 0)
        return true;
    (void)!::ftruncate(fd, oldSize); // gives back what was reserved; the failure is told anyway
    return false;
}

bool WriteRegular(int fd, off_t oldSize, string_view bytes)
{
    return ReserveRoom(fd, oldSize, bytes.size()) && WriteAll(fd, bytes) &&
           ::ftruncate(fd, static_cast<off_t>(bytes.size())) == 0;
}

/// A file that is removed again unless it is kept.
class NewFile
{
public:
    explicit NewFile(string path) : m_path(std::move(path)) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (!m_path.empty())
            (void)::unlink(m_path.c_str());
    }
    void Keep() { m_path.clear(); }

private:
    string m_path;
};

/// The directory part of a path with its "/", so that a file name can be appended.
string FolderOf(const string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == string::npos ? string() : path.substr(0, slash + 1);
}

/// Opens a file of a name that nothing has yet in `folder`; `path` receives it.
FileHandle CreateBeside(const string& folder, string* path)
{
    for (int attempt = 0; attempt < 1000; ++attempt) {
        *path = folder + ".vantrel-" + std::to_string(::getpid()) + "-" + std::to_string(attempt);
        FileHandle file = Open(path->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
        if (file || errno != EEXIST)
            return file;
    }
    return {};
}

void SyncFolder(const string& folder)
{
    const FileHandle handle = Open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY);
    if (handle)
        (void)::fsync(handle.get()); // not every file system can; the rename is done either way
}

/// Follows symbolic links, also one whose target is yet to be made.
string ResolveLinks(string path)
{
    constexpr int most = 40; // as the kernel does
    std::error_code failed;
    for (int followed = 0; followed < most; ++followed) {
        const std::filesystem::path target = std::filesystem::read_symlink(path, failed);
        if (failed)
            return path;
        path = target.is_absolute() ? target.string() : FolderOf(path) + target.string();
    }
    return path;
}

/// So that what is found beside a file is found whatever folder the process is in later.
string AbsolutePath(const char* path)
{
    std::error_code failed;
    const std::filesystem::path absolute = std::filesystem::absolute(path, failed);
    return failed ? path : absolute.string();
}

bool WriteReplacement(int fd, const struct stat* old, string_view bytes)
{
    if (old) {
        (void)!::fchown(fd, old->st_uid, old->st_gid); // only root may give a file away
        if (::fchmod(fd, old->st_mode & 07777) != 0)
            return false;
    }
    return WriteAll(fd, bytes) && ::fsync(fd) == 0;
}

void ReportUnopened(const char* path)
{
    const string text = string("can't open \"") + path + "\"\n";
    Message message;
    message.text = text;
    message.words = string_view(text).substr(0, text.size() - 1);
    message.path = path;
    message.toStandardError = true;
    MessageRoute::Current().Send(message);
}

} // namespace

XmlDocPtr ReadXmlFile(const char* path)
{
    const FileHandle file = path ? Open(path, O_RDONLY | O_NONBLOCK) : FileHandle();
    struct stat info;
    if (!file || ::fstat(file.get(), &info) != 0 || !S_ISREG(info.st_mode)) { // a pipe would block
        if (path)
            ReportUnopened(path);
        return nullptr;
    }

    const XmlReports reports;
    const XmlParserPtr parser{ xmlNewParserCtxt() };
    if (!parser)
        return nullptr;
    // The name serves libxml2's messages alone; the document bears the path without any escapes.
    // Compact: a short text lies within its node, which saves an allocation for most values.
    XmlDocPtr doc{ xmlCtxtReadFd(parser.get(), file.get(), path, nullptr,
                                 XML_PARSE_NONET | XML_PARSE_COMPACT) };
    if (doc) {
        const XmlTextPtr escaped{ std::exchange(const_cast<xmlChar*&>(doc->URL),
                                                xmlStrdup(XmlChars(AbsolutePath(path).c_str()))) };
    }
    return doc;
}

bool SerializeXml(xmlDoc* doc, string* bytes)
{
    const XmlReports reports;
    bytes->clear();
    const auto append = [](void* out, const char* data, int size) {
        try {
            static_cast<string*>(out)->append(data, static_cast<std::size_t>(size));
            return size;
        } catch (const std::bad_alloc&) {
            return -1;
        }
    };
    xmlOutputBuffer* buffer = xmlOutputBufferCreateIO(append, nullptr, bytes, nullptr);
    return buffer && xmlSaveFormatFileTo(buffer, doc, "UTF-8", 1) >= 0; // releases the buffer
}

Status WriteFileInPlace(const string& path, string_view bytes)
{
    FileHandle file = Open(path.c_str(), O_WRONLY);
    const bool isNew = !file && errno == ENOENT;
    if (isNew)
        file = Open(path.c_str(), O_WRONLY | O_CREAT);
    struct stat info;
    if (!file || ::fstat(file.get(), &info) != 0)
        return status::kUnwritableFile;

    NewFile created(isNew ? path : string());
    const bool written = S_ISREG(info.st_mode) ? WriteRegular(file.get(), info.st_size, bytes)
                                               : WriteAll(file.get(), bytes);
    if (!file.Close() || !written)
        return status::kUnwritableFile;
    created.Keep();
    return status::kOk;
}

Status ReplaceFile(const string& path, string_view bytes)
{
    const string target = ResolveLinks(path);
    struct stat old;
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && !S_ISREG(old.st_mode))
        return WriteFileInPlace(target, bytes);
    if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        return status::kUnwritableFile; // a rename would go over a file that is write-protected

    const string folder = FolderOf(target);
    string besidePath;
    FileHandle beside = CreateBeside(folder, &besidePath);
    if (!beside)
        return status::kUnwritableFile;
    NewFile created(besidePath);
    const bool written = WriteReplacement(beside.get(), exists ? &old : nullptr, bytes);
    if (!beside.Close() || !written || ::rename(besidePath.c_str(), target.c_str()) != 0)
        return status::kUnwritableFile;
    created.Keep();
    SyncFolder(folder);
    return status::kOk;
}

} // namespace vantrel
