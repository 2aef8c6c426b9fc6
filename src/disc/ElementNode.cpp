#include "disc/ElementNode.h"

#include "core/Property.h"
#include "menu/MenuButtonImpl.h"
#include "menu/MenuOverlayImpl.h"
#include "menu/MenuTextImpl.h"

#include <algorithm>
#include <vector>

namespace vantrel {

template <class Part>
ElementNode<Part>::ElementNode(eNodeType type, const NodeForm& form)
    : FormedNode(type, form),
      Part(this)
{}

// clang-format off
template <class Part> Status ElementNode<Part>::get_ID(long* out) { return Give(out, GetID()); }
template <class Part> Status ElementNode<Part>::get_Tag(unsigned long* out) { return Part::getTag(out); }
template <class Part> Status ElementNode<Part>::put_Tag(unsigned long value) { return Part::setTag(value, false); }
template <class Part> Status ElementNode<Part>::get_Flags(unsigned long* out) { return Part::getFlags(out); }
template <class Part> Status ElementNode<Part>::put_Flags(unsigned long value) { return Part::setFlags(value); }
template <class Part> Status ElementNode<Part>::get_Rotation(float* out) { return Part::getRotation(out); }
template <class Part> Status ElementNode<Part>::put_Rotation(float value) { return Part::setRotation(value); }
template <class Part> Status ElementNode<Part>::get_ZOrder(long* out) { return Part::getZOrder(out); }
template <class Part> Status ElementNode<Part>::put_ZOrder(long value) { return Part::setZOrder(value); }
template <class Part> Status ElementNode<Part>::GetPosition(float* x, float* y) { return Part::getRawPosition(x, y); }
template <class Part> Status ElementNode<Part>::SetPosition(float x, float y) { return Part::setRawPosition(x, y); }
template <class Part> Status ElementNode<Part>::get_TemplateID(long* out) { return Part::getTemplateID(out); }
template <class Part> Status ElementNode<Part>::put_TemplateID(long value) { return Part::setTemplateID(value); }
template <class Part> Status ElementNode<Part>::GetExtent(FloatRect* out) { return Give(out, FloatRect()); }
// clang-format on

template <class Part>
Status ElementNode<Part>::GetBoundingBox(FloatPoint* out)
{
    constexpr int count = 4;
    return Guarded([&] {
        std::vector<FPoint> corners;
        (void)Part::getBoundingBox(&corners); // told by the corners
        if (corners.size() < count)
            return status::kOk;
        if (!out)
            return status::kNullPointer;
        std::transform(corners.begin(), corners.begin() + count, out, [](const FPoint& corner) {
            return FloatPoint{ corner.x, corner.y };
        });
        return status::kOk;
    });
}

template class ElementNode<CMenuButtonImpl>;
template class ElementNode<CMenuOverlayImpl>;
template class ElementNode<CMenuTextImpl>;

} // namespace vantrel
