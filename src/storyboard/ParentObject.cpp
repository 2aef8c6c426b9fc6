#include "storyboard/ParentObject.h"

#include "storyboard/ParentChildren.h"

#include <algorithm>

using namespace vantrel;

namespace {

constexpr std::size_t kUsualLayers = 20;

CParentObjectImpl::EffectMap& LayerFor(CParentObjectImpl& parent, long key, tagENM_LAYER_TYPE type)
{
    CParentObjectImpl::Layer& layer = parent.m_layers[key];
    if (!layer.second) {
        layer = { type, std::make_unique<CParentObjectImpl::EffectMap>() };
        parent.m_layerOrder.push_back(key);
        parent.m_maxLayerKey = std::max(parent.m_maxLayerKey, key);
    }
    return *layer.second;
}

template <class Object, class Map>
Object* AddChild(CParentObjectImpl& parent, Map& map)
{
    const long id = NextChildID(parent, map);
    std::unique_ptr<Object> child = MakeChild<Object>(parent, id);
    Object* added = child.get();
    map.emplace(id, child.release());
    return added;
}

} // namespace

CParentObjectImpl::CParentObjectImpl()
{
    m_layerOrder.reserve(kUsualLayers);
}

CParentObjectImpl::~CParentObjectImpl() = default;

CEffectObject* CParentObjectImpl::AddEffect(long layerKey, tagENM_LAYER_TYPE layerType)
{
    return AddChild<CEffectObject>(*this, LayerFor(*this, layerKey, layerType));
}

CMotionObject* CParentObjectImpl::AddMotion(long layerKey, tagENM_LAYER_TYPE layerType)
{
    return AddChild<CMotionObject>(*this, LayerFor(*this, layerKey, layerType));
}

CAudioObject* CParentObjectImpl::AddAudio()
{
    return AddChild<CAudioObject>(*this, m_audioList);
}
