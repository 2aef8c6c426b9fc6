#include "transform/VCPTransformRows.h"

#include "transform/VCPFinite.h"

#include <algorithm>

using vantrel::VectorTrack;
using namespace vantrel;

namespace {

constexpr long kOpaque = 255;

/// `shift` on the axes that have their bit in `caps`, and 0 on the others.
template <class Row>
D3DXVECTOR3 OnAxes(const Row& row, unsigned long caps, const D3DXVECTOR3& shift)
{
    return { caps & row.x ? shift.x : 0.0F, caps & row.y ? shift.y : 0.0F,
             caps & row.z ? shift.z : 0.0F };
}

/// True when no key of `keys` leaves the finite numbers by `shift`.
template <class Row>
bool StaysFinite(const VectorTrack::Map& keys, const Row& row, const D3DXVECTOR3& shift)
{
    return std::all_of(keys.begin(), keys.end(), [&](const auto& key) {
        return IsFinite(key.second.value + OnAxes(row, key.second.caps, shift));
    });
}

} // namespace

Status CVCPTransformImpl::Adjust3DKeyframes(unsigned long mask, float x, float y, float z)
{
    return Adjust3DKeyframesIntl(mask, x, y, z, false, vantrel::kAllKeyframes);
}

Status CVCPTransformImpl::AdjustOpacityKeyframes(unsigned long delta)
{
    return AdjustOpacityKeyframesIntl(delta, false, vantrel::kAllKeyframes);
}

Status CVCPTransformImpl::Adjust3DKeyframesIntl(unsigned long mask, float x, float y, float z,
                                                bool onlyType, KVC_KEYFRAME_TYPE type)
{
    const VectorRow* row = FindRow(mask);
    if (!row || !vantrel::IsFinite(D3DXVECTOR3(x, y, z)))
        return status::kBadArgument;
    // a scroll that is shown turned moves across: what is asked for in x goes to y
    const bool crossed = mask == TRANSFORM_TRANSLATION && IsTurnedScroll();
    const D3DXVECTOR3 shift = crossed ? D3DXVECTOR3(-y, x, z) : D3DXVECTOR3(x, y, z);
    VectorTrack& track = this->*row->track;
    bool staysFinite =
        IsFinite(row->rest + shift) && IsFinite(this->*row->delta + D3DXVECTOR3(x, y, z));
    for (const KVC_KEYFRAME_TYPE each : vantrel::kKeyframeTypes)
        staysFinite = staysFinite && StaysFinite(*track.GetMap(each), *row, shift);
    if (!staysFinite)
        return status::kBadArgument;
    if (!track.HasKeys())
        (void)track.SetValue(0.0, KVC_KEYFRAME_START_OFFSET, row->rest, row->x | row->y | row->z);

    unsigned long accepted = 0;
    for (const KVC_KEYFRAME_TYPE each : vantrel::kKeyframeTypes) {
        if (onlyType && each != type)
            continue;
        for (auto& [time, key] : *track.GetMap(each)) {
            key.value += OnAxes(*row, key.caps, shift);
            if (mask == TRANSFORM_SCALING && (key.caps & row->x))
                key.value.x = std::max(key.value.x, 0.0F);
            accepted |= key.caps;
        }
    }
    if (!onlyType) {
        const D3DXVECTOR3 applied = OnAxes(*row, accepted, shift);
        if (crossed)
            Adjust3DKeyframesDelta(mask, applied.y, -applied.x, applied.z);
        else
            Adjust3DKeyframesDelta(mask, applied.x, applied.y, applied.z);
    }
    return status::kOk;
}

Status CVCPTransformImpl::AdjustOpacityKeyframesIntl(unsigned long delta, bool onlyType,
                                                     KVC_KEYFRAME_TYPE type)
{
    if (!onlyType)
        m_opacityDelta += delta;
    if (!m_opacity.HasKeys())
        (void)m_opacity.SetValue(0.0, KVC_KEYFRAME_START_OFFSET, kOpaque, vantrel::kOpacityBit);
    for (const KVC_KEYFRAME_TYPE each : vantrel::kKeyframeTypes) {
        if (onlyType && each != type)
            continue;
        for (auto& [time, key] : *m_opacity.GetMap(each)) {
            if (!(key.caps & vantrel::kOpacityBit))
                continue;
            const long sum = static_cast<long>(key.value + delta); // of signed numbers
            key.value = static_cast<unsigned long>(std::clamp(sum, 0L, kOpaque));
        }
    }
    return status::kOk;
}

void CVCPTransformImpl::Adjust3DKeyframesDelta(unsigned long mask, float x, float y, float z)
{
    if (const VectorRow* row = FindRow(mask))
        this->*row->delta += D3DXVECTOR3(x, y, z);
}

void CVCPTransformImpl::Reset3DKeyframesDelta(unsigned long mask)
{
    for (const VectorRow& row : kVectorRows) {
        if (mask & row.mask)
            this->*row.delta = D3DXVECTOR3(0.0F, 0.0F, 0.0F);
    }
    if (mask & TRANSFORM_OPACITY)
        m_opacityDelta = 0;
}

void CVCPTransformImpl::AdjustPathValues(unsigned long mask, KVC_KEYFRAME_TYPE type,
                                         const VectorTrack::KEY_ELEM* element)
{
    const VectorRow* row = FindRow(mask);
    VectorTrack::Map* keys = row ? (this->*row->track).GetMap(type) : nullptr;
    if (!keys || !element || !vantrel::IsFinite(element->value))
        return;
    if (keys->empty()) {
        if (type == KVC_KEYFRAME_START_OFFSET)
            keys->emplace(0.0, *element);
        return;
    }
    const D3DXVECTOR3 gap = element->value + keys->rbegin()->second.value * -1.0F;
    const D3DXVECTOR3 shift = OnAxes(*row, element->caps, gap);
    if (!StaysFinite(*keys, *row, shift))
        return;
    for (auto& [time, key] : *keys)
        key.value += OnAxes(*row, key.caps, shift);
}
