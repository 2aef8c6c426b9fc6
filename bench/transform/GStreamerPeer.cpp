#include "Clip.h"

#include <gst/controller/gstinterpolationcontrolsource.h>
#include <gst/gst.h>

#include <cmath>

namespace {

GstClockTime ClockTime(double seconds)
{
    return static_cast<GstClockTime>(seconds * GST_SECOND);
}

/// One number of an animation; a vector takes three of these.
void GStreamerValue(benchmark::State& state, bool isPlayback)
{
    gst_init(nullptr, nullptr);
    GstControlSource* source = gst_interpolation_control_source_new();
    g_object_set(source, "mode", GST_INTERPOLATION_MODE_LINEAR, nullptr);
    const int count = static_cast<int>(state.range(0));
    for (int key = 0; key < count; ++key)
        gst_timed_value_control_source_set(GST_TIMED_VALUE_CONTROL_SOURCE(source),
                                           ClockTime(key * clip::kDuration / count), std::sin(key));
    clip::RunFrames(state, isPlayback, [&](double time) {
        double value = 0;
        gst_control_source_get_value(source, ClockTime(time), &value);
        benchmark::DoNotOptimize(value);
    });
    gst_object_unref(source);
}
BENCHMARK_CAPTURE(GStreamerValue, playback, true)->Arg(8)->Arg(1000);
BENCHMARK_CAPTURE(GStreamerValue, jumping, false)->Arg(8)->Arg(1000);

} // namespace
