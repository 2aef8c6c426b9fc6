#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "xml/XmlPtr.h"

#include <string>
#include <string_view>

/// XML files by plain path: every character of a path means itself, none of them is ever escaped,
/// a URL is a file name like any other, and nothing but that one file is opened.
namespace vantrel {

/// Parses a file with white space kept. The document's `URL` is the path as given. libxml2 reports
/// its own errors. Null when the file can't be read or is not well formed.
VANTREL_API XmlDocPtr ReadXmlFile(const char* path);

/// The bytes of a document as an indented UTF-8 file. False when memory or the document fails.
bool SerializeXml(xmlDoc* doc, std::string* bytes);

/// Writes `bytes` over the file at `path`, or a new file, in place. Room is reserved before the
/// first byte changes, so that a full disk leaves the old content as it was. Any failure gives
/// `status::kUnwritableFile`.
Status WriteFileInPlace(const std::string& path, std::string_view bytes);

/// Writes `bytes` to a file beside the target and renames it over the target, which thus holds the
/// old or the new content whole at every moment. The mode of the old file is kept and a symbolic
/// link is followed. A failure gives `status::kUnwritableFile`, leaves the old file untouched and
/// nothing behind. What is no regular file (a device, a pipe) is written in place.
Status ReplaceFile(const std::string& path, std::string_view bytes);

} // namespace vantrel
