#include "transform/VCPKeyframeData.h"

#include "core/Property.h"
#include "transform/VCPFinite.h"

#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

using namespace vantrel;

namespace {

constexpr double kSameTime = 0.001; // seconds or fraction: closer times are one to `MoveKey`

template <class Map>
auto FindKey(Map& keys, double time)
{
    const auto key = keys.lower_bound(time);
    return key != keys.end() && key->first == time ? key : keys.end();
}

/// The whole number of an opacity, also for sums that an `unsigned long` can't hold.
unsigned long Truncate(double value)
{
    constexpr double limit = 18446744073709551616.0; // 2 to the 64th
    if (!(value > 0.0))
        return 0;
    return value < limit ? static_cast<unsigned long>(value)
                         : std::numeric_limits<unsigned long>::max();
}

unsigned long WeightedSum(unsigned long a, double f, unsigned long b, double g)
{
    return Truncate(static_cast<double>(a) * f + static_cast<double>(b) * g);
}

D3DXVECTOR3 WeightedSum(const D3DXVECTOR3& a, double f, const D3DXVECTOR3& b, double g)
{
    return a * static_cast<float>(f) + b * static_cast<float>(g);
}

/// The clip time and the value of a key; none as long as the time is negative.
template <class T>
struct Bound
{
    double time = -1.0;
    const T* value = nullptr;

    bool IsMissing() const { return !value || time < 0.0; }
};

template <class T>
T Blend(double time, const Bound<T>& lower, const Bound<T>& upper)
{
    double part = (time - lower.time) / (upper.time - lower.time);
    if (!std::isfinite(part))
        part = 1.0; // the span is longer than a `double`
    const double f = 1.0 - part;
    return WeightedSum(*lower.value, f, *upper.value, 1.0 - f);
}

} // namespace

template <class T, class S>
void CVCPKeyframeData<T, S>::SetName(std::string name)
{
    m_name = std::move(name);
}

