#include "project/ResourceLoader.h"

#include "core/Property.h"
#include "core/Report.h"
#include "xml/XmlFile.h"
#include "xml/XmlValue.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <tuple>
#include <utility>

using std::map;
using std::string;
using std::string_view;
using namespace vantrel;

namespace {

constexpr string_view kReference = "stringRef:";

/// What tells one state of a file from another.
struct FileStamp
{
    dev_t device;
    ino_t file;
    off_t size;
    std::chrono::nanoseconds modified;
    std::chrono::nanoseconds changed;

    bool operator==(const FileStamp&) const = default;
};

std::chrono::nanoseconds Time(const timespec& time)
{
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::optional<FileStamp> StampOf(const char* path)
{
    struct stat info;
    if (::stat(path, &info) != 0)
        return std::nullopt;
    return FileStamp{ info.st_dev, info.st_ino, info.st_size, Time(info.st_mtim),
                      Time(info.st_ctim) };
}

/// False while a further change could bear the same times as the last one.
bool IsSettled(const FileStamp& stamp)
{
    constexpr auto clockStep = std::chrono::milliseconds(20);
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return now - std::max(stamp.modified, stamp.changed) > clockStep;
}

} // namespace

/// The tables of the file that a thread read last.
struct CResourceLoader::RememberedFile
{
    string path;
    std::optional<FileStamp> stamp;
    std::shared_ptr<const Tables> tables;
};

CResourceLoader::RememberedFile& CResourceLoader::Remembered()
{
    thread_local RememberedFile file;
    return file;
}

bool CResourceLoader::InitWithXmlFile(const char* path)
{
    if (!path)
        return false;
    RememberedFile& remembered = Remembered();
    const std::optional<FileStamp> stamp = StampOf(path); // before reading: a change makes it old
    if (stamp && remembered.stamp == stamp && remembered.path == path) {
        Adopt(remembered.tables);
        return true;
    }

    const bool isSettled = stamp && IsSettled(*stamp);
    const XmlDocPtr doc = ReadXmlFile(path);
    if (!doc) {
        Report("can not loader resource file: ", path, "\n");
        return false;
    }
    _xmlNode* root = xmlDocGetRootElement(doc.get());
    if (!root) {
        Report("empty document");
        return false;
    }
    if (!LoadStringTable(root))
        return false;
    if (isSettled)
        remembered = { path, stamp, m_lastTaken };
    return true;
}

void CResourceLoader::Adopt(const std::shared_ptr<const Tables>& tables)
{
    if (tables == m_lastTaken)
        return;
    m_lastTaken = tables;
    const auto isReplaced = [&](const auto& entry) { return tables->contains(entry.first); };
    if (!m_tables || std::ranges::all_of(*m_tables, isReplaced)) {
        m_tables = tables;
        return;
    }
    const auto both = std::make_shared<Tables>(*tables);
    both->insert(m_tables->begin(), m_tables->end()); // only names that are not there yet
    m_tables = both;
}

bool CResourceLoader::LoadStringTable(_xmlNode* root)
{
    if (!IsElement(root) || !root->children) {
        Report("empty root element");
        return false;
    }
    const auto tables = std::make_shared<Tables>();
    for (xmlNode* child : ChildElements(root)) {
        string name;
        if (!IsNamed(child, "stringTable") || !HasNameProp(child, &name))
            continue;
        Table strings;
        LoadStrings(child, strings);
        tables->insert_or_assign(std::move(name), std::move(strings));
    }
    Adopt(tables);
    return true;
}

bool CResourceLoader::HasNameProp(_xmlNode* node, string* out)
{
    const xmlAttr* attribute = FindAttribute(node, "name");
    if (!attribute)
        return false;
    string store;
    if (out)
        *out = ResolvedText(attribute->children, store);
    return true;
}

bool CResourceLoader::LoadStrings(_xmlNode* table, map<string, string>& strings)
{
    if (!table)
        return false;
    for (xmlNode* child : ChildElements(table)) {
        string key;
        if (IsNamed(child, "string") && HasNameProp(child, &key))
            strings.insert_or_assign(std::move(key), GetTextValue(child));
    }
    return true;
}

string CResourceLoader::GetTextValue(_xmlNode* node)
{
    constexpr string_view nothing = "'\n'";
    for (const xmlNode* child = IsElement(node) ? node->children : nullptr; child;
         child = child->next) {
        if (child->type == XML_TEXT_NODE && child->content && Chars(child->content) != nothing)
            return Chars(child->content);
    }
    return {};
}

bool CResourceLoader::ParseString(string text, string* out)
{
    const string* found = FindText(text);
    return found && !Failed(Give(out, *found));
}

const string* CResourceLoader::FindText(const string& text) const
{
    static const string noText;
    if (!m_tables)
        return nullptr;
    const std::size_t reference = text.find(kReference);
    const std::size_t dot = text.find('.');
    if (reference == string::npos || dot == string::npos || dot < reference)
        return nullptr;

    const std::size_t name = reference + kReference.size();
    const auto table = m_tables->find(text.substr(name, dot - name));
    if (table == m_tables->end() || table->second.empty())
        return nullptr;
    const auto found = table->second.find(text.substr(dot + 1));
    return found == table->second.end() ? &noText : &found->second;
}
