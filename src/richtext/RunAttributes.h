#pragma once

#include "richtext/TextAttributes.h"

#include <libxml/tree.h>

namespace vantrel {

/// Summarises the runs below `body` in `attributes`, which is set anew: the words joined, and of
/// each attribute the value that the runs share, or "undetermined". Numbers are left to
/// `Reconcile`. Goes through the tree once. Null gives `status::kNullPointer`.
Status SummariseRuns(const xmlNode* body, TextAttributes* attributes);

} // namespace vantrel
