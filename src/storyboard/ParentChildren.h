#pragma once

#include "storyboard/AudioObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/ParentObject.h"
#include "storyboard/QZBaseSBD.h"

#include <memory>

/// How objects come to lie on a parent, from a file or from a program.
namespace vantrel {

/// The layers as a file has them: in their order, each once, without those that have no effects.
std::vector<const std::pair<const long, CParentObjectImpl::Layer>*> LayersInOrder(
    const CParentObjectImpl& parent);

/// The id of the next object in a map of the parent: one that the map doesn't have.
template <class Map>
long NextChildID(CParentObjectImpl& parent, const Map& map)
{
    CQZBaseSBD* sbd = parent.GetSBD();
    long id = sbd ? sbd->NextID() : static_cast<long>(map.size());
    while (map.contains(id))
        id = sbd ? sbd->NextID() : id + 1;
    return id;
}

/// A new object that knows its parent, its production and its id.
template <class Object>
std::unique_ptr<Object> MakeChild(CParentObjectImpl& parent, long id)
{
    auto child = std::make_unique<Object>();
    (void)child->put_ParentProduction(parent.GetSBD()); // setters that can't fail
    (void)child->CSubObjectImpl::put_ID(id);
    (void)child->put_Parent(&parent);
    if constexpr (std::is_base_of_v<CEffectInfoImpl, Object>)
        (void)child->PutEffectID(id);
    return child;
}

} // namespace vantrel
