#pragma once

#include "menu/ElementRows.h"
#include "menu/MenuOverlayImpl.h"

/// The attributes of an overlay's element part, as those of every element part. `ResolvePaths` is to
/// follow a reading.
template <class Node>
struct CMenuOverlayImpl::OverlayRows
{
    static constexpr auto Own()
    {
        using namespace vantrel::attribute;
        using Overlay = CMenuOverlayImpl;
        return vantrel::Group<Node>(
            Real<&Overlay::m_width, Node>("width"), Real<&Overlay::m_height, Node>("height"),
            Real<&Overlay::m_inPoint, Node>("inPoint"),
            Real<&Overlay::m_outPoint, Node>("outPoint"), Text<&Overlay::m_source, Node>("source"),
            Text<&Overlay::m_alphaMask, Node>("alphaMask"));
    }

    static constexpr auto All() { return vantrel::Group<Node>(ElementRows<Node>::All(), Own()); }
};
