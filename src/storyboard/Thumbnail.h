#pragma once

#include <cstdlib>
#include <memory>

namespace vantrel {

struct FreeMemory
{
    void operator()(void* memory) const { std::free(memory); }
};

/// Thumbnail bytes, from `malloc`.
using ThumbnailPtr = std::unique_ptr<char, FreeMemory>;

} // namespace vantrel
