#pragma once

namespace vantrel {

/// Positions of a project's fixed children.
enum ProjectChild : int
{
    kTitles,
    kMenus,
    kDataFiles,
    kProjectCommands,
};

} // namespace vantrel
