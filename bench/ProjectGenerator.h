#pragma once

#include "NodeWriter.h"

#include <string>

namespace bench {

/// Made-up project files in the very form that the library saves, so that a load and a save give the
/// same bytes. The same arguments give the same file on every machine.
///
/// `name` is the project's name: that of the file without its extension, which a save stamps anew.

/// A file of about `size` bytes with all that a project can hold. Two thirds of the nodes of its
/// storyboards are what effects keep as XML.
std::string GenerateProject(std::size_t size, const std::string& name);

/// A project of `count` menus. Ordinary ones have a small storyboard each.
std::string GenerateMenus(std::size_t count, const MenuShape& shape, const std::string& name);

/// A project of one title whose storyboard has `count` clips.
std::string GenerateClips(std::size_t count, const std::string& name);

/// A template for native menus.
std::string GenerateTemplate();

} // namespace bench
