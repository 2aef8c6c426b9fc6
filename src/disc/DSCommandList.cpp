#include "disc/DSCommandList.h"

#include "project/NodeForm.h"
#include "xml/KeptXml.h"
#include "xml/XmlValue.h"

#include <iterator>

using std::map;
using std::string;
using namespace vantrel;

// The attributes of a command element.
AttributeTable<CDiscCommandNode> CDiscCommandNode::Attributes()
{
    using namespace vantrel::attribute;
    using Command = CDiscCommandNode;
    using Params = DiscCommandParams;
    static constexpr auto rows =
        Rows<Command>(DecimalIn<&Command::m_params, &Params::code>("code"), // cut to 32 bits
                      DecimalIn<&Command::m_params, &Params::param1>("param1"),
                      DecimalIn<&Command::m_params, &Params::param2>("param2"));
    return rows;
}

CDiscCommandNode::CDiscCommandNode()
    : CProjectNode(eNodeCommand, kFormOf<CDiscCommandNode, &CDiscCommandNode::Attributes>)
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
    const Status read = CProjectNode::ReadXML(node);
    if (Failed(read))
        return read;
    m_kept.clear();
    for (const xmlNode* child : ChildElements(node)) {
        if (IsNamed(child, "file") || IsNamed(child, "effect"))
            m_kept.push_back(CopyXml(child));
    }
    return status::kOk;
}

Status CDiscCommandNode::WriteXML(IXMLDOMNode* node, long native)
{
    Status written = CProjectNode::WriteXML(node, native);
    for (auto kept = m_kept.begin(); kept != m_kept.end() && !Failed(written); ++kept)
        written = AppendXmlCopy(node, kept->get());
    return written;
}

Status CDiscCommandNode::FillAttributeMap(map<string, string>& attributes, bool native)
{
    Attributes().Write(*this, native, attributes);
    return status::kOk;
}

Status CDiscCommandNode::ParseAttributeMap(const map<string, string>& attributes)
{
    Attributes().Read(*this, attributes);
    return status::kOk;
}

CDSCommandList::CDSCommandList() : CProjectNode(eNodeCommands)
{}

CDSCommandList::~CDSCommandList() = default;

Status CDSCommandList::FillAttributeMap(map<string, string>&, bool)
{
    return status::kOk;
}

Status CDSCommandList::ParseAttributeMap(const map<string, string>&)
{
    return status::kOk;
}
