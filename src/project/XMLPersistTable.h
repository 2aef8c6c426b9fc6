#pragma once

#include "core/Export.h"
#include "project/NodeType.h"

#include <string>

/// What an element name of the node tree stands for.
struct XMLPersistEntry
{
    std::string strElement; ///< matched exactly, with case
    eNodeType nodeType;     ///< the node that stands for the element
    bool bCreate;           ///< reading makes a new node; else it fills the parent's own child
    bool bLeaf;             ///< what lies inside is the node's own business
};

inline constexpr int numEntries = 30;

/// Every element of the node tree. The first row of a type names the type's elements when they are
/// written.
VANTREL_API extern const XMLPersistEntry xmlPersistTable[numEntries];

/// The first row of that type, or null. A row is not to be changed.
VANTREL_API XMLPersistEntry* FindEntry(eNodeType type);

/// The row of that name, or null.
VANTREL_API XMLPersistEntry* FindEntry(std::string element);
