#include "storyboard/PersistParts.h"

#include "xml/TypedElement.h"
#include "xml/TypedValue.h"

#include <algorithm>

namespace vantrel {

void LoadThumbnailBytes(const xmlNode* element, ThumbnailPtr& bytes, long& size)
{
    const ElementText held(element);
    const std::string_view text = held;
    unsigned long count = std::min(static_cast<unsigned long>(std::max(size, 0L)), text.size() / 2);
    bytes.reset(count > 0 ? static_cast<char*>(std::malloc(count)) : nullptr);
    if (!bytes || Failed(typed::ReadBlob(text, bytes.get(), count)) || count == 0) {
        bytes.reset();
        count = 0;
    }
    size = static_cast<long>(count);
}

} // namespace vantrel
