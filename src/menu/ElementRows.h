#pragma once

#include "menu/MenuElementImpl.h"
#include "project/AttributeRows.h"

namespace vantrel {

/// The condition of rows that are to be left out.
template <class Node>
constexpr bool Never(const Node&)
{
    return false;
}

} // namespace vantrel

/// The attributes that all elements share. `Node` is the class whose table the rows go into, so that
/// a node has one table for both of its parts.
template <class Node>
struct CMenuElementImpl::ElementRows
{
    using Row = vantrel::AttributeRow<Node>;

    /// Only those elements have a geometry of their own for which `own` holds, or all without it.
    static constexpr auto All(typename Row::Condition own = nullptr)
    {
        using namespace vantrel::attribute;
        using Element = CMenuElementImpl;
        // The names of the bits depend on the kind of element, and what is written of the position
        // is the one that the element shows.
        Row tag = Decimal<&Element::m_tag, Node>("tag");
        tag.write = [](const Node& node, std::string& text) { node.AppendTag(text); };
        Row x = Real<&Element::m_x, Node>("x");
        x.write = [](const Node& node, std::string& text) { AppendShown<0>(node, text); };
        Row y = Real<&Element::m_y, Node>("y");
        y.write = [](const Node& node, std::string& text) { AppendShown<1>(node, text); };
        return vantrel::Group<Node>(tag, Decimal<&Element::m_flags, Node>("flags"),
                                    Decimal<&Element::m_templateID, Node>("templateID"), x.If(own),
                                    y.If(own), Real<&Element::m_rotation, Node>("rotation").If(own),
                                    Decimal<&Element::m_zOrder, Node>("zOrder").If(own));
    }

private:
    template <int Axis>
    static void AppendShown(const Node& node, std::string& text)
    {
        float at[2] = { 0.0F, 0.0F };
        (void)node.getPosition(&at[0], &at[1]); // both outputs are there
        vantrel::AppendNumber(text, static_cast<double>(at[Axis]));
    }
};
