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

    virtual vantrel::Status get_ID(long*) { return vantrel::status::kOk; }
    virtual vantrel::Status get_Tag(unsigned long*) { return vantrel::status::kOk; }
    virtual vantrel::Status put_Tag(unsigned long) { return vantrel::status::kOk; }
    virtual vantrel::Status get_Flags(unsigned long*) { return vantrel::status::kOk; }
    virtual vantrel::Status put_Flags(unsigned long) { return vantrel::status::kOk; }
    virtual vantrel::Status get_Rotation(float*) { return vantrel::status::kOk; }
    virtual vantrel::Status put_Rotation(float) { return vantrel::status::kOk; }
    virtual vantrel::Status get_ZOrder(long*) { return vantrel::status::kOk; }
    virtual vantrel::Status put_ZOrder(long) { return vantrel::status::kOk; }
    virtual vantrel::Status GetPosition(float*, float*) { return vantrel::status::kOk; }
    virtual vantrel::Status SetPosition(float, float) { return vantrel::status::kOk; }
    virtual vantrel::Status get_TemplateID(long*) { return vantrel::status::kOk; }
    virtual vantrel::Status put_TemplateID(long) { return vantrel::status::kOk; }
    virtual vantrel::Status GetBoundingBox(FloatPoint*) { return vantrel::status::kOk; }
    virtual vantrel::Status GetExtent(FloatRect*) { return vantrel::status::kOk; }
    virtual vantrel::Status GetHighlightRegion(FloatRect*) { return vantrel::status::kOk; }
};
