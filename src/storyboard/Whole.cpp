#include "storyboard/Whole.h"

#include "storyboard/AudioInfo.h"
#include "storyboard/BaseObject.h"
#include "storyboard/EffectInfo.h"
#include "xml/PersistObject.h"

namespace vantrel {

namespace {

template <class Part>
void Release(Part* part)
{
    if (part->m_whole)
        delete part->m_whole;
    else
        delete part;
}

} // namespace

void ReleaseWhole::operator()(CBaseObjectImpl* part) const
{
    Release(part);
}

void ReleaseWhole::operator()(CEffectInfoImpl* part) const
{
    Release(part);
}

void ReleaseWhole::operator()(CAudioInfoImpl* part) const
{
    Release(part);
}

} // namespace vantrel
