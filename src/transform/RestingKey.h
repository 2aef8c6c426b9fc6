#pragma once

#include "core/Status.h"
#include "transform/VCPKeyframeData.h"

class CVCPTransformImpl;

namespace vantrel {

/// Reads the key of exactly that `time`. Where a track of translation, rotation or scaling has none,
/// the outputs take its resting value; any other mask gives the track's failure, with the outputs
/// untouched. Every output may be null.
Status GetKeyOrRest(const CVCPTransformImpl& transform, unsigned long mask, double time,
                    KVC_KEYFRAME_TYPE type, float* x, float* y, float* z, unsigned long* caps);

} // namespace vantrel
