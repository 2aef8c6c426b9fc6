#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>
#include <vector>

/// The clip that every benchmark of this folder evaluates, and the work around an evaluation.
namespace clip {

constexpr double kDuration = 40.0;      ///< seconds
constexpr double kFramesPerSecond = 25; ///< so 1000 frames

/// The times of all frames: one after another as in playback, or jumping about as in editing.
inline std::vector<double> FrameTimes(bool isPlayback)
{
    std::vector<double> times;
    for (int frame = 0; frame < kDuration * kFramesPerSecond; ++frame)
        times.push_back(frame / kFramesPerSecond);
    if (!isPlayback)
        std::shuffle(times.begin(), times.end(), std::mt19937(1));
    return times;
}

unsigned long AllocationCount(); ///< calls of `operator new` so far

/// Runs `evaluate` for one frame time after the other and counts what it allocates.
template <class Evaluate>
void RunFrames(benchmark::State& state, bool isPlayback, Evaluate evaluate)
{
    const std::vector<double> times = FrameTimes(isPlayback);
    std::size_t frame = 0;
    const unsigned long before = AllocationCount();
    for (auto _ : state) {
        evaluate(times[frame]);
        frame = frame + 1 == times.size() ? 0 : frame + 1;
    }
    const auto allocations = static_cast<double>(AllocationCount() - before);
    state.counters["allocations"] =
        benchmark::Counter(allocations, benchmark::Counter::kAvgIterations);
}

} // namespace clip
