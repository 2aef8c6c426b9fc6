#include "disc/DSMenuColours.h"

#include "core/Property.h"
#include "core/Report.h"
#include "project/NodeForm.h"

#include <algorithm>
#include <iterator>
#include <string>

using std::string;
using std::string_view;
using namespace vantrel;
using namespace vantrel::attribute;

namespace {

constexpr unsigned char kHighest = 15; // of a palette index and of a contrast

/// A byte of a colour assignment: written as a number, read cut to its low eight bits.
template <auto Assignment, auto Value>
constexpr auto Byte(const char* name)
{
    return DecimalIn<Assignment, Value>(name);
}

/// The bytes of an assignment in the order in which they are checked.
constexpr unsigned char SPUColourInfo::*kColours[] = {
    &SPUColourInfo::pattCol,
    &SPUColourInfo::bkgdCol,
    &SPUColourInfo::emp1Col,
    &SPUColourInfo::emp2Col,
};
constexpr unsigned char SPUColourInfo::*kContrasts[] = {
    &SPUColourInfo::pattCnt,
    &SPUColourInfo::bkgdCnt,
    &SPUColourInfo::emp1Cnt,
    &SPUColourInfo::emp2Cnt,
};

/// The status of the first value above 15, colour before contrast of each kind of pixel.
Status Check(const SPUColourInfo& info)
{
    for (std::size_t kind = 0; kind < std::size(kColours); ++kind) {
        if (info.*kColours[kind] > kHighest)
            return status::kBadColour;
        if (info.*kContrasts[kind] > kHighest)
            return status::kBadContrast;
    }
    return status::kOk;
}

void DeriveEmphasis2(SPUColourInfo& info)
{
    info.emp2Cnt = static_cast<unsigned char>((info.pattCnt + 1) / 2);
    info.emp2Col = info.pattCol;
}

void ReportMissingEntry(std::size_t entry)
{
    Report("ParsePaletteAttributes: No entry! (", std::to_string(entry), ")\n");
}

/// One entry of a palette: "0x" and six hexadecimal digits, the red byte lowest.
template <auto Palette, std::size_t Index>
constexpr AttributeRow<CPaletteNode> Entry(const char* name)
{
    const AttributeRow<CPaletteNode> row{
        name,
        [](const CPaletteNode& node, string& text) {
            const RGBEntry& entry = (node.*Palette)[Index];
            text += FormatString("0x%06X", entry.red | entry.green << 8 | entry.blue << 16);
        },
        [](CPaletteNode& node, string_view text) {
            const long value = ReadHex(string(text)); // -1, so all bits, without "0x"
            const auto byte = [value](int shift) {
                return static_cast<unsigned char>(value >> shift);
            };
            (node.*Palette)[Index] = { byte(0), byte(8), byte(16) };
        },
    };
    return row.Required(ReportMissingEntry);
}

} // namespace

// The attributes of "Palette".
struct VANTREL_INTERNAL CPaletteNode::Form
{
    static constexpr auto rows = Rows<CPaletteNode>(Entry<&CPaletteNode::m_palette, 0>("entry00"),
                                                    Entry<&CPaletteNode::m_palette, 1>("entry01"),
                                                    Entry<&CPaletteNode::m_palette, 2>("entry02"),
                                                    Entry<&CPaletteNode::m_palette, 3>("entry03"),
                                                    Entry<&CPaletteNode::m_palette, 4>("entry04"),
                                                    Entry<&CPaletteNode::m_palette, 5>("entry05"),
                                                    Entry<&CPaletteNode::m_palette, 6>("entry06"),
                                                    Entry<&CPaletteNode::m_palette, 7>("entry07"),
                                                    Entry<&CPaletteNode::m_palette, 8>("entry08"),
                                                    Entry<&CPaletteNode::m_palette, 9>("entry09"),
                                                    Entry<&CPaletteNode::m_palette, 10>("entry10"),
                                                    Entry<&CPaletteNode::m_palette, 11>("entry11"),
                                                    Entry<&CPaletteNode::m_palette, 12>("entry12"),
                                                    Entry<&CPaletteNode::m_palette, 13>("entry13"),
                                                    Entry<&CPaletteNode::m_palette, 14>("entry14"),
                                                    Entry<&CPaletteNode::m_palette, 15>("entry15"));
    static constexpr bool addsToMap = true;
};

CPaletteNode::CPaletteNode() : FormedNode(eNodePalette, kFormOf<CPaletteNode, Form>)
{}

CPaletteNode::~CPaletteNode() = default;

Status CPaletteNode::GetPalette(RGBEntry* out) const
{
    if (!out)
        return status::kNullPointer;
    std::copy(m_palette.begin(), m_palette.end(), out);
    return status::kOk;
}

