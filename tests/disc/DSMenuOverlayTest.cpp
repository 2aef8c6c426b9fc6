#include "disc/DSMenuOverlay.h"

#include "support/MenuFixture.h"
#include "xml/XmlFile.h"

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

TEST(Overlay, HasItsSourceBelowTheContentFolder)
{
    const ScratchFolder folder;
    const string content = folder / "Content/";
    std::filesystem::create_directories(content + "Content");
    CDSMenuOverlay inMemory, fromFile;
    for (CDSMenuOverlay* overlay : { &inMemory, &fromFile }) {
        const string path = content + "Content/a.xml";
        if (overlay == &fromFile) {
            WriteFile(path, R"x(<O source="%CONTENT%\p\a.png" alphaMask="m\b.png"/>)x");
            const XmlDocPtr doc = ReadXmlFile(path.c_str());
            EXPECT_EQ(overlay->Read(AsNode(xmlDocGetRootElement(doc.get()))), status::kOk);
        } else {
            EXPECT_EQ(overlay->put_Source("/p/a.png"), status::kOk);
            EXPECT_EQ(overlay->put_AlphaMask("m/b.png"), status::kOk);
        }
        const string front = overlay == &fromFile ? content : "";
        string source, mask;
        EXPECT_EQ(overlay->get_Source(&source), status::kOk);
        EXPECT_EQ(source, front + "/p/a.png");
        EXPECT_EQ(overlay->get_AlphaMask(&mask), status::kOk);
        EXPECT_EQ(mask, "m/b.png");
        EXPECT_EQ(overlay->put_Source(source), status::kOk); // the folder comes off again
        EXPECT_EQ(overlay->get_Source(&source), status::kOk);
        EXPECT_EQ(source, front + "/p/a.png");
        EXPECT_NE(WrittenNode(*overlay).find(R"x(source="/p/a.png")x"), string::npos);
    }
}

TEST(Overlay, StartsWithAWholeSourceOfUnknownMask)
{
    CDSMenuOverlay overlay;
    double a = 0, b = 0, crop[4] = {};
    EXPECT_EQ(overlay.GetMaskSize(&a, &b), status::kOk);
    EXPECT_EQ(a + b, -2.0);
    EXPECT_EQ(overlay.GetSourceScale(&a, &b), status::kOk);
    EXPECT_EQ(a + b, 2.0);
    EXPECT_EQ(overlay.get_CropXYWH(&crop[0], &crop[1], &crop[2], &crop[3]), status::kOk);
    EXPECT_EQ(crop[0] + crop[1] + crop[2] + crop[3], 2.0);
    EXPECT_EQ(overlay.get_CropXYWH(&crop[0], nullptr, &crop[2], &crop[3]), status::kNullPointer);

    SourceTypes type = SourceTypes::None;
    long id = 0;
    EXPECT_EQ(overlay.SetSourceType(SourceTypes::Title, 4), status::kOk);
    EXPECT_EQ(overlay.GetSourceType(&type, nullptr), status::kOk); // the type alone
    EXPECT_EQ(type, SourceTypes::Title);
    EXPECT_EQ(overlay.GetSourceType(nullptr, &id), status::kNullPointer);
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
