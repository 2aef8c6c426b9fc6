#include "core/PathUtils.h"

#include <string_view>

using std::string;

namespace Utils {

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
    constexpr std::string_view folder = "/Content/";
    if (path) {
        const std::size_t found = path->find(folder);
        if (found != string::npos)
            path->resize(found + folder.size());
    }
    return false;
}

bool HasString(string text, string part)
{
    return !part.empty() && text.find(part) != string::npos;
}

} // namespace Utils
