#pragma once

#include "xml/XmlPtr.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {

/// A template file of native menus as a document; null for what is no regular file, no XML, or too
/// large for a template.
XmlDocPtr ReadTemplate(const std::string& path);

/// The same for the many menus of a load, which share few templates: a file is parsed once, and each
/// menu gets a copy, because reading a production takes parts out of its document.
class MenuTemplates
{
public:
    XmlDocPtr Copy(const std::string& path);

private:
    struct Template
    {
        std::string path;
        XmlDocPtr doc; ///< null: it can't be read, and need not be tried again
    };
    std::vector<Template> m_recent; ///< the last used first
};

} // namespace vantrel
