#pragma once

#include "menu/ElementRows.h"
#include "menu/MenuButtonImpl.h"

/// The attributes of a button's element part, as those of every element part.
template <class Node>
struct CMenuButtonImpl::ButtonRows
{
    using Condition = typename vantrel::AttributeRow<Node>::Condition;

    static constexpr auto Own()
    {
        return vantrel::attribute::Decimal<&CMenuButtonImpl::m_anchorID, Node>("anchor");
    }

    static constexpr auto All(Condition own = nullptr)
    {
        return vantrel::Group<Node>(ElementRows<Node>::All(own), Own());
    }
};
