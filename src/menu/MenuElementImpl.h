#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"
#include "transform/QZEffect.h"

#include <map>
#include <string>
#include <vector>

class CProjectNode;

namespace vantrel {
template <class Node>
class AttributeTable;
}

/// The geometry of what is visible on a menu, and the attributes that all elements share.
///
/// A button, text or overlay is one object of two parts: a `CProjectNode`, which has the place in the
/// tree, and a class of this family. An element stands in the list of a menu, or in that of a button
/// in a menu; then it is placed relative to the button.
///
/// Lengths are model units with y growing upward, angles degrees, counter-clockwise. An effect that
/// the element is attached to gives position, rotation and scaling in place of the fields, and takes
/// what is set. Every output that is null gives `status::kNullPointer`.
class VANTREL_API CMenuElementImpl
{
public:
    /// `node` is the other part of the same object.
    explicit CMenuElementImpl(CProjectNode* node);
    CMenuElementImpl(const CMenuElementImpl&) = delete;
    CMenuElementImpl& operator=(const CMenuElementImpl&) = delete;
    virtual ~CMenuElementImpl();

    /// The position, for an element with an effect inside a button relative to the button.
    virtual vantrel::Status getPosition(float* x, float* y) const;
    virtual vantrel::Status setPosition(float x, float y);

    /// The four corners on the menu, in the order of `getModelRect`; none for an element without a
    /// rectangle of its own. What the vector held is forgotten.
    virtual vantrel::Status getBoundingBox(std::vector<FPoint>* corners) const;

    /// The rectangle around the corners; the zero rectangle without corners.
    virtual vantrel::Status getExtent(FRect* out) const;

    /// The times, in seconds, that the effect starts after and ends before its surroundings. 1
    /// without an effect; a number that is not finite gives `status::kBadArgument`.
    virtual vantrel::Status setTimeOffsets(const double* start, const double* end);

    /// Takes over the attributes of the element part: with `ownGeometry` position, rotation and depth
    /// too.
    virtual vantrel::Status LoadElementAttributes(
        const std::map<std::string, std::string>& attributes, bool ownGeometry);
    /// Adds the attributes of the element part. A node of a type that is no element gives
    /// `status::kUnexpected` and adds nothing.
    virtual vantrel::Status SaveElementAttributes(std::map<std::string, std::string>& attributes,
                                                  bool ownGeometry) const;

    /// Adds the corners around the origin, before scaling. Left-top, left-bottom, right-bottom,
    /// right-top.
    virtual vantrel::Status getModelRect(std::vector<FPoint>& corners) const;
    virtual vantrel::Status getScalingXForm(FPoint* scale) const;

    /// @name Kind
    /// @{
    /// Bits named by `FormatButtonTag`, `FormatOverlayTag` or `FormatTextTag`.
    vantrel::Status getTag(unsigned long* out) const;
    /// `notify` has no effect.
    vantrel::Status setTag(unsigned long value, bool notify);
    vantrel::Status getFlags(unsigned long* out) const;
    vantrel::Status setFlags(unsigned long value);
    vantrel::Status getTemplateID(long* out) const;
    vantrel::Status setTemplateID(long value);
    /// Depth order. A negative value gives `status::kBadArgument`.
    vantrel::Status getZOrder(long* out) const;
    vantrel::Status setZOrder(long value);
    /// @}

    /// @name Place
    /// @{
    /// The position as the element or its effect holds it.
    vantrel::Status getRawPosition(float* x, float* y) const;
    vantrel::Status setRawPosition(float x, float y);
    vantrel::Status getRotation(float* degrees) const;
    vantrel::Status setRotation(float degrees);
    vantrel::Status getTimeOffsets(double* start, double* end) const;

    /// What the corners are moved by after they were turned, the position of the button around the
    /// element, and before, the element's own.
    vantrel::Status getTranslationXForms(FPoint* parentOffset, FPoint* ownOffset) const;
    /// @}

    /// @name Surroundings
    /// @{
    /// The menu that the element stands in, directly or inside a button; null for none.
    CProjectNode* getMenu() const;
    /// The element part of the button that the element stands in; null for none.
    CMenuElementImpl* getParentBtn() const;

    /// The handle on the element's effect, to attach it or take it away.
    CQZEffect& GetEffect() { return m_effect; }
    bool HasEffect() const { return m_effect.exists(); }
    /// @}

protected:
    /// The attributes of this part as rows of the table of `Node`, a class that derives from it:
    /// `menu/ElementRows.h`.
    template <class Node>
    struct ElementRows;

    CProjectNode* m_node; ///< the other part of the same object
    CQZEffect m_effect;

private:
    static vantrel::AttributeTable<CMenuElementImpl> Attributes(bool ownGeometry);
    FPoint EffectOrigin() const;
    void AppendTag(std::string& text) const;

    unsigned long m_tag = 0;
    unsigned long m_flags = 0;
    long m_templateID = 0;
    long m_zOrder = 0; ///< a file may bring what the setter refuses
    float m_x = 0.0F;
    float m_y = 0.0F;
    float m_rotation = 0.0F;
};

namespace vantrel {

/// The element part of a node; null for a node that is no element.
CMenuElementImpl* ElementOf(CProjectNode* node);

} // namespace vantrel
