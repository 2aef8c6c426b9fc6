#pragma once

/// Marks what the shared library exports; everything else is hidden.
#define VANTREL_API __attribute__((visibility("default")))
