#pragma once

#include "core/Types.h"
#include "project/FormedNode.h"

namespace vantrel {

/// What the nodes of buttons, texts and overlays have in common: an object that is a node of the tree
/// and, as `Part`, a class of the `CMenuElementImpl` family.
///
/// The operations come in the order of those of `CDSMenuElement`. They work on the element part and
/// give its status; a null output gives `status::kNullPointer`.
template <class Part>
class VANTREL_API ElementNode : public FormedNode, public Part
{
public:
    ElementNode(eNodeType type, const NodeForm& form);

    virtual Status get_ID(long* out);
    virtual Status get_Tag(unsigned long* out);
    virtual Status put_Tag(unsigned long value);
    virtual Status get_Flags(unsigned long* out);
    virtual Status put_Flags(unsigned long value);
    virtual Status get_Rotation(float* out);
    virtual Status put_Rotation(float value);
    virtual Status get_ZOrder(long* out);
    virtual Status put_ZOrder(long value);

    /// The position as it stands in the element, model units.
    virtual Status GetPosition(float* x, float* y);
    virtual Status SetPosition(float x, float y);

    virtual Status get_TemplateID(long* out);
    virtual Status put_TemplateID(long value);

    /// Copies the four corners on the menu to `out`, an array of four; 0, with `out` untouched, when
    /// there are none.
    virtual Status GetBoundingBox(FloatPoint* out);

    /// The zero rectangle.
    virtual Status GetExtent(FloatRect* out);
};

} // namespace vantrel
