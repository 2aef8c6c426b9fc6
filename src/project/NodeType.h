#pragma once

#include <cstdint>

/// The kind of a node of the project tree. It never changes, is not written to files, and picks the
/// node's row in the persist table.
enum eNodeType : std::int32_t
{
    eNodeNone = 0,
    eNodeProject = 1,
    eNodeTitles = 2,
    eNodeMenus = 3,
    eNodeDataFiles = 4,
    eNodeElements = 5,
    eNodeTitle = 6,
    eNodeMenu = 7,
    eNodeFile = 8,
    eNodeButton = 9,
    eNodeOverlay = 10,
    eNodeText = 11,
    eNodeCommands = 12,
    eNodeEncoding = 13,
    eNodeLinks = 14,
    eNodeActiveRegion = 15,
    eNodeCommand = 16,
    eNodePalette = 17,
    eNodeButtonScheme = 18,
    eNodeLayoutRect = 19,
    eNodeSPUColours = 20,
};
