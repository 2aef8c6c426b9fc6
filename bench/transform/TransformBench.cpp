#include "Clip.h"
#include "transform/VCPTransformImpl.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <cmath>

using vantrel::VectorTrack;

namespace {

D3DXVECTOR3 Wave(int key)
{
    const float phase = static_cast<float>(key);
    return { std::sin(phase), std::cos(phase), phase / 1000 };
}

/// Half of the keys counted from the start, a quarter each from the end and in fractions, such that
/// each lies in a stretch of the clip of its own.
template <class SetKey>
void SetKeys(int count, SetKey setKey)
{
    const int quarter = count / 4;
    for (int i = 0; i < 2 * quarter; ++i)
        setKey(i * clip::kDuration / 4 / quarter, KVC_KEYFRAME_START_OFFSET, i);
    for (int i = 0; i < quarter; ++i) {
        setKey(i * clip::kDuration / 8 / quarter, KVC_KEYFRAME_END_OFFSET, i);
        setKey(0.6 + 0.2 * i / quarter, KVC_KEYFRAME_PERCENTAGE, i);
    }
}

void SetVectorKeys(CVCPTransformImpl& transform, unsigned long mask, int count)
{
    SetKeys(count, [&](double time, KVC_KEYFRAME_TYPE type, int key) {
        const D3DXVECTOR3 v = Wave(key);
        transform.Set3DKeyframe(mask, time, type, v.x, v.y, v.z, mask);
    });
}

void FillTransform(CVCPTransformImpl& transform)
{
    transform.SetDuration(clip::kDuration);
    for (const unsigned long mask :
         { TRANSFORM_TRANSLATION, TRANSFORM_ROTATION, TRANSFORM_SCALING, TRANSFORM_HANDLES })
        SetVectorKeys(transform, mask, 8);
    SetKeys(8, [&](double time, KVC_KEYFRAME_TYPE type, int key) {
        transform.SetOpacityKey(time, type, static_cast<unsigned long>(key) * 30, 0x1000);
    });
}

void VectorTrackValue(benchmark::State& state, bool isPlayback)
{
    CVCPTransformImpl transform;
    transform.SetDuration(clip::kDuration);
    SetVectorKeys(transform, TRANSFORM_TRANSLATION, static_cast<int>(state.range(0)));
    const VectorTrack* track = transform.GetKeyframes(TRANSFORM_TRANSLATION);
    clip::RunFrames(state, isPlayback, [&](double time) {
        D3DXVECTOR3 value;
        benchmark::DoNotOptimize(track->GetInterpolatedValue(time, &value));
        benchmark::DoNotOptimize(value);
    });
}
BENCHMARK_CAPTURE(VectorTrackValue, playback, true)->Arg(8)->Arg(1000);
BENCHMARK_CAPTURE(VectorTrackValue, jumping, false)->Arg(8)->Arg(1000);

void FrameMove(benchmark::State& state, bool isPlayback)
{
    CVCPTransformImpl transform;
    FillTransform(transform);
    clip::RunFrames(state, isPlayback, [&](double time) {
        transform.FrameMove(time, 0);
        benchmark::ClobberMemory();
    });
}
BENCHMARK_CAPTURE(FrameMove, playback, true);
BENCHMARK_CAPTURE(FrameMove, jumping, false);

vantrel::XmlDocPtr EmptyDocument()
{
    vantrel::XmlDocPtr doc{ xmlNewDoc(vantrel::XmlChars("1.0")) };
    xmlDocSetRootElement(doc.get(), xmlNewNode(nullptr, vantrel::XmlChars("plugin_data")));
    return doc;
}

void Save(benchmark::State& state)
{
    CVCPTransformImpl transform;
    FillTransform(transform);
    for (auto _ : state) {
        const vantrel::XmlDocPtr doc = EmptyDocument();
        transform.SaveXML(xmlDocGetRootElement(doc.get()));
    }
}
BENCHMARK(Save)->Unit(benchmark::kMicrosecond);

void Load(benchmark::State& state)
{
    CVCPTransformImpl transform;
    FillTransform(transform);
    const vantrel::XmlDocPtr doc = EmptyDocument();
    transform.SaveXML(xmlDocGetRootElement(doc.get()));
    for (auto _ : state) {
        CVCPTransformImpl loaded;
        loaded.LoadXML(xmlDocGetRootElement(doc.get()));
        benchmark::DoNotOptimize(loaded);
    }
}
BENCHMARK(Load)->Unit(benchmark::kMicrosecond);

} // namespace
