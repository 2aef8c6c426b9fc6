#include "disc/DSMenuText.h"

#include "core/Property.h"
#include "menu/TextRows.h"
#include "project/NodeForm.h"
#include "xml/XmlValue.h"

using std::string;
using namespace vantrel;
using namespace vantrel::attribute;

// The attributes of "Text".
struct VANTREL_INTERNAL CDSMenuText::Form
{
    static constexpr auto rows =
        Rows<CDSMenuText>(NodeID<CDSMenuText>("ID"), Enum<&CDSMenuText::m_highlight>("highlight"),
                          TextRows<CDSMenuText>::All());
};

CDSMenuText::CDSMenuText() : ElementNode(eNodeText, kFormOf<CDSMenuText, Form>)
{}

CDSMenuText::~CDSMenuText() = default;

// clang-format off
Status CDSMenuText::get_Highlight(TextHighlight* out) { return Give(out, m_highlight); }
Status CDSMenuText::put_Highlight(TextHighlight value) { return Take(m_highlight, value); }
Status CDSMenuText::get_Handle(TextHandles* out) { return getHandle(out); }
Status CDSMenuText::put_Handle(TextHandles value) { return setHandle(value); }
// clang-format on

Status CDSMenuText::GetEffectXML(IXMLDOMNode* node)
{
    return getEffectXML(node);
}

Status CDSMenuText::SetEffectXML(IXMLDOMNode* node)
{
    return node ? setEffectXML(node) : status::kNullPointer;
}

Status CDSMenuText::Resolve(Status (CMenuTextImpl::*get)(string*), string* out)
{
    if (!out)
        return status::kNullPointer;
    string raw;
    if ((this->*get)(&raw) != status::kOk)
        return status::kNothingDone;
    return ParseResString(std::move(raw), out) ? status::kOk : status::kNothingDone;
}

Status CDSMenuText::getString(string* out)
{
    return Resolve(&CMenuTextImpl::getString, out);
}

Status CDSMenuText::get_Font(string* out)
{
    return Resolve(&CMenuTextImpl::getFontName, out);
}

Status CDSMenuText::get_HeightString(string* out)
{
    return Resolve(&CMenuTextImpl::getFontHeightString, out);
}

Status CDSMenuText::get_Height(long* out)
{
    if (!out)
        return status::kNullPointer;
    string raw;
    string resolved;
    if (getFontHeightString(&raw) != status::kOk)
        return status::kNothingDone;
    if (raw.empty())
        return getFontHeight(out); // the text states none, and has that of its defaults
    const long height = ParseLong(ParseResString(raw, &resolved) ? resolved : raw);
    return height > 0 ? Give(out, height) : status::kNothingDone;
}

Status CDSMenuText::GetColor(unsigned long* out)
{
    (void)getColor(out); // told by the output alone
    return status::kNothingDone;
}

int CDSMenuText::NodeInserted()
{
    return 0;
}

Status CDSMenuText::ReadXML(IXMLDOMNode* node)
{
    (void)FormedNode::ReadXML(node); // the effect counts without attributes too
    if (!node)
        return status::kNullPointer;
    if (_xmlNode* effect = FindChildElement(node, "effect"))
        KeepEffectXML(effect);
    return status::kOk;
}

Status CDSMenuText::WriteXML(IXMLDOMNode* node, long native)
{
    (void)FormedNode::WriteXML(node, native); // the words are written all the same
    if (node)
        (void)WriteEffectXML(node); // there may be none
    return status::kOk;
}
