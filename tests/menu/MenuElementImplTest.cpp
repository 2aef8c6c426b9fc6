#include "disc/DSMenu.h"
#include "disc/DSMenuButton.h"
#include "disc/DSMenuOverlay.h"
#include "storyboard/EffectObject.h"
#include "support/MenuFixture.h"

#include <cmath>

using std::string;
using namespace vantrel;

namespace {

/// An element in the list of a menu, or in that of a button at (10, 20) on it.
class PlacedElement : public testing::Test
{
protected:
    PlacedElement()
    {
        menu.GetChild(8)->AddChild(&button, true);
        (void)button.SetPosition(10, 20);
        (void)overlay.SetSize(4, 2);
    }
    void PutOn(CProjectNode& owner)
    {
        owner.GetChild(&owner == &menu ? 8 : 3)->AddChild(&overlay, true);
    }

    CDSMenu menu;
    CDSMenuButton button;
    CDSMenuOverlay overlay;
};

} // namespace

TEST_F(PlacedElement, KnowsItsSurroundings)
{
    EXPECT_EQ(overlay.getMenu(), nullptr);
    EXPECT_EQ(overlay.getParentBtn(), nullptr);
    PutOn(menu);
    EXPECT_EQ(overlay.getMenu(), &menu);
    EXPECT_EQ(overlay.getParentBtn(), nullptr);
    PutOn(button);
    EXPECT_EQ(overlay.getMenu(), &menu);
    EXPECT_EQ(overlay.getParentBtn(), &button);
    menu.GetChild(8)->ReleaseChildren([](CProjectNode&) { return true; });
    EXPECT_EQ(overlay.getMenu(), nullptr);
    EXPECT_EQ(overlay.getParentBtn(), &button);
}

TEST_F(PlacedElement, IsTurnedAboutTheOriginBetweenItsOwnAndItsButtonsOffset)
{
    (void)overlay.SetPosition(1, 3);
    PutOn(menu);
    EXPECT_EQ(Corners(overlay), "-1 4, -1 2, 3 2, 3 4");
    (void)overlay.put_Rotation(90);
    EXPECT_EQ(Corners(overlay), "-4 -1, -2 -1, -2 3, -4 3");
    PutOn(button);
    EXPECT_EQ(Corners(overlay), "6 19, 8 19, 8 23, 6 23");
    EXPECT_EQ(ExtentOf(overlay), "6 23 8 19");
    EXPECT_EQ(ExtentOf(button), "6 23 8 19");

    std::vector<FPoint> stale(3);
    const CMenuElementImpl bare(&overlay); // without a rectangle of its own
    EXPECT_EQ(bare.getBoundingBox(&stale), status::kOk);
    EXPECT_TRUE(stale.empty());
    EXPECT_EQ(ExtentOf(bare), "0 0 0 0");
}

TEST_F(PlacedElement, IsWhereItsEffectPutsIt)
{
    const EffectAt effect(1, 2);
    PutOn(button);
    effect.PutOn(overlay);
    EXPECT_TRUE(overlay.HasEffect());
    EXPECT_EQ(PositionOf(overlay), "-9 -18"); // relative to the button
    float x = 0, y = 0;
    EXPECT_EQ(overlay.GetPosition(&x, &y), status::kOk);
    EXPECT_EQ(x, 1);
    EXPECT_EQ(static_cast<CMenuElementImpl&>(overlay).setPosition(3, 4), status::kOk);
    EXPECT_EQ(PositionOf(overlay), "3 4");
    EXPECT_EQ(effect.Position(), "13 24"); // the effect has moved
    EXPECT_EQ(ExtentOf(overlay), "11 25 15 23");
    EXPECT_EQ(button.EnableAnchorElement(true), status::kOk);
    EXPECT_EQ(static_cast<CMenuElementImpl&>(button).setPosition(0.3F, 0.2F), status::kOk);
    EXPECT_EQ(ExtentOf(overlay) + ", " + ExtentOf(button), // the box moves with the button once
              "-1.7 1.2 2.3 -0.8, -1.7 1.2 2.3 -0.8");
    EXPECT_EQ(button.EnableAnchorElement(false), status::kOk);
    (void)overlay.put_Rotation(30);
    EXPECT_EQ(overlay.get_Rotation(&x), status::kOk);
    EXPECT_EQ(x, 30);
    (void)overlay.GetEffect().Attach(nullptr);
    EXPECT_EQ(overlay.get_Rotation(&x), status::kOk); // the fields have followed
    EXPECT_EQ(x, 30);
}

