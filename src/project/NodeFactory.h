#pragma once

#include "project/ProjectNode.h"

#include <memory>

/// What the loader needs of the rooms above it; defined there.
namespace vantrel {

/// A fresh node in its default state for a repeating element of the file, or null when the type is
/// none of a repeating element.
std::unique_ptr<CProjectNode> MakeNode(eNodeType type);

/// Gives `parent` a fixed child of that type when its class has one but doesn't make it by itself: a
/// title's commands and encoding, which come together and without IDs. Else does nothing.
void MakeFixedChild(CProjectNode& parent, eNodeType type);

} // namespace vantrel
