#pragma once

#include "core/Types.h"
#include "project/ProjectNode.h"

/// The operations that buttons, texts and overlays have in common, in their order. Nothing of the
/// library derives from it; the concrete elements offer the same operations at the same places.
///
/// Here each does nothing and gives 0.
class VANTREL_API CDSMenuElement : public CProjectNode
{
public:
    CDSMenuElement() : CProjectNode(eNodeNone) {}

    virtual Status get_ID(long*) { return status::kOk; }
    virtual Status get_Tag(unsigned long*) { return status::kOk; }
    virtual Status put_Tag(unsigned long) { return status::kOk; }
    virtual Status get_Flags(unsigned long*) { return status::kOk; }
    virtual Status put_Flags(unsigned long) { return status::kOk; }
    virtual Status get_Rotation(float*) { return status::kOk; }
    virtual Status put_Rotation(float) { return status::kOk; }
    virtual Status get_ZOrder(long*) { return status::kOk; }
    virtual Status put_ZOrder(long) { return status::kOk; }
    virtual Status GetPosition(float*, float*) { return status::kOk; }
    virtual Status SetPosition(float, float) { return status::kOk; }
    virtual Status get_TemplateID(long*) { return status::kOk; }
    virtual Status put_TemplateID(long) { return status::kOk; }
    virtual Status GetBoundingBox(FloatPoint*) { return status::kOk; }
    virtual Status GetExtent(FloatRect*) { return status::kOk; }
    virtual Status GetHighlightRegion(FloatRect*) { return status::kOk; }
};
