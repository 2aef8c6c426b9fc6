#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"

#include <cstdint>
#include <map>
#include <string>

struct _xmlNode;

/// How the time of a key is to be read. The values are bits, so that a mask names several kinds.
enum KVC_KEYFRAME_TYPE : std::int32_t
{
    KVC_KEYFRAME_START_OFFSET = 1, ///< seconds from the clip's start
    KVC_KEYFRAME_END_OFFSET = 2,   ///< seconds back from the clip's end
    KVC_KEYFRAME_PERCENTAGE = 4    ///< fraction of the duration, 0.0 to 1.0
};

namespace vantrel {

/// The types one by one, in the order of the file.
inline constexpr KVC_KEYFRAME_TYPE kKeyframeTypes[] = { KVC_KEYFRAME_START_OFFSET,
                                                        KVC_KEYFRAME_END_OFFSET,
                                                        KVC_KEYFRAME_PERCENTAGE };
/// The mask of all types.
inline constexpr auto kAllKeyframes = static_cast<KVC_KEYFRAME_TYPE>(
    KVC_KEYFRAME_START_OFFSET | KVC_KEYFRAME_END_OFFSET | KVC_KEYFRAME_PERCENTAGE);

} // namespace vantrel

/// The values of one animated quantity over a clip of some duration.
///
/// A key lives in one of three maps, by the way its time is meant: when the clip's length changes,
/// start keys stay put, end keys follow the end, and percentage keys stretch. Times are seconds, or
/// fractions in the percentage map, and are compared exactly. `T` is the value type and `S` the
/// stateless class that writes and reads one value.
///
/// A `type` that names none of the three maps gives `status::kBadArgument`, and so does a key whose
/// time or value is not finite: it could be neither ordered nor blended.
template <class T, class S>
class VANTREL_API CVCPKeyframeData
{
public:
    struct KEY_ELEM
    {
        T value;            ///< the key's value
        unsigned long caps; ///< which axes of this key an adjustment may change
    };
    using Map = std::map<double, KEY_ELEM>;

    /// The track's element name in the file. Without one, the default, the track lies directly in
    /// the element it is given.
    void SetName(std::string name);

    /// The clip's length in seconds; no key moves. One that is not finite counts as 0.0.
    void SetDuration(double seconds);

    /// @name Keys
    /// @{
    /// Places a key; a key of exactly that time is replaced.
    vantrel::Status SetValue(double time, KVC_KEYFRAME_TYPE type, T value, unsigned long caps);

    /// Copies the key of exactly that time. `value` is required, `caps` may be null. An empty map
    /// gives `status::kBadArgument`, no key of that time `status::kNothingDone`.
    vantrel::Status GetValue(double time, KVC_KEYFRAME_TYPE type, T* value,
                             unsigned long* caps) const;

    /// Moves a key to another time, replacing one that stands there. Times closer than 0.001 count
    /// as the same. `status::kNothingDone` when there is no key at exactly `oldTime`.
    vantrel::Status MoveKey(KVC_KEYFRAME_TYPE type, double oldTime, double newTime);

    /// Removes the key of exactly that time; `status::kNothingDone` when there is none.
    vantrel::Status DeleteKey(double time, KVC_KEYFRAME_TYPE type);

    /// Clears each map whose bit is set.
    vantrel::Status DeleteAllKeys(KVC_KEYFRAME_TYPE mask);

    /// The number of keys in all three maps.
    vantrel::Status GetKeyCount(int* count) const;

    /// Fills both arrays, which have room for all keys: those of the start map, then of the
    /// percentage map, then of the end map, each in ascending order.
    vantrel::Status GetAllKeyTimes(double* times, KVC_KEYFRAME_TYPE* types) const;

    bool HasKeys() const;

    /// The map of one type; null for anything else, combinations included.
    Map* GetMap(KVC_KEYFRAME_TYPE type);
    const Map* GetMap(KVC_KEYFRAME_TYPE type) const;
    /// @}

    /// The value at a clip time: that of the first map whose keys enclose it, asked in the order
    /// start, end, percentage, and between the maps a straight blend of the nearest keys on either
    /// side. `value` is untouched on failure: `status::kFailure` without keys, and
    /// `status::kBadArgument` for a time that is no number.
    vantrel::Status GetInterpolatedValue(double time, T* value) const;

    /// @name File form
    /// @{
    /// Replaces the track's element under `parent`; a track without keys leaves none. An editing
    /// mode and a preset that a "Crop" child of `parent` holds are copied into the element.
    vantrel::Status SaveXML(_xmlNode* parent) const;

    /// Adds the keys of the track's element under `parent`. A key whose time is taken is not read.
    vantrel::Status LoadXML(_xmlNode* parent);
    /// @}

private:
    vantrel::Status InterpolateInMap(double time, T* value, const Map& keys) const;
    vantrel::Status InterpolateBetweenMaps(double time, T* value) const;
    double FractionAt(double time) const;

    Map m_startOffsetKeys;
    Map m_endOffsetKeys; ///< by ascending offset: the first key is the latest in clip time
    Map m_percentageKeys;
    double m_duration = 0.0; ///< seconds; not persisted
    std::string m_name;
};

/// Writes and reads a vector as the element "Vector".
class VANTREL_API CXmlSaveD3DXVECTOR3
{
public:
    vantrel::Status Save(_xmlNode* parent, D3DXVECTOR3 value) const;
    vantrel::Status Load(_xmlNode* parent, D3DXVECTOR3& value) const;
};

/// Writes and reads an `unsigned long` as the element "Value".
class VANTREL_API CXmlSaveDWORD
{
public:
    vantrel::Status Save(_xmlNode* parent, unsigned long value) const;
    vantrel::Status Load(_xmlNode* parent, unsigned long& value) const;
};

namespace vantrel {

using VectorTrack = CVCPKeyframeData<D3DXVECTOR3, CXmlSaveD3DXVECTOR3>;
using ULongTrack = CVCPKeyframeData<unsigned long, CXmlSaveDWORD>;

} // namespace vantrel

extern template class CVCPKeyframeData<D3DXVECTOR3, CXmlSaveD3DXVECTOR3>;
extern template class CVCPKeyframeData<unsigned long, CXmlSaveDWORD>;
