#pragma once

#include <libxml/xmlerror.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

/// What the fuzz targets share.
namespace vantrel::fuzz {

inline void IgnoreXmlError(void*, const char*, ...)
{}

/// Keeps the messages of libxml2 and of the library off the fuzzer's output, once.
inline void Silence()
{
    static const bool silent = [] {
        xmlSetGenericErrorFunc(nullptr, IgnoreXmlError);
        return std::freopen("/dev/null", "w", stdout) != nullptr;
    }();
    (void)silent;
}

/// A rule that no input may break.
inline void Require(bool holds, const char* rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", rule);
    std::abort();
}

} // namespace vantrel::fuzz
