#include "disc/DSCommandList.h"

#include "core/Property.h"
#include "project/NodeForm.h"
#include "xml/KeptXml.h"
#include "xml/XmlValue.h"

#include <iterator>

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

// The attributes of a command element.
struct VANTREL_INTERNAL CDiscCommandNode::Form
{
    using Command = CDiscCommandNode;
    using Params = DiscCommandParams;

    static constexpr auto rows =
        Rows<Command>(DecimalIn<&Command::m_params, &Params::code>("code"), // cut to 32 bits
                      DecimalIn<&Command::m_params, &Params::param1>("param1"),
                      DecimalIn<&Command::m_params, &Params::param2>("param2"));
    static constexpr bool addsToMap = true;
};

/// Sub-elements "file" and "effect", in the file's order.
struct VANTREL_INTERNAL CDiscCommandNode::Kept
{
    std::vector<XmlNodePtr> elements;
};

CDiscCommandNode::CDiscCommandNode() : FormedNode(eNodeCommand, kFormOf<CDiscCommandNode, Form>)
{}

CDiscCommandNode::~CDiscCommandNode() = default;

Status CDiscCommandNode::GetCommandParams(DiscCommandParams& out) const
{
    out = m_params;
    return status::kOk;
}

Status CDiscCommandNode::SetCommandParams(const DiscCommandParams& in)
{
    m_params = in;
    return status::kOk;
}

string CDiscCommandNode::GetObjectTagName()
{
    const auto code = static_cast<std::size_t>(m_params.code); // a negative one is out of range too
    return code < std::size(arCmdTags) ? arCmdTags[code] : "";
}

Status CDiscCommandNode::ReadXML(IXMLDOMNode* node)
{
    const Status read = FormedNode::ReadXML(node);
    if (Failed(read))
        return read;
    return Guarded([&] {
        m_kept.reset();
        for (const xmlNode* child : ChildElements(node)) {
            if (!IsNamed(child, "file") && !IsNamed(child, "effect"))
                continue;
            if (!m_kept)
                m_kept = std::make_unique<Kept>();
            m_kept->elements.push_back(CopyXml(child));
        }
        return status::kOk;
    });
}

Status CDiscCommandNode::WriteXML(IXMLDOMNode* node, long native)
{
    Status written = FormedNode::WriteXML(node, native);
    if (!m_kept)
        return written;
    for (const XmlNodePtr& element : m_kept->elements) {
        if (!Failed(written))
            written = AppendXmlCopy(node, element.get());
    }
    return written;
}

struct VANTREL_INTERNAL CDSCommandList::Form
{
    static constexpr auto rows = Rows<CDSCommandList>();
    static constexpr bool addsToMap = true;
};

CDSCommandList::CDSCommandList() : FormedNode(eNodeCommands, kFormOf<CDSCommandList, Form>)
{}

CDSCommandList::~CDSCommandList() = default;
