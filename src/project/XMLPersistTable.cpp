#include "project/XMLPersistTable.h"

#include <algorithm>
#include <array>

using std::string;
using std::string_view;

// clang-format off
const XMLPersistEntry xmlPersistTable[numEntries] = {
    // element                 node                create  leaf
    { "Project",               eNodeProject,       false,  false },
    { "Titles",                eNodeTitles,        false,  false },
    { "Menus",                 eNodeMenus,         false,  false },
    { "DataFiles",             eNodeDataFiles,     false,  false },
    { "File",                  eNodeFile,          true,   true  },
    { "Elements",              eNodeElements,      false,  false },
    { "Title",                 eNodeTitle,         true,   false },
    { "Menu",                  eNodeMenu,          true,   false },
    { "Palette",               eNodePalette,       false,  true  },
    { "ButtonScheme1",         eNodeButtonScheme,  false,  true  },
    { "ButtonScheme2",         eNodeButtonScheme,  false,  true  },
    { "ButtonScheme3",         eNodeButtonScheme,  false,  true  },
    { "LayoutRect",            eNodeLayoutRect,    false,  true  },
    { "SPUColours",            eNodeSPUColours,    false,  true  },
    { "Overlay",               eNodeOverlay,       true,   true  },
    { "Text",                  eNodeText,          true,   true  },
    { "Encoding",              eNodeEncoding,      false,  true  },
    { "Button",                eNodeButton,        true,   false },
    { "Links",                 eNodeLinks,         false,  true  },
    { "ActiveRegion",          eNodeActiveRegion,  false,  true  },
    { "Commands",              eNodeCommands,      false,  false },
    { "PlayTitleFromChapter",  eNodeCommand,       true,   true  },
    { "PlayMenu",              eNodeCommand,       true,   true  },
    { "StopPlayback",          eNodeCommand,       true,   true  },
    { "SetSubpictureStream",   eNodeCommand,       true,   true  },
    { "Transition",            eNodeCommand,       true,   true  },
    { "PlayClip",              eNodeCommand,       true,   true  },
    { "PlayAllTitles",         eNodeCommand,       true,   true  },
    { "PlayMenuTitles",        eNodeCommand,       true,   true  },
    { "PlayNextTitle",         eNodeCommand,       true,   true  },
};
// clang-format on

namespace {

/// The rows in ascending order of their names, for a search that a load makes for every element.
const auto kByName = [] {
    std::array<const XMLPersistEntry*, numEntries> rows;
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = &xmlPersistTable[i];
    std::sort(rows.begin(), rows.end(),
              [](const auto* a, const auto* b) { return a->strElement < b->strElement; });
    return rows;
}();

} // namespace

const XMLPersistEntry* FindEntry(eNodeType type)
{
    const auto* end = std::end(xmlPersistTable);
    const auto* found = std::find_if(std::begin(xmlPersistTable), end,
                                     [type](const auto& row) { return row.nodeType == type; });
    return found == end ? nullptr : found;
}

const XMLPersistEntry* FindEntry(string element)
{
    return vantrel::FindElement(element);
}

const XMLPersistEntry* vantrel::FindElement(string_view element)
{
    const auto found = std::lower_bound(
        kByName.begin(), kByName.end(), element,
        [](const auto* row, string_view wanted) { return row->strElement < wanted; });
    return found != kByName.end() && (*found)->strElement == element ? *found : nullptr;
}
