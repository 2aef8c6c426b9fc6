#pragma once

#include "core/Status.h"

#include <utility>

namespace vantrel {

/// The body of a plain `get_`: copies `value` to `out`. Null gives `status::kNullPointer`.
template <class T, class V>
Status Give(T* out, const V& value)
{
    if (!out)
        return status::kNullPointer;
    *out = value;
    return status::kOk;
}

/// The body of a plain `put_`: stores `value` unchecked.
template <class T>
vantrel::Status Take(T& field, T value)
{
    field = std::move(value);
    return vantrel::status::kOk;
}

} // namespace vantrel