template <class T, class S>
void CVCPKeyframeData<T, S>::SetDuration(double seconds)
{
    m_duration = vantrel::FiniteOrZero(seconds);
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::SetValue(double time, KVC_KEYFRAME_TYPE type, T value,
                                        unsigned long caps)
{
    Map* keys = GetMap(type);
    if (!keys || !std::isfinite(time) || !vantrel::IsFinite(value))
        return status::kBadArgument;
    keys->insert_or_assign(time, KEY_ELEM{ value, caps });
    return status::kOk;
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::GetValue(double time, KVC_KEYFRAME_TYPE type, T* value,
                                        unsigned long* caps) const
{
    if (!value)
        return status::kNullPointer;
    const Map* keys = GetMap(type);
    if (!keys || keys->empty())
        return status::kBadArgument;
    const auto key = FindKey(*keys, time);
    if (key == keys->end())
        return status::kNothingDone;
    *value = key->second.value;
    if (caps)
        *caps = key->second.caps;
    return status::kOk;
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::MoveKey(KVC_KEYFRAME_TYPE type, double oldTime, double newTime)
{
    Map* keys = GetMap(type);
    if (!keys || !std::isfinite(newTime))
        return status::kBadArgument;
    if (std::abs(oldTime - newTime) < kSameTime)
        return status::kOk;
    const auto key = FindKey(*keys, oldTime);
    if (key == keys->end())
        return status::kNothingDone;
    auto moved = keys->extract(key); // keeps its memory: a frame may move keys
    moved.key() = newTime;
    const auto placed = keys->insert(std::move(moved));
    if (!placed.inserted)
        placed.position->second = placed.node.mapped();
    return status::kOk;
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::DeleteKey(double time, KVC_KEYFRAME_TYPE type)
{
    Map* keys = GetMap(type);
    if (!keys)
        return status::kBadArgument;
    const auto key = FindKey(*keys, time);
    if (key == keys->end())
        return status::kNothingDone;
    keys->erase(key);
    return status::kOk;
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::DeleteAllKeys(KVC_KEYFRAME_TYPE mask)
{
    for (const KVC_KEYFRAME_TYPE type : vantrel::kKeyframeTypes) {
        if (mask & type)
            GetMap(type)->clear();
    }
    return status::kOk;
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::GetKeyCount(int* count) const
{
    return vantrel::Give(count, static_cast<int>(m_startOffsetKeys.size() + m_endOffsetKeys.size() +
                                                 m_percentageKeys.size()));
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::GetAllKeyTimes(double* times, KVC_KEYFRAME_TYPE* types) const
{
    if (!times || !types)
        return status::kNullPointer;
    for (const KVC_KEYFRAME_TYPE type :
         { KVC_KEYFRAME_START_OFFSET, KVC_KEYFRAME_PERCENTAGE, KVC_KEYFRAME_END_OFFSET }) {
        for (const auto& key : *GetMap(type)) {
            *times++ = key.first;
            *types++ = type;
        }
    }
    return status::kOk;
}

template <class T, class S>
bool CVCPKeyframeData<T, S>::HasKeys() const
{
    return !m_startOffsetKeys.empty() || !m_endOffsetKeys.empty() || !m_percentageKeys.empty();
}

template <class T, class S>
auto CVCPKeyframeData<T, S>::GetMap(KVC_KEYFRAME_TYPE type) const -> const Map*
{
    switch (type) {
    case KVC_KEYFRAME_START_OFFSET:
        return &m_startOffsetKeys;
    case KVC_KEYFRAME_END_OFFSET:
        return &m_endOffsetKeys;
    case KVC_KEYFRAME_PERCENTAGE:
        return &m_percentageKeys;
    default:
        return nullptr;
    }
}

template <class T, class S>
auto CVCPKeyframeData<T, S>::GetMap(KVC_KEYFRAME_TYPE type) -> Map*
{
    return const_cast<Map*>(std::as_const(*this).GetMap(type));
}

template <class T, class S>
Status CVCPKeyframeData<T, S>::GetInterpolatedValue(double time, T* value) const
{
    if (!value)
        return status::kNullPointer;
    if (std::isnan(time))
        return status::kBadArgument;
    if (InterpolateInMap(time, value, m_startOffsetKeys) == status::kOk ||
        InterpolateInMap(m_duration - time, value, m_endOffsetKeys) == status::kOk ||
        InterpolateInMap(FractionAt(time), value, m_percentageKeys) == status::kOk)
        return status::kOk;
    return InterpolateBetweenMaps(time, value);
}

/// The value at a time of the map's own kind; `status::kNothingDone` beyond the last key.
template <class T, class S>
Status CVCPKeyframeData<T, S>::InterpolateInMap(double time, T* value, const Map& keys) const
{
    const auto upper = keys.lower_bound(time);
    if (upper == keys.end())
        return status::kNothingDone;
    if (upper->first == time || upper == keys.begin()) { // the first key also holds before it
        *value = upper->second.value;
    } else {
        const auto lower = std::prev(upper);
        *value = Blend<T>(time, { lower->first, &lower->second.value },
                          { upper->first, &upper->second.value });
    }
    return status::kOk;
}

/// Where the percentage map is to be asked for a clip time. The clip time of a key is that key's
/// fraction exactly, although the division may round to either side of it.
template <class T, class S>
double CVCPKeyframeData<T, S>::FractionAt(double time) const
{
    if (!(m_duration > 0.0))
        return 0.0;
    const double fraction = time / m_duration;
    const auto upper = m_percentageKeys.lower_bound(fraction);
    if (upper != m_percentageKeys.end() && upper->first * m_duration == time)
        return upper->first;
    if (upper != m_percentageKeys.begin() && std::prev(upper)->first * m_duration == time)
        return std::prev(upper)->first;
    return fraction;
}

/// The value at a clip time that no map encloses: all start keys lie before it and all end keys
/// behind it. The bounds are clip times, and a negative one counts as none.
template <class T, class S>
Status CVCPKeyframeData<T, S>::InterpolateBetweenMaps(double time, T* value) const
{
    Bound<T> lower;
    Bound<T> upper;
    if (!m_startOffsetKeys.empty()) {
        const auto& last = *m_startOffsetKeys.rbegin();
        lower = { last.first, &last.second.value };
    }
    if (!m_endOffsetKeys.empty()) {
        const auto& last = *m_endOffsetKeys.rbegin();
        upper = { m_duration - last.first, &last.second.value };
    }
    if (!m_percentageKeys.empty()) {
        const auto& [firstFraction, firstKey] = *m_percentageKeys.begin();
        const auto& [lastFraction, lastKey] = *m_percentageKeys.rbegin();
        const Bound<T> first{ firstFraction * m_duration, &firstKey.value };
        const Bound<T> last{ lastFraction * m_duration, &lastKey.value };
        if (lower.IsMissing() && first.time > time)
            return vantrel::Give(value, *first.value);
        if (time > first.time && first.time > lower.time)
            lower = first;
        if (upper.IsMissing() && time > last.time)
            return vantrel::Give(value, *last.value);
        if (last.time > time && (upper.IsMissing() || upper.time > last.time))
            upper = last;
    }

    if (!lower.IsMissing() && !upper.IsMissing())
        return vantrel::Give(value, Blend(time, lower, upper));
    if (!lower.IsMissing())
        return vantrel::Give(value, *lower.value);
    if (!upper.IsMissing())
        return vantrel::Give(value, *upper.value);
    return status::kFailure;
}

template class CVCPKeyframeData<D3DXVECTOR3, CXmlSaveD3DXVECTOR3>;
template class CVCPKeyframeData<unsigned long, CXmlSaveDWORD>;
