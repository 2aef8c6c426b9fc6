#pragma once

#include "core/Status.h"

#include <libxml/tree.h>

#include <string>

namespace vantrel {

/// Makes `text`, mended to be fit for a file and without line feeds at its head, the only words of
/// `body`. They stand in the elements of the first run, or, when there is none, where it would
/// stand; an empty text leaves those elements. Words that are there already are left as they stand.
///
/// Gives `status::kBadArgument` for a text that is too long for a file, `status::kNullPointer` when
/// memory fails.
Status ReplaceRuns(xmlNode* body, const std::string& text);

} // namespace vantrel
