#include "disc/DSMenuColours.h"

#include "core/Property.h"
#include "core/Report.h"
#include "project/NodeForm.h"

#include <algorithm>
#include <iterator>
#include <string>

using std::map;
using std::string;
using std::string_view;
using namespace vantrel;

namespace {

constexpr unsigned char kHighest = 15; // of a palette index and of a contrast

/// A byte of a colour assignment: written as a number, read cut to its low eight bits.
template <auto Assignment, auto Value>
constexpr auto Byte(const char* name)
{
    return attribute::DecimalIn<Assignment, Value>(name);
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

} // namespace

/// One entry of the palette: "0x" and six hexadecimal digits, the red byte lowest.
template <std::size_t Index>
struct CPaletteNode::Entry
{
    static void Write(const CPaletteNode& node, string& text)
    {
        const RGBEntry& entry = node.m_palette[Index];
        text += FormatString("0x%06X", entry.red | entry.green << 8 | entry.blue << 16);
    }

    static void Read(CPaletteNode& node, string_view text)
    {
        const long value = ReadHex(string(text)); // -1, so all bits, without "0x"
        const auto byte = [value](int shift) { return static_cast<unsigned char>(value >> shift); };
        node.m_palette[Index] = { byte(0), byte(8), byte(16) };
    }

    static constexpr AttributeRow<CPaletteNode> Row(const char* name)
    {
        return AttributeRow<CPaletteNode>{ name, Write, Read }.Required(ReportMissingEntry);
    }
};

// The attributes of "Palette".
AttributeTable<CPaletteNode> CPaletteNode::Attributes()
{
    static constexpr auto rows = Rows<CPaletteNode>(
        Entry<0>::Row("entry00"), Entry<1>::Row("entry01"), Entry<2>::Row("entry02"),
        Entry<3>::Row("entry03"), Entry<4>::Row("entry04"), Entry<5>::Row("entry05"),
        Entry<6>::Row("entry06"), Entry<7>::Row("entry07"), Entry<8>::Row("entry08"),
        Entry<9>::Row("entry09"), Entry<10>::Row("entry10"), Entry<11>::Row("entry11"),
        Entry<12>::Row("entry12"), Entry<13>::Row("entry13"), Entry<14>::Row("entry14"),
        Entry<15>::Row("entry15"));
    return rows;
}

CPaletteNode::CPaletteNode()
    : CProjectNode(eNodePalette, kFormOf<CPaletteNode, &CPaletteNode::Attributes>)
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

Status CPaletteNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CPaletteNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}

// The attributes of "ButtonScheme1" to "ButtonScheme3".
AttributeTable<CButtonSchemeNode> CButtonSchemeNode::Attributes()
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
    return rows;
}

CButtonSchemeNode::CButtonSchemeNode(string name)
    : CProjectNode(eNodeButtonScheme, kFormOf<CButtonSchemeNode, &CButtonSchemeNode::Attributes>),
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

Status CButtonSchemeNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CButtonSchemeNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}

// The attributes of "SPUColours".
AttributeTable<CSPUColourNode> CSPUColourNode::Attributes()
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
    return rows;
}

CSPUColourNode::CSPUColourNode()
    : CProjectNode(eNodeSPUColours, kFormOf<CSPUColourNode, &CSPUColourNode::Attributes>)
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

Status CSPUColourNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CSPUColourNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}

// The attributes of "LayoutRect".
AttributeTable<CLayoutRectNode> CLayoutRectNode::Attributes()
{
    using namespace vantrel::attribute;
    static constexpr auto rows =
        Rows<CLayoutRectNode>(RealIn<&CLayoutRectNode::m_rect, &FloatRect::left>("left"),
                              RealIn<&CLayoutRectNode::m_rect, &FloatRect::top>("top"),
                              RealIn<&CLayoutRectNode::m_rect, &FloatRect::right>("right"),
                              RealIn<&CLayoutRectNode::m_rect, &FloatRect::bottom>("bottom"));
    return rows;
}

CLayoutRectNode::CLayoutRectNode()
    : CProjectNode(eNodeLayoutRect, kFormOf<CLayoutRectNode, &CLayoutRectNode::Attributes>)
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

Status CLayoutRectNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CLayoutRectNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}
