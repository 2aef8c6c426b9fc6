#pragma once

/// Marks what the shared library exports; everything else is hidden.
#define VANTREL_API __attribute__((visibility("default")))

/// Hides a part of an exported class that its source alone defines.
#define VANTREL_INTERNAL __attribute__((visibility("hidden")))
