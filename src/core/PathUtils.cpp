#include "core/PathUtils.h"

#include <algorithm>
#include <string_view>

using std::string;

namespace Utils {

namespace {

constexpr std::string_view kContentFolder = "/Content/";
constexpr std::string_view kContentToken = "%CONTENT%";

} // namespace

bool GetDirectoryAndFileName(string path, string* directory, string* name, string* extension)
{
    if (path.empty())
        return false;

    std::size_t separator = path.rfind('\\');
    if (separator == string::npos)
        separator = path.rfind('/');
    const std::size_t begin = separator == string::npos ? 0 : separator + 1;

    std::size_t dot = path.rfind('.');
    if (dot == string::npos || dot < begin)
        dot = path.size();

    if (directory)
        *directory = path.substr(0, begin == 0 ? 0 : separator);
    if (name)
        *name = dot > begin ? path.substr(begin, dot - begin) : path.substr(begin);
    if (extension)
        *extension = path.substr(dot);
    return true;
}

bool GetContentPath(string* path)
{
    if (path) {
        const std::size_t found = path->find(kContentFolder);
        if (found != string::npos)
            path->resize(found + kContentFolder.size());
    }
    return false;
}

bool HasString(string text, string part)
{
    return !part.empty() && text.find(part) != string::npos;
}

bool ResolveFilePath(string* path)
{
    if (!path)
        return false;
    const std::size_t found = path->find(kContentToken);
    if (found == 0)
        path->erase(0, kContentToken.size());
    else if (found == 1) // the token in a pair of separators or quotes, which goes with it
        path->erase(0, kContentToken.size() + 2);
    std::ranges::replace(*path, '\\', '/');
    return false;
}

bool UnresolveFilePath(string* path)
{
    const std::size_t found = path ? path->find(kContentFolder) : string::npos;
    if (found == string::npos)
        return false;
    path->replace(0, found + kContentFolder.size() - 1, kContentToken);
    return true;
}

} // namespace Utils
