#pragma once

#include <cstdint>

/// @file
/// The enumerations of the disc model. A number is the index into the names that `FormatEnum` writes
/// to a file, and it alone is read back, so a field can hold a number outside its enumeration when a
/// file brought one. Enumerators are named after those names, with "_" for what no identifier can
/// hold; `NotSet` is the number of the empty name.

/// The target format of a disc.
enum class DiscFormat : std::int32_t
{
    NotSet,
    DVD_Video,
    DVD_plusVR,
    DVD_dashVR,
    DVD_Video_CD,
    VCD,
    SVCD,
    BluRay_BDMV,
    BluRay_BDAV,
    HDDVD,
    HDDVD_VR,
    AVCHD,
};

/// The medium that a disc is planned for.
enum class DiscSizeEnum : std::int32_t
{
    NotSet,
    CD_650,
    CD_700,
    DVD_14,
    DVD_47,
    DVD_85,
    HDDVD_15,
    HDDVD_30,
    BluRay_25,
    BluRay_50,
};

/// How many pictures an eye gets.
enum class DiscVideoType : std::int32_t
{
    NotSet,
    Normal_2D,
    Anaglyph_3D,
    RealD_3D,
};

/// The television standard.
enum class TVStandard : std::int32_t
{
    NotSet,
    NTSC,
    PA,
};

/// The picture size that video is encoded with.
enum class VideoResolution : std::int32_t
{
    NotSet,
    Full_D1,
    Cropped_D1,
    Half_D1,
    Quarter_D1,
    SVCD,
    HD_480i,
    HD_480p,
    HD_720p,
    HD_1080i_960,
    HD_1080p_960,
    HD_1080i_1280,
    HD_1080i_1440,
    HD_1080p_1440,
    HD_1080i_1920,
    HD_1080p_1920,
};

/// The shape of the picture.
enum class AspectRatio : std::int32_t
{
    None,
    _4x3,
    _16x9,
};

/// How audio is encoded.
enum class AudioFormat : std::int32_t
{
    NotSet,
    LPCM,
    MPEG_1,
    AC_3,
    DD_Plus,
    DL_MLP,
    DTS,
    DTS_HD,
};

/// How video is encoded; unlike the others it has no value for nothing set.
enum class VideoFormat : std::int32_t
{
    MPEG_2,
    AVC_H_264,
    VC_1,
    MPEG_1,
};

/// How subpictures are encoded.
enum class SubpictureFormat : std::int32_t
{
    NotSet,
    RLE,
    RLE_8Bit,
};

/// How a wide picture is shown on a narrow screen.
enum class WideDisplayMode : std::int32_t
{
    NotSet,
    Letterbox,
    PanAndScan,
    Both,
};

/// What of an overlay lights up with its button.
enum class OverlayHighlight : std::int32_t
{
    None,
    Extent,
    Source,
};

/// What of a text lights up with its button.
enum class TextHighlight : std::int32_t
{
    None,
    Extent,
    Box,
    Underline,
    Outline,
};

/// Where an overlay's picture comes from.
enum class SourceTypes : std::int32_t
{
    None,
    File,
    BtnCmdLink,
    Title,
    AllTitles,
    AllMenuTitles,
    AllMenuChapters,
    AllTitleChapters,
    Private_Title,
    User_Defined,
};

/// The point of a text's rectangle that stands at the text's position.
enum class _TextHandles : std::int32_t
{
    NotSet,
    TopLeft,
    TopMiddle,
    TopRight,
    MiddleLeft,
    Center,
    MiddleRight,
    BottomLeft,
    BottomMiddle,
    BottomRight,
};
using TextHandles = _TextHandles;

/// What a menu is for, one bit each; a menu's tag may have several.
enum class MenuTypes : std::int32_t
{
    Main = 1,
    Chapter = 2,
    MainTemplate = 4,
    ChapterTemplate = 8,
    Transition = 16,
};

namespace vantrel {

/// Bits of a menu's tag: a menu that the disc shows, and one that others are made from. A menu with
/// both is one that the disc shows.
inline constexpr unsigned long kOrdinaryMenu = 3;
inline constexpr unsigned long kTemplateMenu = 12;

} // namespace vantrel
