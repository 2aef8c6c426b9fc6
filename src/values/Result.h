#pragma once

#include "core/Status.h"

#include <cstdio>
#include <string>
#include <utility>

namespace vantrel {

/// Why something could not be done.
struct Error
{
    Status status = status::kFailure;
    std::string words; ///< for people: "the file can't be written"
    std::string path;  ///< the file that it is about, or empty
    std::string step;  ///< what was being done: "load", "save"
    int line = 0;      ///< where in the file, from 1; 0 when no place is to blame
    int column = 0;

    /// All of it on one line, as "a.xml:12:4: the tag isn't closed (0xC2010142)".
    std::string text() const
    {
        std::string place = path;
        if (line > 0)
            place += ':' + std::to_string(line) + ':' + std::to_string(column);
        char code[16];
        std::snprintf(code, sizeof code, " (0x%08X)", static_cast<unsigned>(status));
        return (place.empty() ? place : place + ": ") + words + code;
    }
};

/// A value, or an error beside an empty value: questions have empty answers then, as those of any
/// handle.
/// @code
///     const auto loaded = vantrel::Load(path);
///     if (!loaded)
///         return Complain(loaded.error().text());
///     Print(loaded->label());
/// @endcode
template <class Value>
class [[nodiscard]] Result
{
public:
    Result(Value value) : m_value(std::move(value)) {}
    Result(Error error) : m_value(nullptr), m_error(std::move(error)) {}

    explicit operator bool() const { return has_value(); }
    bool has_value() const { return !Failed(m_error.status); }

    Value& operator*() & { return m_value; }
    const Value& operator*() const& { return m_value; }
    Value&& operator*() && { return std::move(m_value); }
    Value* operator->() { return &m_value; }
    const Value* operator->() const { return &m_value; }

    /// Of status 0 and without words where there is a value.
    const Error& error() const { return m_error; }

private:
    Value m_value;
    Error m_error{ .status = status::kOk, .words = {}, .path = {}, .step = {} };
};

/// The same for what gives nothing back.
template <>
class [[nodiscard]] Result<void>
{
public:
    Result() = default;
    Result(Error error) : m_error(std::move(error)) {}

    explicit operator bool() const { return !Failed(m_error.status); }
    bool has_value() const { return !Failed(m_error.status); }
    const Error& error() const { return m_error; }

private:
    Error m_error{ .status = status::kOk, .words = {}, .path = {}, .step = {} };
};

} // namespace vantrel
