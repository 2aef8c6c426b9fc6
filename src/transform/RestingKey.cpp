#include "transform/RestingKey.h"

#include "transform/VCPTransformImpl.h"

using namespace vantrel;

Status vantrel::GetKeyOrRest(const CVCPTransformImpl& transform, unsigned long mask, double time,
                             KVC_KEYFRAME_TYPE type, float* x, float* y, float* z,
                             unsigned long* caps)
{
    const Status result = transform.Get3DKeyframe(mask, time, type, x, y, z, caps);
    if (!Failed(result))
        return status::kOk;
    if (mask != TRANSFORM_TRANSLATION && mask != TRANSFORM_ROTATION && mask != TRANSFORM_SCALING)
        return result;
    transform.GetDefaultValues(mask, x, y, z);
    return status::kOk;
}
