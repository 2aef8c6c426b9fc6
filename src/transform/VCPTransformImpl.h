#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"
#include "transform/VCPKeyframeData.h"

#include <span>
#include <utility>

/// @name Track masks
/// Each picks one track, and covers the capability bits of that track's axes.
/// @{
inline constexpr unsigned long TRANSFORM_TRANSLATION = 0xF;
inline constexpr unsigned long TRANSFORM_ROTATION = 0xF0;
inline constexpr unsigned long TRANSFORM_SCALING = 0xF00;
inline constexpr unsigned long TRANSFORM_OPACITY = 0x3000;
inline constexpr unsigned long TRANSFORM_HANDLES = 0x70000;
/// @}

namespace vantrel {

/// The capability bit of opacity keys. The bits of the other axes: `GetAdjustCaps`.
inline constexpr unsigned long kOpacityBit = 0x1000;
/// All track masks together.
inline constexpr unsigned long kAllTracks = TRANSFORM_TRANSLATION | TRANSFORM_ROTATION |
                                            TRANSFORM_SCALING | TRANSFORM_OPACITY |
                                            TRANSFORM_HANDLES;

} // namespace vantrel

/// Animates one on-screen object.
///
/// Owns five keyframe tracks and turns them, for a given time, into a world matrix and an opacity.
/// Times are seconds from the clip's start, angles degrees, opacities 0 to 255, lengths model units
/// with y growing upward. Handles offset the object before it is scaled, as fractions of half its
/// rectangle. Call `SetDuration` before any evaluation.
///
/// A `mask` is one of `TRANSFORM_...`; one that has no track for the operation gives
/// `status::kBadArgument` and changes nothing. The three-component operations have no track for
/// opacity. Each of `x`, `y` and `z` as outputs may be null.
class VANTREL_API CVCPTransformImpl
{
public:
    CVCPTransformImpl();

    /// @name Keys
    /// @{
    /// The track of one whole mask of three components; null for anything else.
    vantrel::VectorTrack* GetKeyframes(unsigned long mask);
    const vantrel::VectorTrack* GetKeyframes(unsigned long mask) const;

    /// Places a key, or replaces the key of exactly that `time`.
    vantrel::Status Set3DKeyframe(unsigned long mask, double time, KVC_KEYFRAME_TYPE type, float x,
                                  float y, float z, unsigned long caps);

    /// Reads the key of exactly that `time`; `caps` may be null. Without such a key `x`, `y` and `z`
    /// take the values of `GetDefaultValues`, and the status is `status::kNothingDone`; an empty map
    /// gives `status::kBadArgument`.
    vantrel::Status Get3DKeyframe(unsigned long mask, double time, KVC_KEYFRAME_TYPE type, float* x,
                                  float* y, float* z, unsigned long* caps) const;

    vantrel::Status Get3DKeyInterpolatedValue(unsigned long mask, double time, float* x, float* y,
                                              float* z) const;

    vantrel::Status SetOpacityKey(double time, KVC_KEYFRAME_TYPE type, unsigned long value,
                                  unsigned long caps);

    /// Reads the opacity key of exactly that `time`; `caps` may be null. Gives
    /// `status::kNothingDone` when no key has that time, and leaves both outputs alone.
    vantrel::Status GetOpacityKey(double time, KVC_KEYFRAME_TYPE type, unsigned long* value,
                                  unsigned long* caps) const;

    vantrel::Status GetOpacityInterpolatedValue(double time, unsigned long* value) const;

    /// As the operations of the track, which may be the opacity track too.
    vantrel::Status GetKeyCount(unsigned long mask, int* count) const;
    vantrel::Status GetKeyTimes(unsigned long mask, double* times, KVC_KEYFRAME_TYPE* types) const;
    vantrel::Status MoveKey(unsigned long mask, KVC_KEYFRAME_TYPE type, double from, double to);
    vantrel::Status DeleteKey(unsigned long mask, double time, KVC_KEYFRAME_TYPE type);

    /// Forgets the adjustments first, as `Reset3DKeyframesDelta` does with any mask, and ends a
    /// scroll when the translation goes.
    vantrel::Status DeleteAllKeys(unsigned long mask, KVC_KEYFRAME_TYPE type);

    /// The clip's length in seconds, for all tracks.
    vantrel::Status SetDuration(double seconds);
    /// @}

