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

bool UnresolveFilePath(string* path, const string& document)
{
    const std::size_t found = document.find(kContentFolder);
    if (!path || found == string::npos)
        return false;
    const std::string_view folder =
        std::string_view(document).substr(0, found + kContentFolder.size());
    if (!path->starts_with(folder))
        return false;
    path->replace(0, folder.size() - 1, kContentToken);
    return true;
}

} // namespace Utils

bool vantrel::IsAbsolutePath(std::string_view path)
{
    if (path.empty())
        return false;
    const auto isLetter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    return path[0] == '/' || path[0] == '\\' ||
           (path.size() > 1 && path[1] == ':' && isLetter(path[0]));
}

bool vantrel::HasContentToken(std::string_view path)
{
    return path.find(Utils::kContentToken) <= 1;
}

string vantrel::ResolvedPath(string path)
{
    do
        Utils::ResolveFilePath(&path);
    while (HasContentToken(path)); // each round takes one token away
    return path;
}
