#include "transform/VCPTransformImpl.h"

#include "core/Matrix.h"
#include "core/Property.h"
#include "transform/VCPTransformRows.h"

#include <algorithm>
#include <cmath>

using vantrel::Give;
using namespace vantrel;

namespace {

void Put(float* out, float value)
{
    if (out)
        *out = value;
}

void Put(const D3DXVECTOR3& value, float* x, float* y, float* z)
{
    Put(x, value.x);
    Put(y, value.y);
    Put(z, value.z);
}

void Put(D3DXVECTOR3* out, float x, float y)
{
    if (out)
        *out = D3DXVECTOR3(x, y, 0.0F);
}

} // namespace

// The tracks of three components. The Z bit of a rotation is the lowest of its bits.
// clang-format off
const CVCPTransformImpl::VectorRow CVCPTransformImpl::kVectorRows[4] = {
    { TRANSFORM_TRANSLATION, 0x1, 0x2, 0x4, { 0, 0, 0 }, &CVCPTransformImpl::m_translation,
      &CVCPTransformImpl::m_lastTranslation, &CVCPTransformImpl::m_translationDelta },
    { TRANSFORM_ROTATION, 0x20, 0x40, 0x10, { 0, 0, 0 }, &CVCPTransformImpl::m_rotation,
      &CVCPTransformImpl::m_lastRotation, &CVCPTransformImpl::m_rotationDelta },
    { TRANSFORM_SCALING, 0x100, 0x200, 0x400, { 1, 1, 1 }, &CVCPTransformImpl::m_scaling,
      &CVCPTransformImpl::m_lastScaling, &CVCPTransformImpl::m_scalingDelta },
    { TRANSFORM_HANDLES, 0x10000, 0x20000, 0x40000, { 0, 0, 0 }, &CVCPTransformImpl::m_handles,
      &CVCPTransformImpl::m_lastHandles, &CVCPTransformImpl::m_handlesDelta },
};
// clang-format on

const CVCPTransformImpl::VectorRow* CVCPTransformImpl::FindRow(unsigned long mask)
{
    const auto row = std::ranges::find(kVectorRows, mask, &VectorRow::mask);
    return row != std::end(kVectorRows) ? row : nullptr;
}

template <class Self, class Operation>
Status CVCPTransformImpl::WithTrack(Self& self, unsigned long mask, Operation operation)
{
    if (mask == TRANSFORM_OPACITY)
        return operation(self.m_opacity);
    auto* track = self.GetKeyframes(mask);
    return track ? operation(*track) : status::kBadArgument;
}

CVCPTransformImpl::CVCPTransformImpl()
{
    m_scaling.SetName("Scaling");
    m_handles.SetName("Handles");
    m_translation.SetName("Translation");
    m_rotation.SetName("Rotation");
    m_opacity.SetName("Opacity");
    D3DXMatrixIdentity(&m_world);
    Reset3DKeyframesDelta(vantrel::kAllTracks);
}

const vantrel::VectorTrack* CVCPTransformImpl::GetKeyframes(unsigned long mask) const
{
    const VectorRow* row = FindRow(mask);
    return row ? &(this->*row->track) : nullptr;
}

vantrel::VectorTrack* CVCPTransformImpl::GetKeyframes(unsigned long mask)
{
    return const_cast<vantrel::VectorTrack*>(std::as_const(*this).GetKeyframes(mask));
}

Status CVCPTransformImpl::Set3DKeyframe(unsigned long mask, double time, KVC_KEYFRAME_TYPE type,
                                        float x, float y, float z, unsigned long caps)
{
    vantrel::VectorTrack* track = GetKeyframes(mask);
    return track ? track->SetValue(time, type, { x, y, z }, caps) : status::kBadArgument;
}

