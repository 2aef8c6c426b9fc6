#pragma once

/// @file
/// The positions of fixed children, for `CProjectNode::GetChild`. They are part of the model: children
/// stand in a file in this order, and parts of the library find each other by it.
/// @code
///     CProjectNode* titles = project.GetChild(vantrel::ProjectChild::Titles);
/// @endcode
namespace vantrel {

/// Of a `CDSProjectData`.
struct ProjectChild
{
    enum : int
    {
        Titles,    ///< a `CDSList` of `CDSTitle`
        Menus,     ///< a `CDSList` of `CDSMenu`
        DataFiles, ///< a `CDSList` of `CDSDataFile`
        Commands,  ///< a `CDSCommandList`
        Encoding,  ///< a `CDSEncodingParams`
    };
};

/// Of a `CDSTitle`, once it has them.
struct TitleChild
{
    enum : int
    {
        Commands, ///< a `CDSCommandList`
        Encoding, ///< a `CDSEncodingParams`
    };
};

/// Of a `CDSMenu`.
struct MenuChild
{
    enum : int
    {
        Palette,       ///< a `CPaletteNode`
        ButtonScheme1, ///< a `CButtonSchemeNode`, as the next two
        ButtonScheme2,
        ButtonScheme3,
        SPUColours, ///< a `CSPUColourNode`
        LayoutRect, ///< a `CLayoutRectNode`
        Commands,   ///< a `CDSCommandList`
        Encoding,   ///< a `CDSEncodingParams`
        Elements,   ///< a `CDSMenuElementList`
    };
};

/// Of a `CDSMenuButton`.
struct ButtonChild
{
    enum : int
    {
        Links,        ///< a `CButtonLinksNode`
        ActiveRegion, ///< a `CActiveRgnNode`
        Commands,     ///< a `CDSCommandList`
        Elements,     ///< a `CDSMenuElementList`
    };
};

} // namespace vantrel
