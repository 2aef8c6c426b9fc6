#include "core/Matrix.h"
#include "core/Property.h"
#include "transform/VCPTransformImpl.h"

#include <algorithm>
#include <cmath>
#include <limits>

using vantrel::VectorTrack;
using namespace vantrel;

namespace {

constexpr float kRadians = 0.017453292F; // of one degree
constexpr D3DXVECTOR3 kZero{ 0.0F, 0.0F, 0.0F };
constexpr D3DXVECTOR3 kOne{ 1.0F, 1.0F, 1.0F };

D3DXVECTOR3 ValueAt(const VectorTrack& track, double time, const D3DXVECTOR3& rest)
{
    D3DXVECTOR3 value = rest;
    (void)track.GetInterpolatedValue(time, &value); // a track without a value rests
    return value;
}

} // namespace

Status CVCPTransformImpl::FrameMove(double time, float)
{
    D3DXMATRIX step;
    D3DXMatrixIdentity(&m_world);

    ScaleScrollSpeedPath();

    m_lastHandles = m_pathSuspended ? kZero : ValueAt(m_handles, time, kZero);
    const D3DXVECTOR3 h = HandlesInModelUnits();
    Append(D3DXMatrixTranslation(&step, h.x, h.y, h.z));

    m_lastScaling = ValueAt(m_scaling, time, kOne);
    const D3DXVECTOR3& s = m_lastScaling;
    if (m_scaling.HasKeys())
        Append(D3DXMatrixScaling(&step, s.x, s.y, s.z));

    m_lastRotation = RotationAt(time);
    const D3DXVECTOR3 r = m_lastRotation * kRadians;
    if (m_rotation.HasKeys() || m_isQuarterTurned)
        Append(D3DXMatrixRotationYawPitchRoll(&step, r.y, r.x, r.z));

    m_lastTranslation = TranslationAt(time);
    const D3DXVECTOR3 t = TranslationInModelUnits();
    if (m_translation.HasKeys() && !m_pathSuspended)
        Append(D3DXMatrixTranslation(&step, t.x, t.y, t.z));

    if (m_opacity.HasKeys()) {
        m_hasOpacityKeys = true;
        (void)m_opacity.GetInterpolatedValue(time, &m_lastOpacity); // else the last one stays
    }
    return status::kOk;
}

/// Steps go on the right: a point takes them in the order in which they are appended.
void CVCPTransformImpl::Append(const D3DXMATRIX* step)
{
    D3DXMatrixMultiply(&m_world, &m_world, step);
}

/// Handles are fractions of half the rectangle, counted from its centre.
D3DXVECTOR3 CVCPTransformImpl::HandlesInModelUnits() const
{
    const float width = m_boundRight - m_boundLeft;
    const float height = m_boundTop - m_boundBottom;
    const float centreX = m_boundLeft + width / 2.0F;
    const float centreY = m_boundBottom + height / 2.0F;
    D3DXVECTOR3 h = m_lastHandles;
    if (m_isQuarterTurned && m_speed == 0.0)
        std::swap(h.x, h.y);
    return { h.x / 2.0F * width - centreX, h.y / 2.0F * height - centreY, h.z };
}

/// Degrees; an object that is shown turned is turned back.
D3DXVECTOR3 CVCPTransformImpl::RotationAt(double time) const
{
    D3DXVECTOR3 r = ValueAt(m_rotation, time, kZero);
    if (m_isQuarterTurned)
        r.z -= 90.0F;
    return r;
}

bool CVCPTransformImpl::IsTurnedScroll() const
{
    return m_isQuarterTurned && m_speed > 0.0;
}

D3DXVECTOR3 CVCPTransformImpl::TranslationAt(double time) const
{
    if (m_pathSuspended)
        return kZero;
    const D3DXVECTOR3 t = ValueAt(m_translation, time, kZero);
    return IsTurnedScroll() ? D3DXVECTOR3(t.y, -t.x, t.z) : t;
}

/// Translations count in halves of each side of the frame, model units in halves of the longer one.
D3DXVECTOR3 CVCPTransformImpl::TranslationInModelUnits() const
{
    const D3DXVECTOR3& t = m_lastTranslation;
    return m_aspectRatio < 1.0F ? D3DXVECTOR3(t.x * m_aspectRatio, t.y, t.z)
                                : D3DXVECTOR3(t.x, t.y / m_aspectRatio, t.z);
}

void CVCPTransformImpl::ScaleScrollSpeedPath()
{
    const VectorTrack::Map& keys = *m_handles.GetMap(KVC_KEYFRAME_START_OFFSET);
    if (!(m_speed > 0.0) || keys.size() < 2)
        return;
    const auto first = keys.begin();
    const auto second = std::next(first);
    const D3DXVECTOR3& from = first->second.value;
    const D3DXVECTOR3& to = second->second.value;
    const bool horizontal = std::abs(from.x - to.x) > std::abs(from.y - to.y);
    const float span = horizontal ? m_boundRight - m_boundLeft : m_boundTop - m_boundBottom;
    const float pixels = static_cast<float>(horizontal ? m_width : m_height);
    const float distance = pixels + pixels * span / 2.0F;

    const double oldTime = second->first; // a copy: the key goes with the move
    const double newTime = distance / (m_speed * m_frameRate);
    (void)m_handles.MoveKey(KVC_KEYFRAME_START_OFFSET, oldTime, newTime);
    (void)m_translation.MoveKey(KVC_KEYFRAME_START_OFFSET, oldTime, newTime); // may lack that key
}

void CVCPTransformImpl::GetTimeInterval(KVC_KEYFRAME_TYPE type, unsigned long mask,
                                        std::pair<double, double>& out) const
{
    out = { 0.0, 0.0 };
    const VectorTrack* track = GetKeyframes(mask);
    const VectorTrack::Map* keys = track ? track->GetMap(type) : nullptr;
    if (keys && !keys->empty())
        out = { std::max(0.0, keys->begin()->first), std::max(0.0, keys->rbegin()->first) };
}

Status CVCPTransformImpl::GetHoldTime(double* out) const
{
    double first = std::numeric_limits<double>::max();
    double last = 0.0;
    std::pair<double, double> span;
    for (const unsigned long mask :
         { TRANSFORM_TRANSLATION, TRANSFORM_ROTATION, TRANSFORM_SCALING, TRANSFORM_HANDLES }) {
        GetTimeInterval(KVC_KEYFRAME_START_OFFSET, mask, span);
        first = std::min(first, span.first);
        last = std::max(last, span.second);
    }
    GetTimeInterval(KVC_KEYFRAME_END_OFFSET, TRANSFORM_TRANSLATION, span);
    const bool leaves = span.first > 0.0;
    return vantrel::Give(out, !leaves && m_speed != 0.0 ? first / 2.0 + last / 2.0 : last);
}
