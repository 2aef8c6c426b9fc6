#pragma once

#include "core/Status.h"

#include <optional>
#include <utility>

namespace vantrel {

/// What all handles are: a view of an object of the model, as cheap to copy as the pointer that it
/// holds, and never an owner.
///
/// A handle may be empty. Every question on an empty one has an empty answer (an empty text, 0, an
/// empty handle, an empty range), and every change of one gives `status::kNullPointer`, so that a
/// chain of questions needs one check at its end. A handle is good until its object is released.
///
/// Reading and writing share a name: `title.label()` reads, `title.label("x")` writes and gives the
/// status of the operation behind it. `const` is that of the view, as with a pointer.
template <class Class>
class Handle
{
public:
    using Object = Class;

    constexpr Handle() = default;
    /// A view of an object of the model, which stays its owner's; null makes an empty one.
    constexpr Handle(Class* object) : m_object(object) {}

    constexpr explicit operator bool() const { return m_object != nullptr; }
    /// The object of the model, or null.
    constexpr Class* object() const { return m_object; }

    /// True for views of the same object.
    friend constexpr bool operator==(const Handle&, const Handle&) = default;

protected:
    /// What a `get_` answers, the default of its type where it answers nothing.
    template <class Base, class Value>
    Value Ask(Status (Base::*get)(Value*)) const
    {
        Value value{};
        if (m_object)
            (void)(m_object->*get)(&value);
        return value;
    }
    template <class Base, class Value>
    Value Ask(Status (Base::*get)(Value*) const) const
    {
        Value value{};
        if (m_object)
            (void)(m_object->*get)(&value);
        return value;
    }

    /// The same where an answer counts only with the status 0.
    template <class Getter>
    auto AskIf(Getter get) const
    {
        return AskIf(get, get);
    }

    template <class Base, class Parameter, class Value>
    Status Put(Status (Base::*put)(Parameter), Value&& value) const
    {
        return m_object ? (m_object->*put)(std::forward<Value>(value)) : status::kNullPointer;
    }

    /// A public field, or the default of its type.
    template <class Base, class Value>
    Value Field(Value Base::*field) const
    {
        return m_object ? m_object->*field : Value{};
    }
    template <class Base, class Value>
    Status Field(Value Base::*field, Value value) const
    {
        if (!m_object)
            return status::kNullPointer;
        m_object->*field = std::move(value);
        return status::kOk;
    }

private:
    template <class Getter, class Base, class Value>
    std::optional<Value> AskIf(Getter get, Status (Base::*)(Value*)) const
    {
        return AnswerIf<Value>(get);
    }
    template <class Getter, class Base, class Value>
    std::optional<Value> AskIf(Getter get, Status (Base::*)(Value*) const) const
    {
        return AnswerIf<Value>(get);
    }
    template <class Value, class Getter>
    std::optional<Value> AnswerIf(Getter get) const
    {
        Value value{};
        if (!m_object || (m_object->*get)(&value) != status::kOk)
            return std::nullopt;
        return value;
    }

    Class* m_object = nullptr;
};

} // namespace vantrel
