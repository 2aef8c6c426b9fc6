#include "storyboard/ParentObject.h"

#include "storyboard/ParentChildren.h"

#include <algorithm>
#include <set>

using namespace vantrel;

namespace {

constexpr std::size_t kUsualLayers = 20;

CParentObjectImpl::EffectMap& LayerFor(CParentObjectImpl& parent, long key, tagENM_LAYER_TYPE type)
{
    CParentObjectImpl::Layer& layer = parent.m_layers[key];
    if (!layer.second) {
        layer = { type, std::make_unique<CParentObjectImpl::EffectMap>() };
        std::vector<long>& order = parent.m_layerOrder;
        // The layer may have been there before; a key above all that were can't.
        if (key > parent.m_maxLayerKey || std::ranges::find(order, key) == order.end())
            order.push_back(key);
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

std::vector<const std::pair<const long, CParentObjectImpl::Layer>*> vantrel::LayersInOrder(
    const CParentObjectImpl& parent)
{
    const auto hasEffects = [](const CParentObjectImpl::Layer& layer) {
        const auto isThere = [](const auto& entry) {
            return entry.second && entry.second->m_whole;
        };
        return layer.second && std::ranges::any_of(*layer.second, isThere);
    };
    std::vector<const std::pair<const long, CParentObjectImpl::Layer>*> layers;
    std::set<long> told;
    for (const long key : parent.m_layerOrder) {
        const auto layer = parent.m_layers.find(key);
        if (layer != parent.m_layers.end() && hasEffects(layer->second) && told.insert(key).second)
            layers.push_back(&*layer);
    }
    return layers;
}

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
