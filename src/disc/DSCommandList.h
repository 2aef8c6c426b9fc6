#pragma once

#include "project/ProjectNode.h"
#include "xml/XmlPtr.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vantrel {
template <class Node>
class AttributeTable;
}

/// The name of each command code, which is its element name too.
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
/// The code alone says which command it is: an element's name is not looked at on reading and
/// follows the code on writing. A code outside the table has no name, is written under that of the
/// first command and keeps its number. A command has no ID in the file.
class VANTREL_API CDiscCommandNode : public CProjectNode
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

    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;

private:
    static vantrel::AttributeTable<CDiscCommandNode> Attributes();

    DiscCommandParams m_params;
    std::vector<vantrel::XmlNodePtr> m_kept; ///< "file" and "effect", in the file's order
};

/// The commands of a project, a title, a menu or a button: its children, in order.
class VANTREL_API CDSCommandList : public CProjectNode
{
public:
    CDSCommandList();
    ~CDSCommandList() override;

    /// The element has no attributes.
    vantrel::Status FillAttributeMap(std::map<std::string, std::string>& attributes,
                                     bool native) override;
    vantrel::Status ParseAttributeMap(
        const std::map<std::string, std::string>& attributes) override;
};
