#include "Clip.h"

#include <framework/mlt.h>

#include <cmath>

namespace {

constexpr int kLength = static_cast<int>(clip::kDuration * clip::kFramesPerSecond);

int Frame(double seconds)
{
    return static_cast<int>(std::lround(seconds * clip::kFramesPerSecond));
}

/// Properties with an animation "value" of 8 or 1000 keys.
class Animated
{
public:
    explicit Animated(std::int64_t count) : m_properties(mlt_properties_new())
    {
        for (int key = 0; key < count; ++key) {
            const double value = std::sin(key);
            const mlt_rect rect{ value, value, value, value, 1 };
            const int frame = static_cast<int>(key * kLength / count);
            mlt_properties_anim_set_double(m_properties, "value", value, frame, kLength,
                                           mlt_keyframe_linear);
            mlt_properties_anim_set_rect(m_properties, "rect", rect, frame, kLength,
                                         mlt_keyframe_linear);
        }
    }
    Animated(const Animated&) = delete;
    Animated& operator=(const Animated&) = delete;
    ~Animated() { mlt_properties_close(m_properties); }

    mlt_properties get() const { return m_properties; }

private:
    mlt_properties m_properties;
};

void MltValue(benchmark::State& state, bool isPlayback)
{
    const Animated animated(state.range(0));
    clip::RunFrames(state, isPlayback, [&](double time) {
        benchmark::DoNotOptimize(
            mlt_properties_anim_get_double(animated.get(), "value", Frame(time), kLength));
    });
}
BENCHMARK_CAPTURE(MltValue, playback, true)->Arg(8)->Arg(1000);

void MltRect(benchmark::State& state, bool isPlayback)
{
    const Animated animated(state.range(0));
    clip::RunFrames(state, isPlayback, [&](double time) {
        benchmark::DoNotOptimize(
            mlt_properties_anim_get_rect(animated.get(), "rect", Frame(time), kLength));
    });
}
BENCHMARK_CAPTURE(MltRect, playback, true)->Arg(8)->Arg(1000);

} // namespace
