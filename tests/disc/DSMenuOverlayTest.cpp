#include "disc/DSMenuOverlay.h"

#include "disc/DSMenuButton.h"
#include "support/MenuFixture.h"
#include "xml/XmlFile.h"

#include <gmock/gmock.h>

#include <filesystem>

using std::string;
using namespace vantrel;

TEST(Overlay, ReadsTheZoomOfTheSourceUnderTwoNames)
{
    const struct
    {
        const char* element;
        bool zoom;
    } cases[] = {
        { "<O zoomToFill='1' zoomSource='0'/>", true },
        { "<O zoomToFill='0' zoomSource='1'/>", true },
        { "<O zoomToFill='0' zoomSource='0'/>", false },
        { "<O zoomSource='yes'/>", true },
        { "<O zoomMask='1'/>", false },
    };
    for (const auto& c : cases) {
        CDSMenuOverlay overlay;
        bool zoom = !c.zoom, mask = true;
        EXPECT_EQ(ReadNode(overlay, c.element), status::kOk);
        EXPECT_EQ(overlay.get_ZoomSource(&zoom), status::kOk);
        EXPECT_EQ(overlay.get_ZoomMask(&mask), status::kOk);
        EXPECT_EQ(zoom, c.zoom) << c.element;
        EXPECT_FALSE(mask); // a file doesn't bring it
    }
}

TEST(Overlay, HasRelativeSourcesBelowTheContentFolder)
{
    const ScratchFolder folder;
    const string content = folder / "Content/";
    std::filesystem::create_directories(content + "Content");
    const string path = content + "Content/a.xml";
    WriteFile(path, R"x(<P><O source="%CONTENT%\p\a.png" alphaMask="m\b.png"/></P>)x");
    const XmlDocPtr doc = ReadXmlFile(path.c_str());
    xmlNode* const root = xmlDocGetRootElement(doc.get());
    CDSMenuButton parent; // read from the file, as `fromFile` is, while `child` is not
    CDSMenuOverlay inMemory, fromFile, child;
    EXPECT_EQ(fromFile.Read(AsNode(root->children)), status::kOk);
    (void)parent.Read(AsNode(root));
    parent.GetChild(3)->AddChild(&child, true);

    string source, mask;
    EXPECT_EQ(fromFile.get_AlphaMask(&mask), status::kOk);
    EXPECT_EQ(mask, "m/b.png");
    EXPECT_EQ(fromFile.get_Source(&source), status::kOk);
    EXPECT_EQ(source, content + "p/a.png");
    const struct
    {
        string put;
        string inFile;
        string shown; ///< behind the content folder unless absolute
    } cases[] = {
        { "p/a.png", "p/a.png", "p/a.png" },
        { content + "p/a.png", "p/a.png", "p/a.png" },
        { "%CONTENT%/p/a.png", "p/a.png", "p/a.png" },
        { "/p/a.png", "/p/a.png", "/p/a.png" },
        { "C:\\p\\a.png", "C:\\p\\a.png", "C:\\p\\a.png" },
        { "\\\\server\\a.png", "\\\\server\\a.png", "\\\\server\\a.png" },
    };
    for (const auto& c : cases) {
        for (CDSMenuOverlay* overlay : { &inMemory, &fromFile, &child }) {
            if (overlay == &inMemory && c.put.starts_with(content))
                continue; // it knows of no folder
            SCOPED_TRACE(c.put);
            EXPECT_EQ(overlay->put_Source(c.put), status::kOk);
            const string written = WrittenNode(*overlay);
            EXPECT_NE(written.find("source=\"" + c.inFile + '"'), string::npos) << written;
            CDSMenuOverlay again;
            EXPECT_EQ(ReadNode(again, written), status::kOk);
            EXPECT_EQ(WrittenNode(again), written);
            const bool isBelow = overlay != &inMemory && c.shown[0] == 'p';
            EXPECT_EQ(overlay->get_Source(&source), status::kOk);
            EXPECT_EQ(source, (isBelow ? content : "") + c.shown);
        }
    }
}

TEST(Overlay, KeepsPairsApart)
{
    CDSMenuOverlay overlay;
    double mask[2] = {}, scale[2] = {}, crop[4] = {};
    EXPECT_EQ(overlay.GetMaskSize(&mask[0], &mask[1]), status::kOk);
    EXPECT_THAT(mask, testing::ElementsAre(-1, -1)); // not known
    EXPECT_EQ(overlay.GetSourceScale(&scale[0], &scale[1]), status::kOk);
    EXPECT_THAT(scale, testing::ElementsAre(1, 1));
    EXPECT_EQ(overlay.get_CropXYWH(&crop[0], &crop[1], &crop[2], &crop[3]), status::kOk);
    EXPECT_THAT(crop, testing::ElementsAre(0, 0, 1, 1));

    EXPECT_EQ(overlay.SetMaskSize(2, 3), status::kOk);
    EXPECT_EQ(overlay.SetSourceScale(4, 5), status::kOk);
    EXPECT_EQ(ReadNode(overlay, "<O corpRectX='.1' corpRectY='.2' corpRectW='.3' corpRectH='.4'/>"),
              status::kOk);
    EXPECT_EQ(overlay.GetMaskSize(&mask[0], &mask[1]), status::kOk);
    EXPECT_THAT(mask, testing::ElementsAre(2, 3));
    EXPECT_EQ(overlay.GetSourceScale(&scale[0], &scale[1]), status::kOk);
    EXPECT_THAT(scale, testing::ElementsAre(4, 5));
    EXPECT_EQ(overlay.get_CropXYWH(&crop[0], &crop[1], &crop[2], &crop[3]), status::kOk);
    EXPECT_THAT(crop, testing::ElementsAre(.1, .2, .3, .4));
    EXPECT_EQ(overlay.get_CropXYWH(&crop[0], nullptr, &crop[2], &crop[3]), status::kNullPointer);

    SourceTypes type = SourceTypes::None;
    long id = 0;
    EXPECT_EQ(overlay.SetSourceType(SourceTypes::Title, 4), status::kOk);
    EXPECT_EQ(overlay.GetSourceType(&type, nullptr), status::kOk); // the type alone
    EXPECT_EQ(type, SourceTypes::Title);
    EXPECT_EQ(overlay.GetSourceType(nullptr, &id), status::kNullPointer);
    EXPECT_EQ(overlay.GetSourceType(&type, &id), status::kOk);
    EXPECT_EQ(id, 4);
}

TEST(Overlay, RefusesNegativePointsAndComparesNone)
{
    CDSMenuOverlay overlay;
    double point = 0;
    EXPECT_EQ(overlay.put_InPoint(-0.5), status::kNegativeInPoint);
    EXPECT_EQ(overlay.put_OutPoint(-0.5), status::kNegativeOutPoint);
    EXPECT_EQ(overlay.put_OutPoint(0.0), status::kOk);
    EXPECT_EQ(overlay.put_InPoint(3), status::kOk);
    EXPECT_EQ(overlay.get_InPoint(&point), status::kOk);
    EXPECT_EQ(point, 3);

    FloatPoint corners[4];
    EXPECT_EQ(overlay.SetSize(6, 2), status::kOk);
    EXPECT_EQ(overlay.GetBoundingBox(corners), status::kOk);
    EXPECT_EQ(corners[3].x, 3.0F);
    EXPECT_EQ(overlay.GetBoundingBox(nullptr), status::kNullPointer);
}
