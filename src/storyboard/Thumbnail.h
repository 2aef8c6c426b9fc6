#pragma once

#include <libxml/tree.h>

#include <cstdlib>
#include <memory>

namespace vantrel {

struct FreeMemory
{
    void operator()(void* memory) const { std::free(memory); }
};

/// Thumbnail bytes, from `malloc`.
using ThumbnailPtr = std::unique_ptr<char, FreeMemory>;

/// Reads the bytes of a thumbnail, as older files have them. `size` is what the file says of them
/// and becomes what there is; memory is taken for the text that is there, whatever the file says.
/// Without an element, or when its text is no blob, there is no thumbnail.
void LoadThumbnailBytes(const xmlNode* element, ThumbnailPtr& bytes, long& size);

} // namespace vantrel