Status CVCPTransformImpl::Get3DKeyframe(unsigned long mask, double time, KVC_KEYFRAME_TYPE type,
                                        float* x, float* y, float* z, unsigned long* caps) const
{
    const VectorRow* row = FindRow(mask);
    if (!row)
        return status::kBadArgument;
    D3DXVECTOR3 value = row->rest;
    const Status result = (this->*row->track).GetValue(time, type, &value, caps);
    if (!Failed(result))
        Put(value, x, y, z);
    return result;
}

Status CVCPTransformImpl::Get3DKeyInterpolatedValue(unsigned long mask, double time, float* x,
                                                    float* y, float* z) const
{
    const vantrel::VectorTrack* track = GetKeyframes(mask);
    if (!track)
        return status::kBadArgument;
    D3DXVECTOR3 value;
    const Status result = track->GetInterpolatedValue(time, &value);
    if (!Failed(result))
        Put(value, x, y, z);
    return result;
}

Status CVCPTransformImpl::SetOpacityKey(double time, KVC_KEYFRAME_TYPE type, unsigned long value,
                                        unsigned long caps)
{
    return m_opacity.SetValue(time, type, value, caps);
}

Status CVCPTransformImpl::GetOpacityKey(double time, KVC_KEYFRAME_TYPE type, unsigned long* value,
                                        unsigned long* caps) const
{
    return m_opacity.GetValue(time, type, value, caps);
}

Status CVCPTransformImpl::GetOpacityInterpolatedValue(double time, unsigned long* value) const
{
    return m_opacity.GetInterpolatedValue(time, value);
}

Status CVCPTransformImpl::GetKeyCount(unsigned long mask, int* count) const
{
    return WithTrack(*this, mask, [=](const auto& track) { return track.GetKeyCount(count); });
}

Status CVCPTransformImpl::GetKeyTimes(unsigned long mask, double* times,
                                      KVC_KEYFRAME_TYPE* types) const
{
    return WithTrack(*this, mask,
                     [=](const auto& track) { return track.GetAllKeyTimes(times, types); });
}

Status CVCPTransformImpl::MoveKey(unsigned long mask, KVC_KEYFRAME_TYPE type, double from,
                                  double to)
{
    return WithTrack(*this, mask, [=](auto& track) { return track.MoveKey(type, from, to); });
}

Status CVCPTransformImpl::DeleteKey(unsigned long mask, double time, KVC_KEYFRAME_TYPE type)
{
    return WithTrack(*this, mask, [=](auto& track) { return track.DeleteKey(time, type); });
}

Status CVCPTransformImpl::DeleteAllKeys(unsigned long mask, KVC_KEYFRAME_TYPE type)
{
    Reset3DKeyframesDelta(mask);
    if (mask == TRANSFORM_TRANSLATION)
        m_speed = 0.0;
    return WithTrack(*this, mask, [=](auto& track) { return track.DeleteAllKeys(type); });
}

Status CVCPTransformImpl::SetDuration(double seconds)
{
    ForEachTrack([=](auto& track) { track.SetDuration(seconds); });
    return status::kOk;
}

Status CVCPTransformImpl::GetIsSelectable(bool* out) const
{
    return Give(out, m_isSelectable);
}

Status CVCPTransformImpl::GetIsEditable(bool* out) const
{
    return Give(out, m_isEditable);
}

Status CVCPTransformImpl::GetIsSelected(bool* out) const
{
    return Give(out, m_isSelected);
}

Status CVCPTransformImpl::SetIsSelectable(bool value)
{
    m_isSelectable = value;
    return status::kOk;
}

Status CVCPTransformImpl::SetIsEditable(bool value)
{
    m_isEditable = value;
    return status::kOk;
}

Status CVCPTransformImpl::SetIsSelected(bool value)
{
    m_isSelected = value;
    return status::kOk;
}

Status CVCPTransformImpl::GetCaps(unsigned long mask, unsigned long* out) const
{
    return Give(out, m_caps & mask);
}

Status CVCPTransformImpl::SetCaps(unsigned long mask, unsigned long value)
{
    m_caps = (m_caps & ~mask) | (value & mask);
    return status::kOk;
}

