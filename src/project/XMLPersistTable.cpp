#include "project/XMLPersistTable.h"

#include "project/ElementLookup.h"

#include <algorithm>
#include <iterator>

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

template <class Test>
const XMLPersistEntry* FirstEntry(Test isWanted)
{
    const auto* end = std::end(xmlPersistTable);
    const auto* found = std::find_if(std::begin(xmlPersistTable), end, isWanted);
    return found == end ? nullptr : found;
}

} // namespace

XMLPersistEntry* FindEntry(eNodeType type)
{
    return const_cast<XMLPersistEntry*>(
        FirstEntry([type](const auto& row) { return row.nodeType == type; }));
}

XMLPersistEntry* FindEntry(string element)
{
    return const_cast<XMLPersistEntry*>(vantrel::FindElement(element));
}

const XMLPersistEntry* vantrel::FindElement(string_view element)
{
    // Names are first compared by length, so that a plain walk beats a search in a sorted table.
    return FirstEntry([element](const auto& row) { return row.strElement == element; });
}
