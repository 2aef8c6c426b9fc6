#include "storyboard/KeptContent.h"

#include "xml/KeptXml.h"
#include "xml/XmlValue.h"

#include <algorithm>

using std::string;
using std::string_view;

namespace vantrel {

namespace {

bool Contains(KeptContent::Names names, string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

} // namespace

void KeptContent::Load(const xmlNode* element, Names knownAttributes, Names knownChildren)
{
    *this = KeptContent();
    string store;
    for (const xmlAttr* attribute = element->properties; attribute; attribute = attribute->next) {
        const string_view name = Chars(attribute->name);
        if (!attribute->ns && !Contains(knownAttributes, name))
            m_attributes.emplace_back(name, ResolvedText(attribute->children, store));
    }
    bool metKnown = false;
    for (xmlNode* child = element->children; child; child = child->next) {
        const bool isKnown = IsElement(child) && Contains(knownChildren, NameOf(child));
        if (isKnown && !metKnown)
            m_knownPlace = m_children.size();
        metKnown |= isKnown;
        if (isKnown || xmlIsBlankNode(child))
            continue;
        if (XmlNodePtr copy = CopyXml(child))
            m_children.push_back(std::move(copy));
    }
}

void KeptContent::SaveAttributes(xmlNode* element) const
{
    for (const auto& [name, value] : m_attributes)
        xmlSetProp(element, XmlChars(name.c_str()), XmlChars(value.c_str()));
}

void KeptContent::SaveChildren(xmlNode* element, std::size_t from, std::size_t to) const
{
    for (std::size_t i = from; i < to; ++i)
        (void)AppendXmlCopy(element, m_children[i].get()); // fails for want of memory alone
}

} // namespace vantrel
