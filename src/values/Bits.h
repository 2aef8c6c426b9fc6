#pragma once

#include "project/FormatUtils.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// The bits of tags and flags, by name. A file may bring bits that have no name; they stay.

namespace vantrel {

/// A set of bits that an enumeration names.
/// @code
///     if (menu.tag().has(MenuTag::main))
///         menu.tag(MenuTag::main | MenuTag::transition);
/// @endcode
template <class Enum>
class Bits
{
public:
    constexpr Bits() = default;
    constexpr Bits(Enum bit) : m_number(static_cast<unsigned long>(bit)) {}
    constexpr explicit Bits(unsigned long number) : m_number(number) {}

    /// The bits as the classes of the model have them.
    constexpr unsigned long number() const { return m_number; }
    /// All of `bits` are set.
    constexpr bool has(Bits bits) const { return (m_number & bits.m_number) == bits.m_number; }
    constexpr bool empty() const { return m_number == 0; }

    constexpr Bits with(Bits bits) const { return Bits(m_number | bits.m_number); }
    constexpr Bits without(Bits bits) const { return Bits(m_number & ~bits.m_number); }
    friend constexpr Bits operator|(Bits a, Bits b) { return a.with(b); }
    friend constexpr bool operator==(Bits, Bits) = default;

private:
    unsigned long m_number = 0;
};

/// What a title is for.
enum class TitleTag : std::uint32_t
{
    normal = 1,
    firstPlay = 2,
    transition = 4,
    hidden = 8, ///< "Private" in a file
};

/// What a menu is for.
enum class MenuTag : std::uint32_t
{
    main = 1,
    chapter = 2,
    mainTemplate = 4,
    chapterTemplate = 8,
    transition = 16,
};

enum class MenuFlag : std::uint32_t
{
    still = 1,
};

/// What a button does.
enum class ButtonTag : std::uint32_t
{
    next = 1,
    previous = 2,
    home = 4,
    up = 8,
    chapterIndex = 16,
    command = 32,
};

/// What an overlay is in its button.
enum class OverlayTag : std::uint32_t
{
    generic = 1,
    frame = 2,
    thumbnail = 4,
    highlight = 8,
    matte = 16,
};

/// What a text is in its button.
enum class TextTag : std::uint32_t
{
    label = 1,
    index = 2,
};

enum class ProjectOption : std::uint32_t
{
    archiveTitleImageSources = 1,
    archiveTitleVideoSources = 2,
    archiveMenuSources = 4,
    normalizeAudioLevels = 8,
    progressiveVideo = 16,
    freeButtonResizing = 32,
    playRemainingTitles = 64,
};

/// Where a project is built to.
enum class Target : std::uint32_t
{
    disc = 1,
    image = 2,
    folder = 4,
};

namespace detail {

/// What a file puts behind the number: the names of an enumeration's value or of bits.
inline std::string_view InParentheses(std::string_view formatted)
{
    const auto open = formatted.find('(');
    const auto close = formatted.rfind(')');
    if (open == formatted.npos || close == formatted.npos || close < open)
        return {};
    return formatted.substr(open + 1, close - open - 1);
}

// clang-format off
inline std::string Format(Bits<TitleTag> bits)      { return FormatTitleTag(bits.number()); }
inline std::string Format(Bits<MenuTag> bits)       { return FormatMenuTag(bits.number()); }
inline std::string Format(Bits<MenuFlag> bits)      { return FormatMenuFlag(bits.number()); }
inline std::string Format(Bits<ButtonTag> bits)     { return FormatButtonTag(bits.number()); }
inline std::string Format(Bits<OverlayTag> bits)    { return FormatOverlayTag(bits.number()); }
inline std::string Format(Bits<TextTag> bits)       { return FormatTextTag(bits.number()); }
inline std::string Format(Bits<ProjectOption> bits) { return FormatProjectOptions(bits.number()); }
inline std::string Format(Bits<Target> bits)        { return FormatTargetType(bits.number()); }
// clang-format on

/// An enumeration whose bits have names.
template <class Enum>
concept Bit = requires(Bits<Enum> bits)
{
    Format(bits);
};

} // namespace detail

template <detail::Bit Enum>
constexpr Bits<Enum> operator|(Enum a, Enum b)
{
    return Bits<Enum>(a) | Bits<Enum>(b);
}

/// The names of the bits that are set, as a file has them.
template <class Enum>
std::vector<std::string> Names(Bits<Enum> bits)
{
    const std::string formatted = detail::Format(bits);
    std::vector<std::string> names;
    for (std::string_view rest = detail::InParentheses(formatted); !rest.empty();) {
        const auto bar = rest.find('|');
        names.emplace_back(rest.substr(0, bar));
        rest.remove_prefix(bar == rest.npos ? rest.size() : bar + 1);
    }
    return names;
}

/// The name of an enumeration's value, as a file has it; empty for a number without one.
template <class Enum>
requires requires(Enum value)
{
    FormatEnum(value);
}
std::string Name(Enum value)
{
    const std::string formatted = FormatEnum(value);
    const std::string_view name = detail::InParentheses(formatted);
    return std::string(name == "unknown" ? std::string_view() : name);
}

} // namespace vantrel
