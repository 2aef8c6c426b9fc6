#pragma once

#include "core/Status.h"

#include <new>
#include <utility>

namespace vantrel {

/// Runs an operation of the interface: memory that runs out is told by the status and never thrown.
template <class Operation>
Status Guarded(Operation operation)
{
    try {
        return operation();
    } catch (const std::bad_alloc&) {
        return status::kNoMemory;
    }
}

/// The body of a plain `get_`: copies `value` to `out`. Null gives `status::kNullPointer`.
template <class T, class V>
Status Give(T* out, const V& value)
{
    if (!out)
        return status::kNullPointer;
    return Guarded([&] {
        *out = value;
        return status::kOk;
    });
}

/// The body of a plain `put_`: stores `value` unchecked.
template <class T>
Status Take(T& field, T value)
{
    field = std::move(value);
    return status::kOk;
}

} // namespace vantrel
