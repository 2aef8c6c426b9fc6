#include "xml/TypedElement.h"

#include "core/XmlText.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

using std::string;
using std::string_view;

namespace vantrel {

xmlNode* AddElement(xmlNode* parent, const char* name)
{
    if (!parent || !*name)
        return nullptr;
    XmlNodePtr element{ xmlNewDocNode(parent->doc, nullptr, XmlChars(name), nullptr) };
    return element && xmlAddChild(parent, element.get()) ? element.release() : nullptr;
}

xmlNode* AddTypedElement(xmlNode* parent, const char* element, string_view name, const char* type,
                         const string& text)
{
    xmlNode* added = AddElement(parent, element);
    if (!added)
        return nullptr;
    if (!name.empty())
        (void)AddAttribute(added, "Name", string(name));
    if (!*type)
        return added;
    (void)AddAttribute(added, "dt:dt", type); // fails for want of memory alone
    string mended;
    if (XmlNodePtr value = NewText(added->doc, XmlText(text, mended))) {
        value->parent = added;
        added->children = added->last = value.release(); // the first child needs no merging
    }
    return added;
}

xmlNode* FindTypedElement(xmlNode* parent, string_view path, string_view name)
{
    if (!parent)
        return nullptr;
    if (name.empty())
        return FindElementAt(parent, path);

    const std::size_t slash = path.rfind('/');
    const bool nested = slash != string_view::npos;
    string store;
    for (xmlNode* child :
         ChildElements(nested ? FindElementAt(parent, path.substr(0, slash)) : parent)) {
        if (IsNamed(child, path.substr(nested ? slash + 1 : 0)) &&
            AttributeText(child, "Name", store) == name)
            return child;
    }
    return nullptr;
}

string_view AttributeText(const xmlNode* element, string_view name, string& store)
{
    const xmlAttr* attribute = FindAttribute(element, name);
    return attribute ? ResolvedText(attribute->children, store) : "";
}

} // namespace vantrel
