#include "disc/DSMenuButton.h"

#include "disc/DSMenu.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "support/MenuFixture.h"

using std::string;
using namespace vantrel;

namespace {

string RectText(const FloatRect& rect)
{
    string text;
    for (const float side : { rect.left, rect.top, rect.right, rect.bottom })
        text += (text.empty() ? "" : " ") + NumberText(static_cast<double>(side));
    return text;
}

} // namespace

TEST(Button, HasItsGeometryInTheFileOnANativeMenuOnly)
{
    const char* element = "<Button x='0.5' y='0.25' rotation='30' zOrder='-2' anchor='4'/>";
    CDSMenu ordinary, native;
    EXPECT_EQ(ReadNode(native, "<Menu native='1'/>"), status::kOk);
    CDSMenuButton inOrdinary, inNative, alone, inButton;
    ordinary.GetChild(8)->AddChild(&inOrdinary, true);
    native.GetChild(8)->AddChild(&inNative, true);
    inOrdinary.GetChild(3)->AddChild(&inButton, true); // an odd place counts as none
    const struct
    {
        CDSMenuButton& button;
        bool hasGeometry;
    } cases[] = { { inOrdinary, false }, { inNative, true }, { alone, true }, { inButton, true } };
    for (const auto& c : cases) {
        EXPECT_EQ(c.button.IsNative(), c.hasGeometry);
        EXPECT_EQ(ReadNode(c.button, element), status::kOk);
        float x = 0, y = 0;
        EXPECT_EQ(c.button.GetPosition(&x, &y), status::kOk);
        EXPECT_EQ(x, c.hasGeometry ? 0.5F : 0.0F);
        for (const string& text : { WrittenNode(c.button), MappedNode(c.button) })
            EXPECT_EQ(text.find(R"x(rotation="30")x") != string::npos, c.hasGeometry);
        EXPECT_NE(WrittenNode(c.button, "N", 1).find(R"x(zOrder=)x"), string::npos); // asked for
    }
}

TEST(Button, ReachesItsLinksAndItsActiveRegion)
{
    CDSMenuButton button;
    ButtonLinks links{ 1, 2, 3, 4 };
    ButtonLinks* held = nullptr;
    EXPECT_EQ(button.put_ButtonLinks(&links), status::kOk);
    EXPECT_EQ(button.get_ButtonLinks(&held), status::kOk);
    held->upper = 9;
    ButtonLinks got;
    EXPECT_EQ(static_cast<CButtonLinksNode*>(button.GetChild(0))->GetButtonLinks(&got),
              status::kOk);
    EXPECT_EQ(got.upper, 9); // the node's own
    EXPECT_EQ(got.lower, 4);

    FloatRect region{ 1, 2, 3, 4 };
    bool valid = false;
    EXPECT_EQ(button.put_ActiveRegion(&region, true), status::kOk);
    EXPECT_EQ(WrittenNode(*button.GetChild(1)),
              R"x(<N bottom="4" left="1" right="3" top="2" valid="1"/>)x");

    for (const Status status :
         { button.put_ButtonLinks(nullptr), button.get_ButtonLinks(nullptr),
           button.put_ActiveRegion(nullptr, true), button.get_ActiveRegion(nullptr, &valid),
           button.get_ActiveRegion(&region, nullptr), button.get_Tag(nullptr),
           button.get_Rotation(nullptr), button.GetPosition(nullptr, nullptr) })
        EXPECT_EQ(status, status::kNullPointer);
    EXPECT_EQ(button.GetBoundingBox(nullptr), status::kNoBoundingBox);
    EXPECT_EQ(button.GetAnchorElement(nullptr), status::kOk);
    EXPECT_EQ(button.put_ZOrder(-1), status::kBadArgument);

    (void)button.GetChild(3)->GetParent()->ReleaseChildren([](CProjectNode&) { return true; });
    EXPECT_EQ(button.put_ButtonLinks(&links), status::kNullPointer); // the nodes have gone
    EXPECT_EQ(button.get_ActiveRegion(&region, &valid), status::kNullPointer);
    EXPECT_EQ(button.GetHighlightRegion(&region), status::kNothingDone);
}

TEST(Button, ReadsTheTitleOfAnOlderFileAndNeverWritesIt)
{
    CDSMenuButton button;
    long index = 0;
    EXPECT_EQ(ReadNode(button, "<Button linkTitleIndex='7'/>"), status::kOk);
    EXPECT_EQ(button.get_LinkTitleIndex(&index), status::kOk);
    EXPECT_EQ(index, 7);
    EXPECT_EQ(WrittenNode(button).find("linkTitleIndex"), string::npos);
}

TEST(Button, LightsUpWithItsHighlightedElements)
{
    CDSMenuButton button;
    CProjectNode& elements = *button.GetChild(3);
    FloatRect region;
    EXPECT_EQ(button.GetHighlightRegion(&region), status::kNothingDone);
    EXPECT_EQ(button.GetHighlightRegion(nullptr), status::kNullPointer);

    CDSMenuOverlay dark, lit;
    for (CDSMenuOverlay* overlay : { &dark, &lit })
        elements.AddChild(overlay, true);
    (void)dark.SetSize(100, 100);
    (void)lit.SetSize(2, 4);
    (void)lit.SetPosition(1, 0);
    EXPECT_EQ(button.GetHighlightRegion(&region), status::kNothingDone);
    EXPECT_EQ(RectText(region), "0 0 0 0");

    (void)lit.put_Highlight(OverlayHighlight::Source);
    (void)button.SetPosition(10, 20);
    EXPECT_EQ(button.GetHighlightRegion(&region), status::kOk);
    EXPECT_EQ(RectText(region), "10 22 12 18");

    CDSMenuText text; // without words its extent is the zero rectangle, which widens nothing
    elements.AddChild(&text, true);
    (void)text.put_Highlight(TextHighlight::Box);
    EXPECT_EQ(button.GetHighlightRegion(&region), status::kOk);
    EXPECT_EQ(RectText(region), "10 22 12 18");
    (void)lit.put_Highlight(OverlayHighlight::None);
    EXPECT_EQ(button.GetHighlightRegion(&region), status::kOk);
    EXPECT_EQ(RectText(region), "0 0 0 0");
}
