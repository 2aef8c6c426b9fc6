#pragma once

#include "menu/ElementRows.h"
#include "menu/MenuTextImpl.h"

/// The attributes of a text's element part, as those of every element part.
template <class Node>
struct CMenuTextImpl::TextRows
{
    using Condition = typename vantrel::AttributeRow<Node>::Condition;

    static constexpr auto Own(Condition own = nullptr)
    {
        using namespace vantrel::attribute;
        using TextPart = CMenuTextImpl;
        return vantrel::Group<Node>(Enum<&TextPart::m_handle, Node>("handle").If(own),
                                    Real<&TextPart::m_rotateAngle, Node>("rotateAngle").ReadOnly());
    }

    static constexpr auto All(Condition own = nullptr)
    {
        return vantrel::Group<Node>(ElementRows<Node>::All(own), Own(own));
    }
};
