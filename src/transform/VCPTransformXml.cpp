#include "transform/VCPFinite.h"
#include "transform/VCPTransformRows.h"
#include "xml/TypedElement.h"
#include "xml/TypedValue.h"
#include "xml/XMLHelpers.h"

using namespace vantrel;
using Xml = XMLHelpers<void>;

namespace {

enum class Writing
{
    kAlways,
    kIfPositive,
    kInPlaceOfTheOld
};

} // namespace

/// One child of the element of a transform: the same row writes and reads it.
struct CVCPTransformImpl::XmlRow
{
    const char* name;
    void (*save)(const CVCPTransformImpl& transform, _xmlNode* node, const char* name);
    void (*load)(CVCPTransformImpl& transform, _xmlNode* node, const char* name);

    /// A track knows its own name, and writes nothing when it has no keys.
    template <auto Field>
    static constexpr XmlRow Track(const char* name)
    {
        return { name,
                 [](const CVCPTransformImpl& transform, _xmlNode* node, const char*) {
                     (void)(transform.*Field).SaveXML(node);
                 },
                 [](CVCPTransformImpl& transform, _xmlNode* node, const char*) {
                     (void)(transform.*Field).LoadXML(node);
                 } };
    }

    template <class Kind, auto Field, Writing How = Writing::kAlways>
    static constexpr XmlRow Scalar(const char* name)
    {
        return { name,
                 [](const CVCPTransformImpl& transform, _xmlNode* node, const char* element) {
                     if constexpr (How == Writing::kInPlaceOfTheOld)
                         (void)Xml::RemoveNode(node, element); // there may be none
                     if (How != Writing::kIfPositive || transform.*Field > 0)
                         AddValue<Kind>(node, element, transform.*Field);
                 },
                 [](CVCPTransformImpl& transform, _xmlNode* node, const char* element) {
                     if (const xmlNode* found = FindTypedElement(node, element, ""))
                         (void)Kind::Read(ElementText(found), transform.*Field);
                 } };
    }

    template <auto Field>
    static constexpr XmlRow Vector(const char* name)
    {
        return { name,
                 [](const CVCPTransformImpl& transform, _xmlNode* node, const char* element) {
                     D3DXVECTOR3 value = transform.*Field;
                     (void)Xml::SaveD3DVECTOR3Node(node, element, "", &value);
                 },
                 [](CVCPTransformImpl& transform, _xmlNode* node, const char* element) {
                     D3DXVECTOR3& value = transform.*Field;
                     (void)Xml::LoadD3DVECTOR3Node(node, element, "", &value);
                     value = FiniteOrZero(value);
                 } };
    }
};

// The children in the order of the file, the five tracks first.
auto CVCPTransformImpl::XmlRows() -> std::span<const XmlRow>
{
    using Row = XmlRow;
    using This = CVCPTransformImpl;
    using enum Writing;
    using typed::Bool, typed::Double, typed::ULong;
    static constexpr XmlRow rows[] = {
        Row::Track<&This::m_handles>("Handles"),
        Row::Track<&This::m_translation>("Translation"),
        Row::Track<&This::m_rotation>("Rotation"),
        Row::Track<&This::m_scaling>("Scaling"),
        Row::Track<&This::m_opacity>("Opacity"),
        Row::Scalar<ULong, &This::m_startPathID, kIfPositive>("StartPathID"),
        Row::Scalar<ULong, &This::m_endPathID, kIfPositive>("EndPathID"),
        Row::Scalar<ULong, &This::m_percentPathID, kIfPositive>("PercentPathID"),
        Row::Scalar<Double, &This::m_speed, kIfPositive>("Speed"),
        Row::Scalar<Bool, &This::m_isSelectable, kInPlaceOfTheOld>("IsSelectable"),
        Row::Scalar<Bool, &This::m_isEditable, kInPlaceOfTheOld>("IsEditable"),
        Row::Scalar<ULong, &This::m_caps, kInPlaceOfTheOld>("Caps"),
        Row::Vector<&This::m_handlesDelta>("HandlesDelta"),
        Row::Vector<&This::m_translationDelta>("TranslationDelta"),
        Row::Vector<&This::m_rotationDelta>("RotationDelta"),
        Row::Vector<&This::m_scalingDelta>("ScalingDelta"),
        Row::Scalar<ULong, &This::m_opacityDelta>("OpacityDelta"),
    };
    return rows;
}

Status CVCPTransformImpl::SaveXML(_xmlNode* node) const
{
    for (const XmlRow& row : XmlRows())
        row.save(*this, node, row.name);
    return status::kOk;
}

Status CVCPTransformImpl::ReplaceXML(_xmlNode* node) const
{
    for (const XmlRow& row : XmlRows())
        (void)Xml::RemoveNode(node, row.name); // most are there, none has to be
    return SaveXML(node);
}

Status CVCPTransformImpl::LoadXML(_xmlNode* node)
{
    Reset3DKeyframesDelta(kAllTracks);
    m_startPathID = m_endPathID = m_percentPathID = 0;
    m_speed = 0.0;
    for (const XmlRow& row : XmlRows())
        row.load(*this, node, row.name);
    m_speed = FiniteOrZero(m_speed);
    return status::kOk;
}

Status CVCPTransformImpl::LoadPath(KVC_KEYFRAME_TYPE type, _xmlNode* path)
{
    unsigned long& pathID = this->*PathIDOf(type);
    pathID = 0;
    m_speed = 0.0;
    ForEachTrack([=](auto& track) { (void)track.DeleteAllKeys(type); });
    if (!path)
        return status::kOk;

    ForEachTrack([=](auto& track) { (void)track.LoadXML(path); });
    (void)Xml::LoadULongNode(path, "PathID", "", &pathID); // a path may lack either
    (void)Xml::LoadDoubleNode(path, "Speed", "", &m_speed);
    m_speed = FiniteOrZero(m_speed);
    for (const VectorRow& row : kVectorRows) {
        const D3DXVECTOR3 delta = this->*row.delta;
        (void)Adjust3DKeyframesIntl(row.mask, delta.x, delta.y, delta.z, true, type);
    }
    (void)AdjustOpacityKeyframesIntl(m_opacityDelta, true, type);
    return status::kOk;
}
