#pragma once

#include "project/FormedNode.h"

/// "Elements": the visible elements of a menu or a button, its children in the order of the file. How
/// they lie over each other is said by their z-order alone. The element has no attributes.
class VANTREL_API CDSMenuElementList : public vantrel::FormedNode
{
public:
    CDSMenuElementList();
    ~CDSMenuElementList() override;

private:
    struct Form;
};
