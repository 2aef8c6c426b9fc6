#pragma once

#include "core/Status.h"

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

} // namespace vantrel
