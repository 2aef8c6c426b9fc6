#pragma once

#include "core/Message.h"

namespace vantrel {

/// Where the messages of this thread go at the moment.
struct MessageRoute
{
    MessageHandler handler; ///< or null
    void* context;

    static MessageRoute Current() noexcept;

    /// Nobody asked for anything: libxml2 may report as it always does.
    bool IsDefault() const { return handler == &PrintMessage; }
    void Send(const Message& message) const noexcept;
};

/// Sends a message that printing puts on standard output.
void Report(std::string_view text) noexcept;

/// The same, made of text before and after a `subject`.
void Report(std::string_view before, std::string_view subject, std::string_view after);

} // namespace vantrel