    /// @name Properties
    /// @{
    vantrel::Status GetIsSelectable(bool* out) const;
    vantrel::Status GetIsEditable(bool* out) const;
    vantrel::Status GetIsSelected(bool* out) const;
    vantrel::Status SetIsSelectable(bool value);
    vantrel::Status SetIsEditable(bool value);
    vantrel::Status SetIsSelected(bool value);

    /// The capability bits within `mask`.
    vantrel::Status GetCaps(unsigned long mask, unsigned long* out) const;
    /// The bits within `mask` take those of `value`.
    vantrel::Status SetCaps(unsigned long mask, unsigned long value);

    /// The capability bits of a track's axes; 0 for a mask without three components.
    void GetAdjustCaps(unsigned long mask, unsigned long* x, unsigned long* y,
                       unsigned long* z) const;

    /// The resting value of a track: 0 each, or 1 each for scaling and any other mask.
    void GetDefaultValues(unsigned long mask, float* x, float* y, float* z) const;

    /// The identifier of the path loaded into the keys of one type.
    vantrel::Status GetPathID(KVC_KEYFRAME_TYPE type, unsigned long* out) const;

    /// Shows the object turned by a quarter turn.
    vantrel::Status SetQuarterTurned(bool value);
    /// Leaves handles and translation out of the matrix.
    vantrel::Status SetPathSuspended(bool value);

    /// Width over height of the frame. This and the next two give `status::kBadArgument` for a value
    /// that is not above 0.
    vantrel::Status SetAspectRatio(float ratio);
    /// Frames per second, for a scroll.
    vantrel::Status SetFrameRate(double framesPerSecond);
    /// Pixels, for a scroll.
    vantrel::Status SetFrameSize(unsigned long width, unsigned long height);
    /// @}

    /// @name Rectangle
    /// @{
    /// The object's rectangle, -1, 1, 1, -1 by default.
    void SetBoundingRect(float left, float top, float right, float bottom);

    /// The corners left-top, left-bottom, right-bottom and right-top. Each may be null.
    vantrel::Status GetModelBoundingRect(D3DXVECTOR3* a, D3DXVECTOR3* b, D3DXVECTOR3* c,
                                         D3DXVECTOR3* d) const;

    /// The factors that bring a picture of `w` by `h` into a square.
    vantrel::Status GetAspectRatioScaling(float w, float h, float* x, float* y) const;
    /// @}

    /// @name Evaluation
    /// @{
    /// Evaluates all tracks at `time` and rebuilds the world matrix: a point is shifted by the
    /// handles, scaled, turned and translated. A track that has no value there counts as resting.
    /// The second argument has no effect.
    vantrel::Status FrameMove(double time, float);

    /// The 4 by 4 matrix of the last `FrameMove`; the identity before the first.
    vantrel::Status GetWorldMatrix(D3DXMATRIX* out) const;

    /// A track's value in the last `FrameMove`.
    vantrel::Status GetLast3DValue(unsigned long mask, float* x, float* y, float* z) const;
    vantrel::Status GetLastOpacityValue(unsigned long* out) const;

    /// The span of one map of a track, where a negative time counts as 0; 0 to 0 without keys.
    void GetTimeInterval(KVC_KEYFRAME_TYPE type, unsigned long mask,
                         std::pair<double, double>& out) const;

    /// The time at which the object's entrance is over.
    vantrel::Status GetHoldTime(double* out) const;

    /// Stretches a scroll so that it runs at its speed whatever the distance: moves the second start
    /// key of handles and translation.
    void ScaleScrollSpeedPath();
    /// @}

    /// @name Adjustment
    /// An adjustment shifts all keys of a track on the axes that each key's `caps` allow. What was
    /// asked for is summed up in the track's delta, which a path loaded later takes over.
    /// @{
    vantrel::Status Adjust3DKeyframes(unsigned long mask, float x, float y, float z);

    /// `delta` is signed in two's complement.
    vantrel::Status AdjustOpacityKeyframes(unsigned long delta);

    /// With `onlyType`, shifts the keys of `type` alone and leaves the delta as it is. A track without
    /// keys gets its resting value as a start key at 0.0 first.
    vantrel::Status Adjust3DKeyframesIntl(unsigned long mask, float x, float y, float z,
                                          bool onlyType, KVC_KEYFRAME_TYPE type);
    vantrel::Status AdjustOpacityKeyframesIntl(unsigned long delta, bool onlyType,
                                               KVC_KEYFRAME_TYPE type);

