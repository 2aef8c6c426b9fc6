#pragma once

#include "core/Export.h"
#include "storyboard/Whole.h"
#include "xml/KeptXmlPtr.h"
#include "xml/XMLWrapper.h"

#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class CAudioObject;
class CEffectObject;
class CMotionObject;
class CQZBaseSBD;

/// The application's kinds of layers; files know 0 to 3.
enum tagENM_LAYER_TYPE : std::int32_t
{
};

/// What can carry other objects: layers of effects and motions, and a list of audio. All of them are
/// the parent's and go with it.
class VANTREL_API CParentObjectImpl
{
public:
    /// Effects by id, each the part of a `CEffectObject` or, with `IsMotion`, a `CMotionObject`.
    using EffectMap = std::map<long, vantrel::WholePtr<CEffectInfoImpl>>;
    using Layer = std::pair<tagENM_LAYER_TYPE, std::unique_ptr<EffectMap>>;

    CParentObjectImpl();
    ~CParentObjectImpl();
    CParentObjectImpl(const CParentObjectImpl&) = delete;
    CParentObjectImpl& operator=(const CParentObjectImpl&) = delete;

    /// The storyboard that the complete object lies in, or null.
    CQZBaseSBD* GetSBD() const { return m_parentSBD; }
    void SetSBD(CQZBaseSBD* sbd) { m_parentSBD = sbd; }

    /// @name Making what lies on the parent
    /// A new object has the next id of the storyboard, or the next free one without a storyboard,
    /// this parent and its production. It stays the parent's.
    /// @{
    /// Puts an effect on the layer of that key, behind those that are there. A layer that isn't
    /// there yet is made with that type, as the last one.
    CEffectObject* AddEffect(long layerKey, tagENM_LAYER_TYPE layerType);
    CMotionObject* AddMotion(long layerKey, tagENM_LAYER_TYPE layerType);
    CAudioObject* AddAudio();
    /// @}

    std::map<long, Layer> m_layers; ///< by key
    /// The keys of the layers in the order of the file, which is that of writing. A key without a
    /// layer is passed over.
    std::vector<long> m_layerOrder;
    /// Audio by id, each the part of a `CAudioObject`; null stands for a "smartsound".
    std::map<long, vantrel::WholePtr<CAudioInfoImpl>> m_audioList;
    long m_maxLayerKey = 0; ///< the highest layer key so far
    /// The elements of "smartsounds" that a file brought, by the ids of their null audio.
    std::map<long, vantrel::KeptXmlPtr> m_smartSounds;

private:
    CQZBaseSBD* m_parentSBD = nullptr; ///< not owned
};

/// Persists what lies on a parent as "parentObject". Old files are converted: flat effects become
/// layers, and in a storyboard without a version the keys of layers tell their types and the times
/// of effects move to the middle of frames.
class VANTREL_API CXMLParentObjectImpl : public XMLWrapper<CParentObjectImpl>
{
public:
    explicit CXMLParentObjectImpl(CParentObjectImpl& object) : XMLWrapper(object, "parentObject") {}

    vantrel::Status SaveMembers() override;
    vantrel::Status LoadMembers() override;
};