Status CPaletteNode::SetPalette(const RGBEntry* in)
{
    if (!in)
        return status::kNullPointer;
    std::copy_n(in, m_palette.size(), m_palette.begin());
    return status::kOk;
}

// The attributes of "ButtonScheme1" to "ButtonScheme3".
struct VANTREL_INTERNAL CButtonSchemeNode::Form
{
    using Scheme = CButtonSchemeNode;
    static constexpr auto rows =
        Rows<Scheme>(Byte<&Scheme::m_selected, &SPUColourInfo::pattCol>("pattSelCol"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::pattCnt>("pattSelCnt"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::bkgdCol>("bkgdSelCol"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::bkgdCnt>("bkgdSelCnt"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::emp1Col>("emp1SelCol"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::emp1Cnt>("emp1SelCnt"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::emp2Col>("emp2SelCol"),
                     Byte<&Scheme::m_selected, &SPUColourInfo::emp2Cnt>("emp2SelCnt"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::pattCol>("pattActCol"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::pattCnt>("pattActCnt"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::bkgdCol>("bkgdActCol"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::bkgdCnt>("bkgdActCnt"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::emp1Col>("emp1ActCol"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::emp1Cnt>("emp1ActCnt"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::emp2Col>("emp2ActCol"),
                     Byte<&Scheme::m_activated, &SPUColourInfo::emp2Cnt>("emp2ActCnt"));
    static constexpr bool addsToMap = true;
};

CButtonSchemeNode::CButtonSchemeNode(string name)
    : FormedNode(eNodeButtonScheme, kFormOf<CButtonSchemeNode, Form>),
      m_name(std::move(name))
{}

CButtonSchemeNode::~CButtonSchemeNode() = default;

Status CButtonSchemeNode::GetColourInfo(SPUColourInfo* selected, SPUColourInfo* activated)
{
    if (!selected || !activated)
        return status::kNullPointer;
    *selected = m_selected;
    *activated = m_activated;
    DeriveEmphasis2(m_selected);
    DeriveEmphasis2(m_activated);
    return status::kOk;
}

Status CButtonSchemeNode::SetColourInfo(const SPUColourInfo& selected,
                                        const SPUColourInfo& activated)
{
    for (const SPUColourInfo* info : { &selected, &activated }) {
        const Status checked = Check(*info);
        if (Failed(checked))
            return checked;
    }
    m_selected = selected;
    m_activated = activated;
    return status::kOk;
}

string CButtonSchemeNode::GetObjectTagName()
{
    return m_name;
}

// The attributes of "SPUColours".
struct VANTREL_INTERNAL CSPUColourNode::Form
{
    static constexpr auto rows = Rows<CSPUColourNode>(
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::pattCol>("pattCol"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::pattCnt>("pattCnt"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::bkgdCol>("bkgdCol"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::bkgdCnt>("bkgdCnt"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::emp1Col>("emp1Col"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::emp1Cnt>("emp1Cnt"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::emp2Col>("emp2Col"),
        Byte<&CSPUColourNode::m_colourInfo, &SPUColourInfo::emp2Cnt>("emp2Cnt"));
    static constexpr bool addsToMap = true;
};

CSPUColourNode::CSPUColourNode() : FormedNode(eNodeSPUColours, kFormOf<CSPUColourNode, Form>)
{}

CSPUColourNode::~CSPUColourNode() = default;

Status CSPUColourNode::GetColourInfo(SPUColourInfo* out) const
{
    return Give(out, m_colourInfo);
}

Status CSPUColourNode::SetColourInfo(const SPUColourInfo& in)
{
    const Status checked = Check(in);
    return Failed(checked) ? checked : Take(m_colourInfo, in);
}

// The attributes of "LayoutRect".
struct VANTREL_INTERNAL CLayoutRectNode::Form
{
    static constexpr auto rows =
        Rows<CLayoutRectNode>(RealIn<&CLayoutRectNode::m_rect, &FloatRect::left>("left"),
                              RealIn<&CLayoutRectNode::m_rect, &FloatRect::top>("top"),
                              RealIn<&CLayoutRectNode::m_rect, &FloatRect::right>("right"),
                              RealIn<&CLayoutRectNode::m_rect, &FloatRect::bottom>("bottom"));
    static constexpr bool addsToMap = true;
};

CLayoutRectNode::CLayoutRectNode() : FormedNode(eNodeLayoutRect, kFormOf<CLayoutRectNode, Form>)
{}

CLayoutRectNode::~CLayoutRectNode() = default;

Status CLayoutRectNode::GetLayoutRect(FloatRect* out) const
{
    return Give(out, m_rect);
}

Status CLayoutRectNode::SetLayoutRect(const FloatRect* in)
{
    return in ? Take(m_rect, *in) : status::kNullPointer;
}
