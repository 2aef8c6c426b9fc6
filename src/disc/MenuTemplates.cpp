#include "disc/MenuTemplates.h"

#include "xml/XmlFile.h"

#include <algorithm>
#include <filesystem>

using std::string;

namespace vantrel {

namespace {

constexpr std::size_t kKept = 8;               // a theme has one template for each kind of menu
constexpr std::uintmax_t kLargest = 16U << 20; // bytes; a template holds one production

} // namespace

XmlDocPtr ReadTemplate(const string& path)
{
    std::error_code failed;
    if (!std::filesystem::is_regular_file(path, failed))
        return nullptr; // a pipe would block
    const std::uintmax_t size = std::filesystem::file_size(path, failed);
    return !failed && size <= kLargest ? ReadXmlFile(path.c_str()) : nullptr;
}

XmlDocPtr MenuTemplates::Copy(const string& path)
{
    const auto found = std::find_if(m_recent.begin(), m_recent.end(),
                                    [&path](const auto& one) { return one.path == path; });
    if (found != m_recent.end()) {
        std::rotate(m_recent.begin(), found, found + 1);
    } else {
        m_recent.insert(m_recent.begin(), { path, ReadTemplate(path) });
        m_recent.resize(std::min(m_recent.size(), kKept));
    }
    xmlDoc* const doc = m_recent.front().doc.get();
    return XmlDocPtr{ doc ? xmlCopyDoc(doc, 1) : nullptr };
}

} // namespace vantrel
