#pragma once

#include "Facts.h"
#include "Page.h"

/// The sections of the tool's report. Each has two halves: `...Facts` asks the library and gives
/// JSON, `Show...` puts that JSON on the page.
namespace tool {

/// The whole project. `version` is the file's.
Json ProjectFacts(CDSProjectData& project, const std::string& path, unsigned long version);
void ShowProject(Page& page, const Json& project);

/// The commands of a `CDSCommandList`; null gives an empty array.
Json CommandFacts(CProjectNode* list);
/// Commands on one line.
std::string CommandText(const Json& commands);

/// A `CDSEncodingParams` with the values that apply, which are the project's where it is
/// synchronised; null gives null.
Json EncodingFacts(CProjectNode* node);
/// A set's values on one line each: video, audio, display.
void ShowEncoding(Page& page, const Json& encoding);
/// A title's or menu's set in a few words.
std::string EncodingText(const Json& encoding);

/// The time line behind a title or menu; null gives null.
Json StoryboardFacts(CQZBaseSBD* storyboard);
/// The same of a `CDSTitle` or `CDSMenu`.
template <class Node>
Json StoryboardOf(Node& node)
{
    CQZBaseSBD* storyboard = nullptr;
    (void)node.GetProduction(&storyboard); // null tells that there is none
    return StoryboardFacts(storyboard);
}
/// Below the entry of the title or menu.
void ShowStoryboard(Page& page, const Json& storyboard);

Json TitleFacts(CProjectNode* list);
void ShowTitles(Page& page, const Json& titles);

Json MenuFacts(CProjectNode* list);
void ShowMenus(Page& page, const Json& menus);

/// Texts and overlays of a `CDSMenuElementList`; null gives empty arrays.
Json TextFacts(CProjectNode* elements);
Json OverlayFacts(CProjectNode* elements);
/// What stands on `parent`, a menu or button, so many steps below the menu's details.
void ShowElements(Page& page, std::size_t depth, const Json& parent);

Json DataFileFacts(CProjectNode* list);
void ShowDataFiles(Page& page, const Json& files);

/// The array of what `facts` gives for each child of class `Node`; empty for null.
template <class Node, class Facts>
Json EachChild(CProjectNode* list, Facts facts)
{
    Json array = Json::array();
    for (int i = 0; list && i < list->GetNumChildren(); ++i) {
        if (auto* node = dynamic_cast<Node*>(list->GetChild(i)))
            array.push_back(facts(*node));
    }
    return array;
}

} // namespace tool
