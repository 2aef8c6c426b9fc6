#pragma once

#include "project/FormedNode.h"

#include <cstdint>
#include <memory>
#include <string>

/// The name of each command code, which is its element name too; that of code 0 is empty.
inline constexpr const char* arCmdTags[10] = {
    "",
    "PlayTitleFromChapter",
    "PlayMenu",
    "StopPlayback",
    "SetSubpictureStream",
    "Transition",
    "PlayClip",
    "PlayAllTitles",
    "PlayMenuTitles",
    "PlayNextTitle",
};

/// A command as a value.
struct DiscCommandParams
{
    std::int32_t code = 1; ///< index into `arCmdTags`
    long param1 = 0;       ///< what the parameters mean is up to the command
    long param2 = 0;
};

/// One playback instruction of the finished disc. The library carries it; it carries nothing out.
///
/// Its element is named as `arCmdTags` has it. The code alone says which command it is: an element's
/// name is not looked at on reading and follows the code on writing. A code outside the table has no
/// name, is written under that of the first command and keeps its number. A command has no ID in the
/// file.
/// @code
///     CDiscCommandNode play; // when the menu's button is pressed: title 11 from its second chapter
///     play.SetCommandParams({ .code = 1, .param1 = 11, .param2 = 2 });
///     button.GetChild(vantrel::ButtonChild::Commands)->AddChild(&play, true);
/// @endcode
class VANTREL_API CDiscCommandNode : public vantrel::FormedNode
{
public:
    CDiscCommandNode();
    ~CDiscCommandNode() override;

    vantrel::Status GetCommandParams(DiscCommandParams& out) const;
    /// The code isn't checked.
    vantrel::Status SetCommandParams(const DiscCommandParams& in);

    std::string GetObjectTagName() override;

    /// Reads the attributes, and keeps copies of the sub-elements "file" and "effect". Gives 0 also
    /// for an element without attributes.
    vantrel::Status ReadXML(IXMLDOMNode* node) override;
    /// Writes the attributes and the kept sub-elements.
    vantrel::Status WriteXML(IXMLDOMNode* node, long native) override;

private:
    struct Form;
    struct Kept;

    DiscCommandParams m_params;
    std::unique_ptr<Kept> m_kept; ///< null for the many that keep nothing
};

/// "Commands": those of a project, a title, a menu or a button, its children in order. The element has
/// no attributes.
class VANTREL_API CDSCommandList : public vantrel::FormedNode
{
public:
    CDSCommandList();
    ~CDSCommandList() override;

private:
    struct Form;
};
