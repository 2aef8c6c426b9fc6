#pragma once

#include <string>

namespace bench {

/// A made-up project file of about `size` bytes, in the very form that the library saves, so that a
/// load and a save give the same bytes. The same arguments give the same file on every machine.
///
/// `name` is the project's name: that of the file without its extension, which a save stamps anew.
std::string GenerateProject(std::size_t size, const std::string& name);

} // namespace bench
