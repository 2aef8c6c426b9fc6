#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <vector>

namespace bench {

/// Text of an element, with special characters escaped.
std::string Escaped(std::string_view text);

/// Six significant digits, as a project file has them.
std::string NumberText(double number);

/// Writes elements as text in the form that a saved project has: two blanks a level, special
/// characters of attributes escaped, "/>" for an element without content. It knows nothing of the
/// library, so that what it writes tests what the library writes.
class ElementWriter
{
public:
    /// `depth` is the level of the first element.
    explicit ElementWriter(std::size_t depth = 0) : m_depth(depth) {}

    void Open(const char* name);
    /// Belongs to the element opened last, before any content. The caller keeps the byte order of
    /// the names, which is their order in a file.
    void Attribute(const char* name, std::string_view text);
    void Attribute(const char* name, std::integral auto value)
    {
        Attribute(name, std::string_view(std::to_string(value)));
    }
    void Close();

    /// A typed element: "dt:dt" tells its type, `text` is its content.
    void Value(const char* name, const char* type, std::string_view text);
    void Value(const char* name, const char* type, double number);
    void Value(const char* name, const char* type, std::integral auto number)
    {
        Value(name, type, std::string_view(std::to_string(number)));
    }
    /// A line of its own that needs no escaping.
    void Line(std::string_view text);

    /// Takes over what another writer wrote, as content of the element opened last.
    void Content(const ElementWriter& elements);

    std::size_t Depth() const { return m_depth + m_open.size(); }
    const std::string& Text() const { return m_text; }

private:
    void EndStartTag();
    void Indent();

    std::size_t m_depth;
    std::string m_text;
    std::vector<const char*> m_open; ///< names of the open elements
    bool m_inStartTag = false;
};

} // namespace bench
