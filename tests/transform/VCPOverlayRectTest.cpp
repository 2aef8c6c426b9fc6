#include "transform/VCPOverlayRect.h"

#include "support/XmlFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

struct Software : COverlaysSoftwareBase
{
    std::tuple<int, int, float> Frame() const
    {
        return { m_frameWidth, m_frameHeight, m_frameAspect };
    }
    std::tuple<unsigned long, unsigned long> Viewport() const
    {
        return { m_viewportWidth, m_viewportHeight };
    }
};

/// An overlay with a frame of that width and a picture measured by a load.
struct Overlay : CVCPOverlayRect
{
    explicit Overlay(int width) { EXPECT_EQ(SInit(width, 480, &m_matrix, &m_matrix), status::kOk); }

    Status Load(const char* text = "<plugin_data><html><body/></html></plugin_data>")
    {
        return LoadXML(XmlText(text).root());
    }
    std::tuple<int, int, int> Sizes()
    {
        int width = 0, height = 0, rowBytes = 0;
        EXPECT_EQ(GetPicture(nullptr, &width, &height, &rowBytes), status::kOk);
        return { width, height, rowBytes };
    }
    std::tuple<float, float> TopAndBottom() const
    {
        D3DXVECTOR3 top, bottom;
        GetModelBoundingRect(&top, &bottom, nullptr, nullptr);
        return { top.y, bottom.y };
    }

    D3DXMATRIX m_matrix = {};
};

} // namespace

TEST(SoftwareOverlay, InitTakesFrameOrNothing)
{
    Software overlay;
    D3DXMATRIX a, b;
    EXPECT_EQ(overlay.SBInit(640, 480, nullptr, &b), status::kNullPointer);
    EXPECT_EQ(overlay.SBInit(640, 480, &a, nullptr), status::kNullPointer);
    EXPECT_EQ(overlay.Frame(), std::tuple(320, 240, 1.33F));
    EXPECT_EQ(overlay.SBInit(640, 480, &a, &b), status::kOk);
    EXPECT_EQ(overlay.Frame(), std::tuple(640, 480, 1.3333334F));
    EXPECT_EQ(overlay.Viewport(), std::tuple(640, 480));
}

TEST(OverlayRect, BringsRectangleIntoFrameProportionsOnce)
{
    Overlay overlay(720);
    EXPECT_EQ(overlay.Load("<plugin_data/>"), status::kNothingDone);
    EXPECT_EQ(overlay.TopAndBottom(), std::tuple(1.0F, -1.0F));
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(overlay.Load(), status::kOk);
        EXPECT_EQ(overlay.TopAndBottom(), std::tuple(0.75F, -0.75F));
        EXPECT_EQ(overlay.Sizes(), std::tuple(720, 540, 2880));
    }
    overlay.SetBoundingRect(-1, 2, 1, -2);
    overlay.Load();
    EXPECT_EQ(overlay.TopAndBottom(), std::tuple(1.5F, -1.5F));
}

TEST(OverlayRect, PictureIsZeroAndBounded)
{
    Overlay overlay(10);
    char* pixels = nullptr;
    EXPECT_EQ(overlay.GetPicture(&pixels, nullptr, nullptr, nullptr), status::kOk);
    EXPECT_EQ(pixels, nullptr); // nothing loaded
    overlay.Load();
    ASSERT_EQ(overlay.GetPicture(&pixels, nullptr, nullptr, nullptr), status::kOk);
    EXPECT_EQ(std::count(pixels, pixels + 10 * 7 * 4, 0), 10 * 7 * 4);

    overlay.SetBoundingRect(-3e38F, 3e38F, 3e38F, -3e38F);
    overlay.Load();
    EXPECT_EQ(overlay.Sizes(), std::tuple(8192, 8192, 32768));
    overlay.SetBoundingRect(1, -1, -1, 1);
    overlay.Load();
    EXPECT_EQ(overlay.Sizes(), std::tuple(0, 0, 0));
    overlay.GetPicture(&pixels, nullptr, nullptr, nullptr);
    EXPECT_EQ(pixels, nullptr);
}
