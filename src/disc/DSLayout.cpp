#include "disc/DSLayout.h"

namespace {

/// A field of the packed word.
struct BitField
{
    unsigned int shift;
    unsigned int width;

    constexpr unsigned long Mask() const { return ((1UL << width) - 1) << shift; }
    constexpr unsigned int Get(unsigned long packed) const
    {
        return static_cast<unsigned int>((packed & Mask()) >> shift);
    }
    constexpr unsigned long With(unsigned long packed, unsigned long value) const
    {
        return (packed & ~Mask()) | (value << shift & Mask());
    }
};

constexpr BitField kLines{ 4, 6 };
constexpr BitField kButtonsPerLine{ 10, 6 };
constexpr BitField kStyle{ 16, 4 };
constexpr BitField kLineJustify{ 20, 2 };
constexpr BitField kButtonJustify{ 22, 2 };
constexpr BitField kWeight{ 24, 2 };

constexpr unsigned long kDefault = 0x01500C21;
constexpr unsigned long kFormat = 1;
constexpr unsigned long kCopied = (1UL << 48) - 1;

constexpr unsigned int kVerticalStyle = 0;
constexpr unsigned int kHorizontalStyle = 1;

constexpr bool IsSingleLine(unsigned int style)
{
    return style == 2 || style == 3;
}

constexpr int Justification(unsigned int lineJustify)
{
    return lineJustify == 0 ? 0 : lineJustify == 2 ? 1 : 2;
}

} // namespace

CDSLayout::CDSLayout() : m_packed(kDefault)
{}

CDSLayout::CDSLayout(unsigned long packed) : m_packed(packed ? packed : kDefault)
{}

CDSLayout::CDSLayout(unsigned int lines, unsigned int buttonsPerLine, LayoutStyle style,
                     LayoutJustify lineJustify, LayoutJustify buttonJustify, Weight weight)
    : m_packed(kFormat)
{
    m_packed = kLines.With(m_packed, lines);
    m_packed = kButtonsPerLine.With(m_packed, buttonsPerLine);
    m_packed = kStyle.With(m_packed, style);
    m_packed = kLineJustify.With(m_packed, lineJustify);
    m_packed = kButtonJustify.With(m_packed, buttonJustify);
    m_packed = kWeight.With(m_packed, weight);
}

CDSLayout::CDSLayout(const CDSLayout& other) : m_packed(other.m_packed & kCopied)
{}

CDSLayout& CDSLayout::operator=(const CDSLayout& other)
{
    m_packed = other.m_packed & kCopied;
    return *this;
}

CDSLayout::LayoutStyle CDSLayout::GetStyle() const
{
    return LayoutStyle(kStyle.Get(m_packed));
}

void CDSLayout::SetStyle(LayoutStyle style)
{
    m_packed = kStyle.With(m_packed, style);
    if (IsSingleLine(GetStyle()))
        m_packed = kLines.With(m_packed, 1);
}

int CDSLayout::GetNumberOfLines() const
{
    return static_cast<int>(kLines.Get(m_packed));
}

void CDSLayout::SetNumberOfLines(int lines)
{
    const unsigned int count = IsSingleLine(GetStyle()) ? 1U : static_cast<unsigned int>(lines);
    m_packed = kLines.With(m_packed, count);
}

int CDSLayout::GetButtonsPerLine() const
{
    return static_cast<int>(kButtonsPerLine.Get(m_packed));
}

void CDSLayout::SetButtonsPerLine(int buttons)
{
    m_packed = kButtonsPerLine.With(m_packed, static_cast<unsigned int>(buttons));
}

CDSLayout::LayoutJustify CDSLayout::GetLineJustify() const
{
    return LayoutJustify(kLineJustify.Get(m_packed));
}

void CDSLayout::SetLineJustify(LayoutJustify justify)
{
    m_packed = kLineJustify.With(m_packed, justify);
}

CDSLayout::LayoutJustify CDSLayout::GetButtonJustify() const
{
    return LayoutJustify(kButtonJustify.Get(m_packed));
}

void CDSLayout::SetButtonJustify(LayoutJustify justify)
{
    m_packed = kButtonJustify.With(m_packed, justify);
}

CDSLayout::Weight CDSLayout::GetWeight() const
{
    return Weight(kWeight.Get(m_packed));
}

void CDSLayout::SetWeight(Weight weight)
{
    m_packed = kWeight.With(m_packed, weight);
}

int CDSLayout::GetButtonHJustify() const
{
    return GetStyle() == kHorizontalStyle ? Justification(GetLineJustify()) : 2;
}

int CDSLayout::GetButtonVJustify() const
{
    return GetStyle() == kVerticalStyle ? Justification(GetLineJustify()) : 2;
}
