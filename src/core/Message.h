#pragma once

/// @file
/// What the library prints, and who gets it.
///
/// A few operations tell of a failure by a line of text beside their status, and libxml2 by lines of
/// its own about XML that it can't read. Unless something else is asked for, all of it goes to
/// standard output and standard error.
/// @code
///     vantrel::SetMessageHandler(nullptr);  // the process prints nothing any more
///
///     vantrel::MessageScope scope(
///         [](const vantrel::Message& message, void* log) noexcept {
///             static_cast<Log*>(log)->Add(message.text);
///         }, &log);                         // only this thread, until the end of the block
/// @endcode

#include "core/Export.h"

#include <string_view>

namespace vantrel {

/// One message. All of it is borrowed: it lives as long as the call of the handler.
struct Message
{
    std::string_view text;        ///< as it is printed, with its line feed where it has one
    std::string_view words;       ///< the same without place and line feed
    std::string_view path;        ///< the XML file that is meant, or empty
    int line = 0;                 ///< in that file, from 1; 0 when none is meant
    int column = 0;               ///< the same
    bool toStandardError = false; ///< where printing puts it; else standard output
};

/// Gets the messages. `context` is what was given along with it.
using MessageHandler = void (*)(const Message& message, void* context) noexcept;

/// Prints a message; the handler of a process that has set none.
VANTREL_API void PrintMessage(const Message& message, void* context) noexcept;

/// Sends the messages of all threads to `handler`, which may be called by several at a time and sets
/// no handler itself; null drops them. `context` stays the caller's.
///
/// What libxml2 says is passed on only where a handler other than `PrintMessage` is set; else libxml2
/// prints it itself, or tells the functions that the application gave to libxml2.
VANTREL_API void SetMessageHandler(MessageHandler handler, void* context = nullptr) noexcept;

/// While it lives, the messages of its thread go to `handler`, or nowhere when that is null. Scopes
/// nest: the innermost counts. A scope ends in the thread that made it, the innermost first.
class VANTREL_API MessageScope
{
public:
    explicit MessageScope(MessageHandler handler, void* context = nullptr) noexcept;
    MessageScope(const MessageScope&) = delete;
    MessageScope& operator=(const MessageScope&) = delete;
    ~MessageScope();

private:
    MessageHandler m_outerHandler; ///< that of the scope around
    void* m_outerContext;
    bool m_isOutermost;
};

} // namespace vantrel
