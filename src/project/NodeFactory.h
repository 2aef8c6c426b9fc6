#pragma once

#include "project/ProjectNode.h"

#include <memory>

/// What the loader needs of the rooms above it; defined there.
namespace vantrel {

/// A fresh node in its default state for a repeating element of the file, or null when the type is
/// none of a repeating element.
std::unique_ptr<CProjectNode> MakeNode(eNodeType type);

} // namespace vantrel