void CVCPTransformImpl::GetAdjustCaps(unsigned long mask, unsigned long* x, unsigned long* y,
                                      unsigned long* z) const
{
    const VectorRow* row = FindRow(mask);
    (void)Give(x, row ? row->x : 0); // each output is optional
    (void)Give(y, row ? row->y : 0);
    (void)Give(z, row ? row->z : 0);
}

void CVCPTransformImpl::GetDefaultValues(unsigned long mask, float* x, float* y, float* z) const
{
    const VectorRow* row = FindRow(mask);
    Put(row ? row->rest : D3DXVECTOR3(1.0F, 1.0F, 1.0F), x, y, z);
}

unsigned long CVCPTransformImpl::*CVCPTransformImpl::PathIDOf(KVC_KEYFRAME_TYPE type)
{
    switch (type) {
    case KVC_KEYFRAME_START_OFFSET:
        return &CVCPTransformImpl::m_startPathID;
    case KVC_KEYFRAME_END_OFFSET:
        return &CVCPTransformImpl::m_endPathID;
    default:
        return &CVCPTransformImpl::m_percentPathID;
    }
}

Status CVCPTransformImpl::GetPathID(KVC_KEYFRAME_TYPE type, unsigned long* out) const
{
    return Give(out, this->*PathIDOf(type));
}

Status CVCPTransformImpl::SetQuarterTurned(bool value)
{
    m_isQuarterTurned = value;
    return status::kOk;
}

Status CVCPTransformImpl::SetPathSuspended(bool value)
{
    m_pathSuspended = value;
    return status::kOk;
}

Status CVCPTransformImpl::SetAspectRatio(float ratio)
{
    if (!(ratio > 0.0F) || !std::isfinite(ratio))
        return status::kBadArgument;
    m_aspectRatio = ratio;
    return status::kOk;
}

Status CVCPTransformImpl::SetFrameRate(double framesPerSecond)
{
    if (!(framesPerSecond > 0.0) || !std::isfinite(framesPerSecond))
        return status::kBadArgument;
    m_frameRate = framesPerSecond;
    return status::kOk;
}

Status CVCPTransformImpl::SetFrameSize(unsigned long width, unsigned long height)
{
    if (width == 0 || height == 0)
        return status::kBadArgument;
    m_width = width;
    m_height = height;
    return status::kOk;
}

void CVCPTransformImpl::SetBoundingRect(float left, float top, float right, float bottom)
{
    m_boundLeft = left;
    m_boundTop = top;
    m_boundRight = right;
    m_boundBottom = bottom;
}

Status CVCPTransformImpl::GetModelBoundingRect(D3DXVECTOR3* a, D3DXVECTOR3* b, D3DXVECTOR3* c,
                                               D3DXVECTOR3* d) const
{
    Put(a, m_boundLeft, m_boundTop);
    Put(b, m_boundLeft, m_boundBottom);
    Put(c, m_boundRight, m_boundBottom);
    Put(d, m_boundRight, m_boundTop);
    return status::kOk;
}

Status CVCPTransformImpl::GetAspectRatioScaling(float w, float h, float* x, float* y) const
{
    const float a = std::min(w, h);
    const float b = a / h;
    const float largest = std::max({ w, a, b });
    Put(x, a / largest);
    Put(y, b / largest);
    return status::kOk;
}

Status CVCPTransformImpl::GetWorldMatrix(D3DXMATRIX* out) const
{
    return Give(out, m_world);
}

Status CVCPTransformImpl::GetLast3DValue(unsigned long mask, float* x, float* y, float* z) const
{
    const VectorRow* row = FindRow(mask);
    if (!row)
        return status::kBadArgument;
    Put(this->*row->last, x, y, z);
    return status::kOk;
}

Status CVCPTransformImpl::GetLastOpacityValue(unsigned long* out) const
{
    return Give(out, m_lastOpacity);
}
