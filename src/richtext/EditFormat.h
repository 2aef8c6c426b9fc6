#pragma once

#include <map>
#include <string>
#include <string_view>

namespace vantrel {

/// A format string of the edit language, taken apart.
///
///     r:some words                                       replace the text
///     f:<font color=#ff000000,faceTexture=0></font>      the text is to take this element
///     x:<b></b>                                          the text is to lose this element
///
/// Values stand unquoted. A comma ends one only where a further attribute begins behind it.
struct EditFormat
{
    std::string operation;                         ///< the letter; empty when there is none
    std::string text;                              ///< all that stands behind the colon
    std::string tag;                               ///< the element's name; empty without an element
    std::map<std::string, std::string> attributes; ///< the element's attributes
};

EditFormat ParseEditFormat(std::string_view format);

/// The format string for an element with one attribute.
std::string FormatElement(std::string_view tag, std::string_view name, std::string_view value);

} // namespace vantrel
