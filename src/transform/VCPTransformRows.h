#pragma once

#include "transform/VCPTransformImpl.h"

/// What the operations need to know of a track of three components.
struct CVCPTransformImpl::VectorRow
{
    unsigned long mask;
    unsigned long x, y, z; ///< the capability bits of the axes
    D3DXVECTOR3 rest;      ///< the value of a key that is made to have something to adjust
    vantrel::VectorTrack CVCPTransformImpl::*track;
    D3DXVECTOR3 CVCPTransformImpl::*last;
    D3DXVECTOR3 CVCPTransformImpl::*delta;
};

/// The one place that knows all tracks.
template <class Operation>
void CVCPTransformImpl::ForEachTrack(Operation operation)
{
    for (const VectorRow& row : kVectorRows)
        operation(this->*row.track);
    operation(m_opacity);
}
