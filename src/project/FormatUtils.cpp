#include "project/FormatUtils.h"

#include "core/Number.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iterator>
#include <string_view>

using std::string;
using std::string_view;

namespace {

constexpr std::size_t kLongest = 49; // bytes of a formatted text

// The names stand in files: what looks like a slip of the pen is part of the format.
constexpr const char* kDiscFormats[] = { "",           "DVD_Video",    "DVD_plusVR",
                                         "DVD_dashVR", "DVD_Video_CD", "VCD",
                                         "SVCD",       "BluRay_BDMV",  "BluRay_BDAV",
                                         "HDDVD",      "HDDVD_VR",     "AVCHD" };
constexpr const char* kDiscSizes[] = { "",       "CD_650",   "CD_700",   "DVD_14",    "DVD_47",
                                       "DVD_85", "HDDVD_15", "HDDVD_30", "BluRay_25", "BluRay_50" };
constexpr const char* kDiscVideoTypes[] = { "", "Normal_2D", "Anaglyph_3D", "RealD_3D" };
constexpr const char* kTVStandards[] = { "", "NTSC", "PA" };
constexpr const char* kVideoResolutions[] = { "",
                                              "Full_D1",
                                              "Cropped_D1",
                                              "Half_D1",
                                              "Quarter_D1",
                                              "SVCD",
                                              "HD_480i",
                                              "HD_480p",
                                              "HD_720p",
                                              "HD_1080i_960",
                                              "HD_1080p_960",
                                              "HD_1080i_1280",
                                              "HD_1080i_1440",
                                              "HD_1080p_1440",
                                              "HD_1080i_1920",
                                              "HD_1080p_1920" };
constexpr const char* kAspectRatios[] = { "None", "4x3", "16x9" };
constexpr const char* kAudioFormats[] = { "",        "LPCM",   "MPEG-1", "AC-3",
                                          "DD_Plus", "DL_MLP", "DTS",    "DTS_HD" };
constexpr const char* kVideoFormats[] = { "MPEG-2", "AVC/H.264", "VC-1", "MPEG-1" };
constexpr const char* kSubpictureFormats[] = { "", "RLE", "RLE_8Bit" };
constexpr const char* kWideDisplayModes[] = { "", "Letterbox", "PanAndScan", "Both" };
constexpr const char* kOverlayHighlights[] = { "None", "Extent", "Source" };
constexpr const char* kTextHighlights[] = { "None", "Extent", "Box", "Underline", "Outline" };
constexpr const char* kSourceTypes[] = {
    "None",          "File",          "BtnCmdLink",      "Title",
    "AllTitles",     "AllMenuTitles", "AllMenuChapters", "AllTitleChapters",
    "Private_Title", "User_Defined"
};
constexpr const char* kTextHandles[] = {
    "",       "TopLeft",     "TopMiddle",  "TopRight",     "MiddleLeft",
    "Center", "MiddleRight", "BottomLeft", "BottomMiddle", "BottomRight"
};

constexpr const char* kMenuFlags[] = { "StillMenu", nullptr };
constexpr const char* kTargetTypes[] = { "DiscTarget", "ISOTarget", "FolderTarget", nullptr };
constexpr const char* kMenuTags[] = { "Main",       "Chapter", "MainTemplate", "ChapterTemplate",
                                      "Transition", nullptr };
constexpr const char* kTitleTags[] = { "Norma", "FirstPlay", "Transition", "Private", nullptr };
constexpr const char* kButtonTags[] = { "Next",         "Prev",    "Home", "Up",
                                        "ChapterIndex", "Command", nullptr };
constexpr const char* kOverlayTags[] = { "Generic",   "Frame", "Thumbnai",
                                         "Highlight", "Matte", nullptr };
constexpr const char* kTextTags[] = { "Labe", "Index", nullptr };
constexpr const char* kTextJustifies[] = { "Left",   "Right",  "Center", "Top",
                                           "Bottom", "Middle", nullptr };
constexpr const char* kProjectOptions[] = {
    "Archive_TitleImageSources", "Archive_TitleVideoSources",
    "Archive_MenuSources",       "Audio_NormalizeLevels",
    "Video_ProgressiveOutput",   "Editor_BtnFreeResizing",
    "Cmd_PlayRemainingTitles",   nullptr
};

template <class Enum, std::size_t Count>
string FormatNamed(Enum value, const char* const (&names)[Count])
{
    return FormatEnum(static_cast<long>(value), names, static_cast<int>(Count));
}

/// True when the format's conversion of the number has a length of its own, as "%ld" has.
bool TakesLong(const char* format)
{
    const char* conversion = std::strchr(format, '%');
    if (!conversion)
        return false;
    ++conversion;
    conversion += std::strspn(conversion, "-+ #0123456789.");
    return *conversion == 'l' || *conversion == 'j' || *conversion == 'z';
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral" // the format is the caller's, as with printf
template <class... Text>
string Print(const char* format, long value, Text... text)
{
    char buffer[kLongest + 1];
    if (TakesLong(format))
        std::snprintf(buffer, sizeof buffer, format, value, text...);
    else
        std::snprintf(buffer, sizeof buffer, format, static_cast<int>(value), text...);
    return buffer;
}
#pragma GCC diagnostic pop

} // namespace

string FormatString(const char* format, long value)
{
    return Print(format, value);
}

string FormatString(const char* format, long value, const char* text)
{
    return Print(format, value, text);
}

string FormatEnum(long value, const char* const* names, int count)
{
    string text;
    vantrel::AppendNumber(text, static_cast<long>(static_cast<std::int32_t>(value)));
    text += " (";
    text += value >= 0 && value < count ? names[value] : "unknown";
    text += ')';
    if (text.size() > kLongest)
        text.resize(kLongest);
    return text;
}

string FormatFlags(unsigned long value, const char* const* names)
{
    string text;
    vantrel::AppendNumber(text, value & 0xFFFFFFFFUL);
    text += " (";
    const char* separator = "";
    for (unsigned long mask = 1; *names && mask; ++names, mask <<= 1) {
        if (value & mask) {
            text.append(separator).append(*names);
            separator = "|";
        }
    }
    text += ')';
    return text;
}

// clang-format off
string FormatEnum(DiscFormat value)       { return FormatNamed(value, kDiscFormats); }
string FormatEnum(DiscSizeEnum value)     { return FormatNamed(value, kDiscSizes); }
string FormatEnum(DiscVideoType value)    { return FormatNamed(value, kDiscVideoTypes); }
string FormatEnum(TVStandard value)       { return FormatNamed(value, kTVStandards); }
string FormatEnum(VideoResolution value)  { return FormatNamed(value, kVideoResolutions); }
string FormatEnum(AspectRatio value)      { return FormatNamed(value, kAspectRatios); }
string FormatEnum(AudioFormat value)      { return FormatNamed(value, kAudioFormats); }
string FormatEnum(VideoFormat value)      { return FormatNamed(value, kVideoFormats); }
string FormatEnum(SubpictureFormat value) { return FormatNamed(value, kSubpictureFormats); }
string FormatEnum(WideDisplayMode value)  { return FormatNamed(value, kWideDisplayModes); }
string FormatEnum(OverlayHighlight value) { return FormatNamed(value, kOverlayHighlights); }
string FormatEnum(TextHighlight value)    { return FormatNamed(value, kTextHighlights); }
string FormatEnum(SourceTypes value)      { return FormatNamed(value, kSourceTypes); }
string FormatEnum(_TextHandles value)     { return FormatNamed(value, kTextHandles); }

string FormatMenuFlag(unsigned long value)       { return FormatFlags(value, kMenuFlags); }
string FormatTargetType(unsigned long value)     { return FormatFlags(value, kTargetTypes); }
string FormatMenuTag(unsigned long value)        { return FormatFlags(value, kMenuTags); }
string FormatTitleTag(unsigned long value)       { return FormatFlags(value, kTitleTags); }
string FormatButtonTag(unsigned long value)      { return FormatFlags(value, kButtonTags); }
string FormatOverlayTag(unsigned long value)     { return FormatFlags(value, kOverlayTags); }
string FormatTextTag(unsigned long value)        { return FormatFlags(value, kTextTags); }
string FormatTextJustify(unsigned long value)    { return FormatFlags(value, kTextJustifies); }
string FormatProjectOptions(unsigned long value) { return FormatFlags(value, kProjectOptions); }
// clang-format on

long GetPropValue(const char* text)
{
    return text ? vantrel::ParseLong(text) : 0;
}

long ReadHex(string text)
{
    constexpr string_view prefix = "0x";
    unsigned long value = ~0UL;
    if (text.starts_with(prefix))
        (void)vantrel::ParseHex(string_view(text).substr(prefix.size()), &value); // no digit: -1
    return static_cast<long>(value);
}