TEST_F(PlacedElement, HasTheTimesOfItsEffect)
{
    double start = 7, end = 8;
    EXPECT_EQ(overlay.getTimeOffsets(&start, &end), status::kNothingDone);
    EXPECT_EQ(overlay.setTimeOffsets(&start, &end), status::kNothingDone);
    const EffectAt effect(0, 0);
    effect.PutOn(overlay);
    EXPECT_EQ(overlay.getTimeOffsets(nullptr, &end), status::kNullPointer);
    EXPECT_EQ(overlay.setTimeOffsets(&start, nullptr), status::kNullPointer);
}

TEST(ElementAttributes, AreNoneOfANodeThatIsNoElement)
{
    CDSMenu menu;
    std::map<string, string> attributes;
    EXPECT_EQ(CMenuElementImpl(&menu).SaveElementAttributes(attributes, true), status::kUnexpected);
    EXPECT_TRUE(attributes.empty());
}

TEST(ButtonAnchor, LendsTheButtonItsPosition)
{
    CDSMenuButton button;
    CDSMenuOverlay plain, first, second;
    for (CDSMenuOverlay* overlay : { &plain, &first, &second })
        button.GetChild(3)->AddChild(overlay, true);
    const EffectAt firstEffect(1, 2), secondEffect(5, 5);
    firstEffect.PutOn(first);
    secondEffect.PutOn(second);
    (void)button.setRawPosition(7, 7);

    EXPECT_EQ(button.EnableAnchorElement(true), status::kOk);
    EXPECT_EQ(button.getAnchorElement(), &first);
    EXPECT_EQ(PositionOf(button), "1 2");
    EXPECT_EQ(button.SetPosition(1 + 1e-8F, 2), status::kOk); // no way at all
    EXPECT_EQ(firstEffect.Position(), "1 2");
    EXPECT_EQ(button.SetPosition(2, 4), status::kOk);
    EXPECT_EQ(firstEffect.Position() + ", " + secondEffect.Position(), "2 4, 6 7");
    EXPECT_EQ(PositionOf(plain), "0 0"); // nothing moves what has no effect

    EXPECT_EQ(button.EnableAnchorElement(false), status::kOk);
    EXPECT_FALSE(button.isNative());
    EXPECT_EQ(button.getAnchorElement(), nullptr);
    EXPECT_EQ(PositionOf(button), "2 4"); // it stays where it appeared
    EXPECT_EQ(button.SetPosition(9, 9), status::kOk);
    EXPECT_EQ(firstEffect.Position(), "2 4");

    (void)button.EnableAnchorElement(true);
    (void)button.GetChild(3)->ReleaseChildren([&](CProjectNode& node) { return &node == &first; });
    EXPECT_EQ(PositionOf(button), "9 9"); // the anchor has gone
    EXPECT_EQ(button.SetPosition(3, 3), status::kOk);
    EXPECT_EQ(PositionOf(button), "3 3");
    EXPECT_EQ(secondEffect.Position(), "6 7");
    EXPECT_EQ(button.EnableAnchorElement(true), status::kOk); // and another is found
    EXPECT_EQ(button.getAnchorElement(), &second);
    (void)second.GetEffect().Attach(nullptr);
    EXPECT_EQ(button.EnableAnchorElement(true), status::kOk);
    EXPECT_TRUE(button.isNative());
}

TEST(ButtonAnchor, OfAFileWaitsUntilItIsPutInForce)
{
    CDSMenuButton button;
    EXPECT_EQ(ReadNode(button, "<Button anchor='42' x='1' y='2'/>"), status::kOk);
    EXPECT_FALSE(button.isNative());
    EXPECT_EQ(button.getAnchorElement(), nullptr);
    EXPECT_EQ(PositionOf(button), "1 2");
    EXPECT_EQ(button.EnableAnchorElement(true), status::kOk); // there is none
    EXPECT_TRUE(button.isNative());
}

TEST(ButtonTimes, GoToTheElementsWithEffects)
{
    CDSMenuButton button;
    CDSMenuOverlay plain, animated;
    button.GetChild(3)->AddChild(&plain, true);
    button.GetChild(3)->AddChild(&animated, true);
    const EffectAt effect(0, 0);
    effect.PutOn(animated);
    double start = 1, end = NAN;
    EXPECT_EQ(button.setTimeOffsets(&start, &end), status::kOk);
    EXPECT_EQ(button.setTimeOffsets(nullptr, &end), status::kNullPointer);
    end = 2;
    EXPECT_EQ(button.setTimeOffsets(&start, &end), status::kOk);
    start = end = 0;
    EXPECT_EQ(animated.getTimeOffsets(&start, &end), status::kOk);
    EXPECT_EQ(start + end, 3);
}
