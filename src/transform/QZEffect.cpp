#include "transform/QZEffect.h"

#include "core/Property.h"
#include "storyboard/EffectInfo.h"
#include "storyboard/SourceFileObject.h"
#include "storyboard/SubObject.h"
#include "transform/RestingKey.h"
#include "transform/VCPFinite.h"
#include "transform/VCPPlugInHelper.h"
#include "xml/KeptXml.h"
#include "xml/TypedElement.h"
#include "xml/XMLHelpers.h"
#include "xml/XmlValue.h"

#include <type_traits>

using namespace vantrel;
using std::string;

namespace {

/// A field of a part of the complete object behind an effect; null when that has no such part.
template <class Part, class T>
T* FieldOf(const CEffectInfoImpl& effect, T Part::*field)
{
    Part* part = dynamic_cast<Part*>(effect.m_whole);
    return part ? &(part->*field) : nullptr;
}

template <class Part, class T>
Status Read(const CEffectInfoImpl* effect, T Part::*field, T* out)
{
    if (!effect)
        return status::kOk;
    const T* value = FieldOf(*effect, field);
    return value ? Give(out, *value) : status::kNothingDone;
}

template <class Part, class T>
Status Write(const CEffectInfoImpl* effect, T Part::*field, T value)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (effect && !std::isfinite(value))
            return status::kBadArgument;
    }
    if (!effect)
        return status::kOk;
    T* target = FieldOf(*effect, field);
    if (!target)
        return status::kNothingDone;
    *target = std::move(value);
    return status::kOk;
}

void StoreData(CEffectInfoImpl& effect, const _xmlNode* node)
{
    KeptXmlPtr copy{ CopyXml(node).release() }; // first: `node` may lie in what goes
    effect.m_loadedData = std::move(copy);
    (void)effect.PutData(effect.m_loadedData.get(), true); // never fails
}

/// The effect's data to write into: its own, so that a subtree of the caller's stays as it is. Null
/// when there is none.
_xmlNode* DataToChange(CEffectInfoImpl& effect)
{
    if (effect.m_data && effect.m_data != effect.m_loadedData.get())
        StoreData(effect, effect.m_data);
    return effect.m_data;
}

} // namespace

Status CQZEffect::Create()
{
    return exists() ? status::kNothingDone : status::kOk;
}

Status CQZEffect::Delete()
{
    return status::kOk;
}

Status CQZEffect::Attach()
{
    return status::kOk;
}

Status CQZEffect::Attach(CEffectInfoImpl* effect)
{
    m_effectInfo = effect;
    return status::kOk;
}

_xmlNode* CQZEffect::getXMLData() const
{
    return m_effectInfo ? m_effectInfo->m_data : nullptr;
}

_xmlNode* CQZEffect::getXMLPlugInData() const
{
    return FindChildElement(getXMLData(), bstrEffectPluginDataTag);
}

Status CQZEffect::setXMLData(_xmlNode* node)
{
    if (!m_effectInfo)
        return status::kUnexpected;
    StoreData(*m_effectInfo, node);
    return status::kOk;
}

Status CQZEffect::setXMLPlugInData(_xmlNode* node)
{
    if (!m_effectInfo)
        return status::kOk;
    if (node && !IsElement(node))
        return status::kBadArgument;
    XmlNodePtr copy = CopyXml(node); // first: `node` may lie in what goes
    _xmlNode* data = DataToChange(*m_effectInfo);
    if (!data)
        return status::kNotAvailable;
    (void)XMLHelpers<void>::RemoveNode(data, bstrEffectPluginDataTag); // there may be none
    if (copy) {
        xmlNodeSetName(copy.get(), XmlChars(bstrEffectPluginDataTag));
        xmlAddChild(data, copy.release());
    }
    return status::kOk;
}

Status CQZEffect::get3DKeyFrame(unsigned long mask, double time, KVC_KEYFRAME_TYPE type, float* x,
                                float* y, float* z, unsigned long* caps) const
{
    if (!m_effectInfo)
        return status::kUnexpected;
    if (!getXMLData())
        return status::kOk;
    CVCPPlugInHelper helper;
    (void)helper.LoadXML(getXMLPlugInData()); // never fails
    return GetKeyOrRest(helper, mask, time, type, x, y, z, caps);
}

Status CQZEffect::getTranslation(float* x, float* y, float* z) const
{
    return get3DKeyFrame(TRANSFORM_TRANSLATION, 0.0, KVC_KEYFRAME_START_OFFSET, x, y, z, nullptr);
}

Status CQZEffect::getRotation(float* x, float* y, float* z) const
{
    return get3DKeyFrame(TRANSFORM_ROTATION, 0.0, KVC_KEYFRAME_START_OFFSET, x, y, z, nullptr);
}

Status CQZEffect::getScaling(float* x, float* y, float* z) const
{
    return get3DKeyFrame(TRANSFORM_SCALING, 0.0, KVC_KEYFRAME_START_OFFSET, x, y, z, nullptr);
}

Status CQZEffect::getHandle(float* x, float* y, float* z) const
{
    return get3DKeyFrame(TRANSFORM_HANDLES, 0.0, KVC_KEYFRAME_START_OFFSET, x, y, z, nullptr);
}

