#pragma once

#include "core/Status.h"
#include "storyboard/Thumbnail.h"

#include <libxml/tree.h>

namespace vantrel {

/// Runs the companion of one base of a complete object, as a sub-element of `node`. Its status is
/// dropped: a sub-element that an older file lacks leaves the defaults.
template <class Companion, class Object>
void PersistPart(Object& object, xmlNode* node, bool save)
{
    Companion companion(object);
    (void)(save ? companion.SaveToXML(node, false) : companion.LoadFromXML(node, false));
}

/// Reads the bytes of a thumbnail, as older files have them. `size` is what the file says of them
/// and becomes what there is; memory is taken for the text that is there, whatever the file says.
/// Without an element, or when its text is no blob, there is no thumbnail.
void LoadThumbnailBytes(const xmlNode* element, ThumbnailPtr& bytes, long& size);

} // namespace vantrel
