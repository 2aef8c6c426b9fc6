#pragma once

#include "core/Status.h"

#include <libxml/tree.h>

#include <map>
#include <string>
#include <vector>

namespace vantrel {

/// What elements of one name are to the runs of a body.
struct RunScan
{
    std::vector<xmlNode*> elements; ///< all of that name below the body, outer before inner
    std::vector<xmlNode*> deciding; ///< those whose attributes count for some run
    bool hasLooseRun = false;       ///< some run stands in no such element
    int deepestRun = 0;             ///< levels below the body; a child is one level below
};

/// Goes through `body` once. Where elements of that name are nested, the innermost that has one of
/// `attributes` with a value decides on a run, or without any such the innermost.
RunScan ScanRuns(xmlNode* body, const std::string& name,
                 const std::map<std::string, std::string>& attributes);

/// Puts new elements around all runs that stand in no element of that name: as few and as far out
/// as it goes, except that none but a paragraph is put around a paragraph. Appends them to `made`.
/// Gives `status::kNullPointer` when memory fails.
Status CoverLooseRuns(xmlNode* body, const std::string& name, std::vector<xmlNode*>* made);

} // namespace vantrel
