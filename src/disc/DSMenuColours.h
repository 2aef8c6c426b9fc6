#pragma once

#include "core/Types.h"
#include "project/FormedNode.h"

#include <array>
#include <string>

/// @file
/// The nodes under a menu that hold what the disc's subpicture unit needs: the palette, the button
/// schemes, the colours of the overlay layer, and the rectangle that buttons are laid out in.

/// One colour of a palette.
struct RGBEntry
{
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
};

/// A colour assignment of a subpicture: for each of its four kinds of pixel (pattern, background,
/// emphasis 1 and 2) the index of a palette entry and a contrast, each 0 to 15.
struct SPUColourInfo
{
    unsigned char pattCol = 0;
    unsigned char pattCnt = 0;
    unsigned char bkgdCol = 0;
    unsigned char bkgdCnt = 0;
    unsigned char emp1Col = 0;
    unsigned char emp1Cnt = 0;
    unsigned char emp2Col = 0;
    unsigned char emp2Cnt = 0;
};

/// "Palette": the 16 colours of a menu. Reading stops, with a message, at the first entry that is absent
/// or empty.
class VANTREL_API CPaletteNode : public vantrel::FormedNode
{
public:
    CPaletteNode();
    ~CPaletteNode() override;

    /// Copies all 16 entries out or in; null gives `status::kNullPointer`.
    vantrel::Status GetPalette(RGBEntry* out) const;
    vantrel::Status SetPalette(const RGBEntry* in);

private:
    struct Form;

    std::array<RGBEntry, 16> m_palette;
};

/// "ButtonScheme1" to "ButtonScheme3": what a button shows when it is selected and when it is
/// activated. A menu has these three, told apart by their element names, and a button says which it
/// uses.
class VANTREL_API CButtonSchemeNode : public vantrel::FormedNode
{
public:
    explicit CButtonSchemeNode(std::string name);
    ~CButtonSchemeNode() override;

    /// Copies both assignments out, and only then derives the emphasis 2 values in the node from the
    /// pattern's: half its contrast, rounded up, and its colour. So a second call, and the next save,
    /// show the derived values. Null gives `status::kNullPointer`.
    vantrel::Status GetColourInfo(SPUColourInfo* selected, SPUColourInfo* activated);

    /// Stores both when every value is at most 15; else the first bad one, the selected assignment
    /// first, decides between `status::kBadColour` and `status::kBadContrast`, and nothing changes.
    vantrel::Status SetColourInfo(const SPUColourInfo& selected, const SPUColourInfo& activated);

    std::string GetObjectTagName() override;

private:
    struct Form;

    SPUColourInfo m_selected;
    SPUColourInfo m_activated;
    std::string m_name; ///< the element's name
};

/// "SPUColours": the subpicture colours of a menu's overlay layer.
class VANTREL_API CSPUColourNode : public vantrel::FormedNode
{
public:
    CSPUColourNode();
    ~CSPUColourNode() override;

    /// Null gives `status::kNullPointer`.
    vantrel::Status GetColourInfo(SPUColourInfo* out) const;
    /// Checks as a scheme does.
    vantrel::Status SetColourInfo(const SPUColourInfo& in);

private:
    struct Form;

    SPUColourInfo m_colourInfo;
};

/// "LayoutRect": the rectangle into which a menu's buttons are laid out. Its sides are neither ordered nor checked.
class VANTREL_API CLayoutRectNode : public vantrel::FormedNode
{
public:
    CLayoutRectNode();
    ~CLayoutRectNode() override;

    /// Null gives `status::kNullPointer`.
    vantrel::Status GetLayoutRect(FloatRect* out) const;
    vantrel::Status SetLayoutRect(const FloatRect* in);

private:
    struct Form;

    FloatRect m_rect;
};