    /// Adds to the delta of a track; nothing for a mask without three components.
    void Adjust3DKeyframesDelta(unsigned long mask, float x, float y, float z);

    /// Zeroes the delta of each track that shares a bit with `mask`.
    void Reset3DKeyframesDelta(unsigned long mask);

    /// Shifts the keys of one map so that the last of them meets the value of `element`, on the axes
    /// that `element` and each key allow. An empty start map takes `element` as its key at 0.0.
    void AdjustPathValues(unsigned long mask, KVC_KEYFRAME_TYPE type,
                          const vantrel::VectorTrack::KEY_ELEM* element);
    /// @}

    /// @name File form
    /// The children of the element of a transform; there is no element around them.
    /// @{
    /// Adds the children. Of earlier ones only the tracks, "IsSelectable", "IsEditable" and "Caps"
    /// go; see `ReplaceXML`.
    vantrel::Status SaveXML(_xmlNode* node) const;

    /// Writes into an element that holds a transform already: takes all its children out first, so
    /// that nothing stale is read back.
    vantrel::Status ReplaceXML(_xmlNode* node) const;

    /// Adds the keys of `node` to those present, and takes the other values over.
    vantrel::Status LoadXML(_xmlNode* node);

    /// Replaces the keys of one type in all tracks by those of `path`, and applies the adjustments
    /// made so far to them, so that a track without any key gets its resting one. A null `path` only
    /// removes the keys and ends a scroll.
    vantrel::Status LoadPath(KVC_KEYFRAME_TYPE type, _xmlNode* path);
    /// @}

protected:
    bool m_isSelectable = true;
    bool m_isEditable = true;
    bool m_isSelected = false; ///< not persisted
    bool m_isQuarterTurned = false;
    unsigned long m_caps = 0x1333; ///< x, y of translation and scaling; z, x of rotation; opacity
    vantrel::VectorTrack m_scaling;
    vantrel::VectorTrack m_handles;
    vantrel::VectorTrack m_translation;
    vantrel::VectorTrack m_rotation;
    vantrel::ULongTrack m_opacity;
    unsigned long m_startPathID = 0;
    unsigned long m_endPathID = 0;
    unsigned long m_percentPathID = 0;
    double m_speed = 0.0;        ///< pixels per frame; above 0.0 the path is a scroll
    double m_frameRate = 30.0;   ///< used for the scroll alone, as is the frame size
    unsigned long m_width = 640; ///< pixels
    unsigned long m_height = 480;
    D3DXMATRIX m_world;
    float m_boundTop = 1.0F;
    float m_boundLeft = -1.0F;
    float m_boundBottom = -1.0F;
    float m_boundRight = 1.0F;
    float m_aspectRatio = 4.0F / 3.0F;
    bool m_hasOpacityKeys = false; ///< an opacity was evaluated
    unsigned long m_lastOpacity = 255;
    D3DXVECTOR3 m_lastHandles{ 0.0F, 0.0F, 0.0F };
    D3DXVECTOR3 m_lastScaling{ 1.0F, 1.0F, 1.0F };
    D3DXVECTOR3 m_lastRotation{ 0.0F, 0.0F, 0.0F };
    D3DXVECTOR3 m_lastTranslation{ 0.0F, 0.0F, 0.0F };
    bool m_pathSuspended = false;
    D3DXVECTOR3 m_handlesDelta; ///< this and the following: the sums of all adjustments so far
    D3DXVECTOR3 m_scalingDelta;
    D3DXVECTOR3 m_rotationDelta;
    D3DXVECTOR3 m_translationDelta;
    unsigned long m_opacityDelta; ///< signed in two's complement

private:
    struct VectorRow;
    static const VectorRow kVectorRows[4];
    static const VectorRow* FindRow(unsigned long mask);

    struct XmlRow;
    static std::span<const XmlRow> XmlRows();

    template <class Self, class Operation>
    static vantrel::Status WithTrack(Self& self, unsigned long mask, Operation operation);
    template <class Operation>
    void ForEachTrack(Operation operation);

    bool IsTurnedScroll() const;
    D3DXVECTOR3 HandlesInModelUnits() const;
    D3DXVECTOR3 RotationAt(double time) const;
    D3DXVECTOR3 TranslationAt(double time) const;
    D3DXVECTOR3 TranslationInModelUnits() const;
    void Append(const D3DXMATRIX* step);
    static unsigned long CVCPTransformImpl::*PathIDOf(KVC_KEYFRAME_TYPE type);
};
