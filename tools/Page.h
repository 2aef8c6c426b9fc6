#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tool {

/// Text of a file as it may be shown on a terminal: control characters, characters that turn the
/// writing direction, and bytes that are no UTF-8 become `\xNN`.
std::string Printable(std::string_view text);

/// A page for a person to read, put together line by line. All text that comes in is made printable.
class Page
{
public:
    /// Starts a block; the first of a page is its title.
    void Heading(std::string_view text);

    /// A named value of a block. An empty value is left out.
    void Field(std::string_view name, std::string_view value);

    /// An entry of a block that is a list: its ID and what it is called.
    void Entry(std::string_view id, std::string_view text);

    /// A named value of the entry above. An empty value is left out.
    void Detail(std::string_view name, std::string_view value);

    /// The same, so many steps below the details.
    void Nested(std::size_t depth, std::string_view name, std::string_view value);

    /// Lines whose cells stand in columns.
    void Table(const std::vector<std::vector<std::string>>& rows);

    const std::string& text() const { return m_text; }

private:
    void Named(std::size_t indent, std::string_view name, std::string_view value);

    std::string m_text;
};

/// "Panel 4".
std::string Numbered(std::string_view noun, const std::string& number);

/// "1 title", "3 titles".
std::string Count(std::size_t count, std::string_view noun);

/// The texts that are not empty, with commas between them.
std::string List(const std::vector<std::string>& texts);

} // namespace tool
