#pragma once

#include <string>

namespace vantrel {

/// Makes any string fit for an XML file: what is no valid UTF-8, or a character that XML has no
/// room for (controls, surrogates, U+FFFE, U+FFFF), becomes U+FFFD, one for each offending byte.
///
/// Everything that this library writes into a document goes through here, so that a file can always
/// be read back. Returns `text` itself when it is fit, else the mended copy that is put in `store`.
const char* XmlText(const std::string& text, std::string& store);

} // namespace vantrel
