#pragma once

#include "core/Report.h"

#include <libxml/xmlerror.h>

namespace vantrel {

/// While it lives, what libxml2 says in this thread goes where the library's messages go. Where
/// those are printed it changes nothing, so that libxml2 says it as an application may have asked.
class XmlReports
{
public:
    XmlReports();
    XmlReports(const XmlReports&) = delete;
    XmlReports& operator=(const XmlReports&) = delete;
    ~XmlReports();

private:
    static void Pass(void* self, xmlError* error) noexcept;

    MessageRoute m_route;
    xmlStructuredErrorFunc m_outer = nullptr; ///< what libxml2 told before
    void* m_outerContext = nullptr;
};

} // namespace vantrel
