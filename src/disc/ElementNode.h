#pragma once

#include "core/Property.h"
#include "core/Types.h"
#include "project/ProjectNode.h"

#include <algorithm>
#include <vector>

namespace vantrel {

/// What the nodes of buttons, texts and overlays have in common: an object that is a node of the tree
/// and, as `Part`, a class of the `CMenuElementImpl` family.
///
/// The operations come in the order of those of `CDSMenuElement`. They work on the element part and
/// give its status; a null output gives `status::kNullPointer`.
template <class Part>
class VANTREL_API ElementNode : public CProjectNode, public Part
{
public:
    ElementNode(eNodeType type, const NodeForm& form) : CProjectNode(type, form), Part(this) {}

    virtual Status get_ID(long* out) { return Give(out, GetID()); }
    virtual Status get_Tag(unsigned long* out) { return Part::getTag(out); }
    virtual Status put_Tag(unsigned long value) { return Part::setTag(value, false); }
    virtual Status get_Flags(unsigned long* out) { return Part::getFlags(out); }
    virtual Status put_Flags(unsigned long value) { return Part::setFlags(value); }
    virtual Status get_Rotation(float* out) { return Part::getRotation(out); }
    virtual Status put_Rotation(float value) { return Part::setRotation(value); }
    virtual Status get_ZOrder(long* out) { return Part::getZOrder(out); }
    virtual Status put_ZOrder(long value) { return Part::setZOrder(value); }

    /// The position as it stands in the element, model units.
    virtual Status GetPosition(float* x, float* y) { return Part::getRawPosition(x, y); }
    virtual Status SetPosition(float x, float y) { return Part::setRawPosition(x, y); }

    virtual Status get_TemplateID(long* out) { return Part::getTemplateID(out); }
    virtual Status put_TemplateID(long value) { return Part::setTemplateID(value); }

    /// Copies the four corners on the menu to `out`, an array of four; 0, with `out` untouched, when
    /// there are none.
    virtual Status GetBoundingBox(FloatPoint* out)
    {
        std::vector<FPoint> corners;
        (void)Part::getBoundingBox(&corners); // told by the corners
        if (corners.size() < kCorners)
            return status::kOk;
        if (!out)
            return status::kNullPointer;
        std::transform(corners.begin(), corners.begin() + kCorners, out, [](const FPoint& corner) {
            return FloatPoint{ corner.x, corner.y };
        });
        return status::kOk;
    }

    /// The zero rectangle.
    virtual Status GetExtent(FloatRect* out) { return Give(out, FloatRect()); }

private:
    static constexpr int kCorners = 4;
};

} // namespace vantrel
