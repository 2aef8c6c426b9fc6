#pragma once

#include "core/Status.h"

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

} // namespace vantrel
