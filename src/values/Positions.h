#pragma once

/// Where the fixed children of nodes stand, for callers of `CProjectNode::GetChild`. Handles have a
/// function for each.
namespace vantrel::position {

/// Of a `CDSProjectData`.
enum class InProject : int
{
    titles,
    menus,
    dataFiles,
    commands,
    encoding,
};

/// Of a `CDSTitle` whose children have been made.
enum class InTitle : int
{
    commands,
    encoding,
};

/// Of a `CDSMenu`.
enum class InMenu : int
{
    palette,
    buttonScheme1,
    buttonScheme2,
    buttonScheme3,
    subpictureColours,
    layoutRect,
    commands,
    encoding,
    elements,
};

/// Of a `CDSMenuButton`.
enum class InButton : int
{
    links,
    activeRegion,
    commands,
    elements,
};

} // namespace vantrel::position
