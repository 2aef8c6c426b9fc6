#pragma once

#include <string>
#include <string_view>

namespace vantrel {

/// True when `text` is valid UTF-8 and holds only characters that an XML 1.0 document may hold.
bool IsXmlText(std::string_view text);

/// Makes any string fit for an XML file: what is no valid UTF-8, or a character that XML has no
/// room for (controls, surrogates, U+FFFE, U+FFFF), becomes U+FFFD, one for each offending byte.
///
/// Everything that this library writes into a document goes through here, so that a file can always
/// be read back. Returns `text` itself when it is fit, else the mended copy that is put in `store`.
const char* XmlText(const std::string& text, std::string& store);

} // namespace vantrel
