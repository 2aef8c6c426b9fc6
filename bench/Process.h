#pragma once

#include <string>
#include <vector>

namespace bench {

/// Runs this program anew with these arguments and gives what it wrote to standard output. A child
/// that fails ends this process too.
std::string OutputOfSelf(const std::vector<std::string>& arguments);

} // namespace bench
