#include "transform/VCPFinite.h"
#include "transform/VCPKeyframeData.h"
#include "xml/TypedElement.h"
#include "xml/TypedValue.h"
#include "xml/XMLHelpers.h"
#include "xml/XmlValue.h"

#include <iterator>
#include <utility>
#include <vector>

using namespace vantrel;

namespace {

/// The element of each map, in the order of `kKeyframeTypes`.
constexpr const char* kMapElements[] = { "StartOffsetElements", "EndOffsetElements",
                                         "PercentageElements" };
static_assert(std::size(kMapElements) == std::size(kKeyframeTypes));

using CropMembers = std::vector<std::pair<const char*, long>>;

/// What a track takes over from a "Crop" element, in the order of the file.
CropMembers ReadCrop(_xmlNode* crop)
{
    CropMembers members;
    for (const char* name : { "EditMode", "PresetID" }) {
        long value = 0;
        if (XMLHelpers<void>::LoadLongNode(crop, name, "", &value) == status::kOk)
            members.emplace_back(name, value);
    }
    return members;
}

template <class S, class Map>
void SaveMap(const Map& keys, const char* name, _xmlNode* track)
{
    if (keys.empty())
        return;
    xmlNode* list = AddElement(track, name);
    for (const auto& [time, key] : keys) {
        xmlNode* element = AddElement(list, "KeyFrame");
        AddValue<typed::Double>(element, "Time", time);
        AddValue<typed::ULong>(element, "Caps", key.caps);
        (void)S().Save(element, key.value);
    }
}

/// Gives the status of the last value read. A time that isn't finite reads as 0.
template <class S, class Map>
Status LoadMap(Map& keys, const char* name, _xmlNode* track)
{
    Status result = status::kOk;
    for (xmlNode* element : ChildElements(FindChildElement(track, name))) {
        if (!IsNamed(element, "KeyFrame"))
            continue;
        double time = 0.0;
        typename Map::mapped_type key{}; // without "Caps" no axis may be adjusted
        (void)XMLHelpers<void>::LoadDoubleNode(element, "Time", "", &time);
        result = S().Load(element, key.value);
        (void)XMLHelpers<void>::LoadULongNode(element, "Caps", "", &key.caps);
        // at the end in a file of ours; of two keys at one time the first stays
        keys.emplace_hint(keys.end(), FiniteOrZero(time), key);
    }
    return result;
}

} // namespace

template <class T, class S>
Status CVCPKeyframeData<T, S>::SaveXML(_xmlNode* parent) const
{
    if (!parent)
        return status::kBadArgument;
    const CropMembers crop = ReadCrop(FindChildElement(parent, "Crop")); // may be what goes next
    (void)XMLHelpers<void>::RemoveNode(parent, m_name);                  // there may be none yet
    if (!HasKeys())
        return status::kOk;
    _xmlNode* track = m_name.empty() ? parent : AddElement(parent, m_name.c_str());
    for (const auto& [name, value] : crop)
        AddValue<typed::Long>(track, name, value);
    for (std::size_t i = 0; i < std::size(kKeyframeTypes); ++i)
        SaveMap<S>(*GetMap(kKeyframeTypes[i]), kMapElements[i], track);
    return status::kOk;
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::LoadXML(_xmlNode* parent)
{
    if (!parent)
        return status::kNothingDone;
    _xmlNode* track = m_name.empty() ? parent : FindChildElement(parent, m_name);
    Status result = status::kOk;
    for (std::size_t i = 0; i < std::size(kKeyframeTypes); ++i)
        result = LoadMap<S>(*GetMap(kKeyframeTypes[i]), kMapElements[i], track);
    return result;
}

template Status CVCPKeyframeData<D3DXVECTOR3, CXmlSaveD3DXVECTOR3>::SaveXML(_xmlNode*) const;
template Status CVCPKeyframeData<D3DXVECTOR3, CXmlSaveD3DXVECTOR3>::LoadXML(_xmlNode*);
template Status CVCPKeyframeData<unsigned long, CXmlSaveDWORD>::SaveXML(_xmlNode*) const;
template Status CVCPKeyframeData<unsigned long, CXmlSaveDWORD>::LoadXML(_xmlNode*);

Status CXmlSaveD3DXVECTOR3::Save(_xmlNode* parent, D3DXVECTOR3 value) const
{
    return XMLHelpers<void>::SaveD3DVECTOR3Node(parent, "Vector", "", &value);
}

Status CXmlSaveD3DXVECTOR3::Load(_xmlNode* parent, D3DXVECTOR3& value) const
{
    const Status result = XMLHelpers<void>::LoadD3DVECTOR3Node(parent, "Vector", "", &value);
    value = FiniteOrZero(value);
    return result;
}

Status CXmlSaveDWORD::Save(_xmlNode* parent, unsigned long value) const
{
    return XMLHelpers<void>::SaveULongNode(parent, "Value", "", value);
}

Status CXmlSaveDWORD::Load(_xmlNode* parent, unsigned long& value) const
{
    return XMLHelpers<void>::LoadULongNode(parent, "Value", "", &value);
}
