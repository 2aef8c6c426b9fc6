#pragma once

#include "menu/MenuElementImpl.h"

/// The element part of a button: a group of the elements in its list, child 3 of its node.
///
/// One of them, the anchor, can lend the button its position: then the button is where that element
/// is, and moving the button moves its elements. Only an element with an effect can be the anchor,
/// and it counts once `EnableAnchorElement` has put it in force.
class VANTREL_API CMenuButtonImpl : public CMenuElementImpl
{
public:
    explicit CMenuButtonImpl(CProjectNode* node);
    ~CMenuButtonImpl() override;

    /// The raw position of the anchor in force, else the button's own.
    vantrel::Status getPosition(float* x, float* y) const override;
    /// With an anchor in force moves the elements that have effects, so that the anchor comes to
    /// (x, y); a way of at most 1e-7 on both axes moves nothing.
    vantrel::Status setPosition(float x, float y) override;

    /// The union of the elements' extents.
    vantrel::Status getExtent(FRect* out) const override;

    /// Hands the offsets on to the elements that have effects with others.
    vantrel::Status setTimeOffsets(const double* start, const double* end) override;

    vantrel::Status LoadElementAttributes(const std::map<std::string, std::string>& attributes,
                                          bool ownGeometry) override;
    vantrel::Status SaveElementAttributes(std::map<std::string, std::string>& attributes,
                                          bool ownGeometry) const override;

    /// True without an anchor, in force or not. Whether the menu is native is another question.
    bool isNative() const { return m_anchorID == 0; }

    /// Puts the anchor in force, choosing the first element with an effect when there is none; or
    /// ends that, and leaves the button where it appeared. Without such an element the button has no
    /// anchor afterwards.
    vantrel::Status EnableAnchorElement(bool enable);

    /// The node of the anchor in force, or null.
    CProjectNode* getAnchorElement() const;

protected:
    template <class Node>
    struct ButtonRows;

private:
    static vantrel::AttributeTable<CMenuButtonImpl> Attributes();
    CProjectNode* Elements() const;
    CProjectNode* ChosenAnchor() const;

    long m_anchorID = 0;          ///< an ID in the list; 0 means none
    bool m_anchorEnabled = false; ///< not in the file
};
