#include "transform/VCPOverlayRect.h"

#include "support/XmlFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using namespace vantrel;

namespace {

struct Overlay : CVCPOverlayRect
{
    Status Load(const char* text = "<d><html/></d>") { return LoadXML(XmlText(text).root()); }
    /// Top and bottom of the rectangle, width, height and row length of the picture.
    std::vector<float> Sizes()
    {
        D3DXVECTOR3 top, bottom;
        GetModelBoundingRect(&top, &bottom, nullptr, nullptr);
        int width = 0, height = 0, rowBytes = 0;
        EXPECT_EQ(GetPicture(nullptr, &width, &height, &rowBytes), status::kOk);
        return { top.y, bottom.y, float(width), float(height), float(rowBytes) };
    }
    float FrameAspect() const { return m_frameAspect; }
};

} // namespace

TEST(OverlayRect, BringsRectangleIntoFrameProportionsOnce)
{
    using testing::ElementsAre;
    Overlay overlay;
    D3DXMATRIX matrix = {};
    EXPECT_EQ(overlay.SInit(640, 480, &matrix, nullptr), status::kNullPointer);
    EXPECT_EQ(overlay.FrameAspect(), 1.33F);
    EXPECT_EQ(overlay.SInit(720, 480, &matrix, &matrix), status::kOk);
    EXPECT_EQ(overlay.FrameAspect(), 1.5F);
    EXPECT_EQ(overlay.Load("<d/>"), status::kNothingDone);
    EXPECT_THAT(overlay.Sizes(), ElementsAre(1, -1, 0, 0, 0));
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(overlay.Load(), status::kOk);
        EXPECT_THAT(overlay.Sizes(), ElementsAre(0.75F, -0.75F, 720, 540, 2880));
    }
    overlay.SetBoundingRect(-1, 2, 1, -2);
    overlay.Load();
    EXPECT_THAT(overlay.Sizes(), ElementsAre(1.5F, -1.5F, 720, 1080, 2880));
}

TEST(OverlayRect, PictureIsZeroAndBounded)
{
    Overlay overlay;
    D3DXMATRIX matrix = {};
    overlay.SInit(10, 480, &matrix, &matrix);
    overlay.Load();
    char* pixels = nullptr;
    ASSERT_EQ(overlay.GetPicture(&pixels, nullptr, nullptr, nullptr), status::kOk);
    EXPECT_THAT(std::string(pixels, 10 * 7 * 4), testing::Each('\0'));
    overlay.SetBoundingRect(-3e38F, 3e38F, -3e38F, 3e38F); // nothing wide, and no height at all
    overlay.Load();
    EXPECT_EQ(overlay.GetPicture(&pixels, nullptr, nullptr, nullptr), status::kOk);
    EXPECT_EQ(pixels, nullptr);
    overlay.SetBoundingRect(-3e38F, 3e38F, 3e38F, -3e38F);
    overlay.Load();
    EXPECT_EQ(overlay.Sizes()[2] + overlay.Sizes()[3], 2 * 8192);
}
