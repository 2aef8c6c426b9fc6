#pragma once

#include "project/FormedNode.h"

/// A plain list of a project, which its children make up: "Titles", "Menus" or "DataFiles".
///
/// The element's one attribute, "NumItems", tells a reader of the file how many children there are;
/// it is never read back.
class VANTREL_API CDSList : public vantrel::FormedNode
{
public:
    /// The type says which list it is.
    explicit CDSList(eNodeType type);

private:
    struct Form;
};
