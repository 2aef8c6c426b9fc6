#pragma once

#include "project/XMLPersistTable.h"

#include <string_view>

namespace vantrel {

/// `FindEntry` by name without a copy of it.
const XMLPersistEntry* FindElement(std::string_view element);

} // namespace vantrel
