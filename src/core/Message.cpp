#include "core/Message.h"

#include "core/Report.h"

#include <cstdio>
#include <mutex>
#include <optional>
#include <string>

namespace vantrel {

namespace {

/// What `SetMessageHandler` set: the pair is read and written as one.
class ProcessRoute
{
public:
    void Set(MessageRoute route)
    {
        const std::lock_guard lock(m_mutex);
        m_route = route;
    }
    MessageRoute Get()
    {
        const std::lock_guard lock(m_mutex);
        return m_route;
    }

private:
    std::mutex m_mutex;
    MessageRoute m_route{ &PrintMessage, nullptr };
};

constinit ProcessRoute processRoute;
constinit thread_local std::optional<MessageRoute> threadRoute; // of the innermost scope

} // namespace

void PrintMessage(const Message& message, void*) noexcept
{
    (void)std::fwrite(message.text.data(), 1, message.text.size(),
                      message.toStandardError ? stderr : stdout);
}

void SetMessageHandler(MessageHandler handler, void* context) noexcept
{
    processRoute.Set({ handler, context });
}

MessageScope::MessageScope(MessageHandler handler, void* context) noexcept
    : m_outerHandler(threadRoute ? threadRoute->handler : nullptr),
      m_outerContext(threadRoute ? threadRoute->context : nullptr),
      m_isOutermost(!threadRoute)
{
    threadRoute = MessageRoute{ handler, context };
}

MessageScope::~MessageScope()
{
    if (m_isOutermost)
        threadRoute.reset();
    else
        threadRoute = MessageRoute{ m_outerHandler, m_outerContext };
}

MessageRoute MessageRoute::Current() noexcept
{
    return threadRoute ? *threadRoute : processRoute.Get();
}

void MessageRoute::Send(const Message& message) const noexcept
{
    if (handler)
        handler(message, context);
}

void Report(std::string_view text) noexcept
{
    Message message;
    message.text = text;
    message.words = text.substr(0, text.find_last_not_of('\n') + 1);
    MessageRoute::Current().Send(message);
}

void Report(std::string_view before, std::string_view subject, std::string_view after)
{
    Report(std::string(before).append(subject).append(after));
}

} // namespace vantrel