Status CQZEffect::set3DKeyFrame(unsigned long mask, float x, float y, float z)
{
    if (!m_effectInfo)
        return status::kOk;
    if (!IsFinite(D3DXVECTOR3(x, y, z)))
        return status::kBadArgument;
    _xmlNode* data = DataToChange(*m_effectInfo);
    if (!data)
        return status::kNotAvailable;
    _xmlNode* plugIn = FindChildElement(data, bstrEffectPluginDataTag);
    if (!plugIn)
        plugIn = AddElement(data, bstrEffectPluginDataTag);

    CVCPTransformImpl transform;
    (void)transform.LoadXML(plugIn); // never fails
    unsigned long xBit = 0, yBit = 0, zBit = 0;
    transform.GetAdjustCaps(mask, &xBit, &yBit, &zBit);
    unsigned long caps = xBit | yBit | zBit;
    constexpr KVC_KEYFRAME_TYPE start = KVC_KEYFRAME_START_OFFSET;
    (void)transform.Get3DKeyframe(mask, 0.0, start, nullptr, nullptr, nullptr, &caps);
    (void)transform.Set3DKeyframe(mask, 0.0, start, x, y, z, caps); // a good mask and good numbers
    return transform.ReplaceXML(plugIn);
}

Status CQZEffect::setTranslation(float x, float y, float z)
{
    return set3DKeyFrame(TRANSFORM_TRANSLATION, x, y, z);
}

Status CQZEffect::setRotation(float x, float y, float z)
{
    return set3DKeyFrame(TRANSFORM_ROTATION, x, y, z);
}

Status CQZEffect::setScaling(float x, float y, float z)
{
    return set3DKeyFrame(TRANSFORM_SCALING, x, y, z);
}

Status CQZEffect::setHandle(float x, float y, float z)
{
    return set3DKeyFrame(TRANSFORM_HANDLES, x, y, z);
}

Status CQZEffect::getID(long* out) const
{
    return m_effectInfo ? Give(out, m_effectInfo->m_effectID) : status::kOk;
}

long CQZEffect::getGroupID() const
{
    return -1;
}

Status CQZEffect::setGroupID(long id)
{
    if (m_effectInfo)
        m_effectInfo->m_groupID = id;
    return status::kOk;
}

Status CQZEffect::getAlphaMask(string*) const
{
    return status::kNothingDone;
}

Status CQZEffect::setAlphaMask(string path)
{
    if (!m_effectInfo)
        return status::kOk;
    std::unique_ptr<CSourceFileObject>& file = m_effectInfo->m_alphaFile;
    if (path.empty()) {
        file.reset();
        return status::kOk;
    }
    if (!file)
        file = std::make_unique<CSourceFileObject>();
    file->m_fileName = std::move(path);
    return status::kOk;
}

Status CQZEffect::setMaskSize(double, double)
{
    return status::kOk;
}

Status CQZEffect::getModelRect(std::vector<FPoint>&) const
{
    return status::kOk;
}

Status CQZEffect::getProductionAspectRatio(double* out) const
{
    return Give(out, 16.0 / 9.0);
}

Status CQZEffect::getStartOffset(double* out) const
{
    return Read(m_effectInfo, &CSubObjectImpl::m_startOffset, out);
}

Status CQZEffect::setStartOffset(double seconds)
{
    return Write(m_effectInfo, &CSubObjectImpl::m_startOffset, seconds);
}

Status CQZEffect::getEndOffset(double* out) const
{
    return Read(m_effectInfo, &CSubObjectImpl::m_endOffset, out);
}

Status CQZEffect::setEndOffset(double seconds)
{
    return Write(m_effectInfo, &CSubObjectImpl::m_endOffset, seconds);
}

Status CQZEffect::getSource(string* out) const
{
    return Read(m_effectInfo, &CSourceFileImpl::m_fileName, out);
}

Status CQZEffect::setSource(string path)
{
    return Write(m_effectInfo, &CSourceFileImpl::m_fileName, std::move(path));
}

Status CQZEffect::getSourceRotation(long* out) const
{
    return Read(m_effectInfo, &CSourceFileImpl::m_rotation, out);
}

Status CQZEffect::setSourceRotation(long rotation)
{
    return Write(m_effectInfo, &CSourceFileImpl::m_rotation, rotation);
}

Status CQZEffect::getInPoint(double* out) const
{
    return Read(m_effectInfo, &CSourceFileImpl::m_inPoint, out);
}

Status CQZEffect::setInPoint(double seconds)
{
    return Write(m_effectInfo, &CSourceFileImpl::m_inPoint, seconds);
}

Status CQZEffect::getOutPoint(double* out) const
{
    return Read(m_effectInfo, &CSourceFileImpl::m_outPoint, out);
}

Status CQZEffect::setOutPoint(double seconds)
{
    return Write(m_effectInfo, &CSourceFileImpl::m_outPoint, seconds);
}

Status CQZEffect::GetSourceAspect(double* out) const
{
    return out && m_effectInfo ? status::kOk : status::kNullPointer;
}
