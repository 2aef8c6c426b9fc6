#pragma once

#include "core/Number.h"
#include "menu/MenuElementImpl.h"
#include "storyboard/EffectObject.h"
#include "support/NodeFixture.h"

#include <cmath>
#include <memory>
#include <string>
#include <vector>

/// A number rounded to four digits behind the point, so that a turn by a right angle shows.
inline std::string Rounded(float value)
{
    const double rounded = std::round(static_cast<double>(value) * 1e4) / 1e4;
    return vantrel::NumberText(rounded + 0.0); // no negative zero
}

inline std::string PointText(float x, float y)
{
    return Rounded(x) + " " + Rounded(y);
}

/// The corners on the menu, in order.
inline std::string Corners(const CMenuElementImpl& element)
{
    std::vector<FPoint> corners;
    EXPECT_EQ(element.getBoundingBox(&corners), vantrel::status::kOk);
    std::string text;
    for (const FPoint& corner : corners)
        text += (text.empty() ? "" : ", ") + PointText(corner.x, corner.y);
    return text;
}

/// Left, top, right and bottom.
inline std::string ExtentOf(const CMenuElementImpl& element)
{
    FRect rect(7, 7, 7, 7);
    EXPECT_EQ(element.getExtent(&rect), vantrel::status::kOk);
    return PointText(rect.left, rect.top) + " " + PointText(rect.right, rect.bottom);
}

inline std::string PositionOf(const CMenuElementImpl& element)
{
    float x = 0, y = 0;
    EXPECT_EQ(element.getPosition(&x, &y), vantrel::status::kOk);
    return PointText(x, y);
}

/// An effect that puts what is attached to it at a position.
class EffectAt
{
public:
    EffectAt(float x, float y)
    {
        const XmlText data{ "<effect><plugin_data/></effect>" };
        (void)m_handle.Attach(&*m_effect);
        (void)m_handle.setXMLData(data.root());
        (void)m_handle.setTranslation(x, y, 0);
    }
    void PutOn(CMenuElementImpl& element) const { (void)element.GetEffect().Attach(&*m_effect); }
    std::string Position() const
    {
        float x = 0, y = 0, z = 0;
        (void)m_handle.getTranslation(&x, &y, &z);
        return PointText(x, y);
    }

private:
    std::unique_ptr<CEffectObject> m_effect = std::make_unique<CEffectObject>();
    CQZEffect m_handle;
};
