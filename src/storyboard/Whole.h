#pragma once

#include "core/Export.h"

#include <memory>

class CAudioInfoImpl;
class CBaseObjectImpl;
class CEffectInfoImpl;

namespace vantrel {

/// Releases the complete object that a data class is a part of. Containers hold complete objects by
/// that part, which has no virtual operations.
struct VANTREL_API ReleaseWhole
{
    void operator()(CBaseObjectImpl* part) const;
    void operator()(CEffectInfoImpl* part) const;
    void operator()(CAudioInfoImpl* part) const;
};

/// Owns a complete object by its part.
template <class Part>
using WholePtr = std::unique_ptr<Part, ReleaseWhole>;

} // namespace vantrel
