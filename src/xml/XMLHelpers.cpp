#include "xml/XMLHelpers.h"

#include "core/XmlText.h"
#include "xml/TypedElement.h"
#include "xml/TypedValue.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <algorithm>
#include <utility>

using std::string;
using namespace vantrel;

namespace {

Status Added(const xmlNode* element)
{
    return element ? status::kOk : status::kBadArgument;
}

template <class Kind>
Status SaveScalar(xmlNode* parent, const string& node, const string& name,
                  const typename Kind::Value& value)
{
    return Added(IsName(node.c_str()) ? AddValue<Kind>(parent, node.c_str(), value, name)
                                      : nullptr);
}

template <class Kind>
Status LoadScalar(xmlNode* parent, const string& node, const string& name,
                  typename Kind::Value* value)
{
    if (!parent || !value)
        return status::kBadArgument;
    const xmlNode* element = FindTypedElement(parent, node, name);
    return element ? Kind::Read(ElementText(element), *value) : status::kNothingDone;
}

bool NamesAttribute(const XMLHelpers<void>::Attributes::value_type& entry)
{
    return IsName(entry.first.c_str());
}

} // namespace

Status XMLHelpers<void>::SaveNode(_xmlNode* parent, string node, string name, string type,
                                  string value, _xmlNode** out)
{
    xmlNode* element = IsName(node.c_str())
                           ? AddTypedElement(parent, node.c_str(), name, type.c_str(), value)
                           : nullptr;
    if (element && out)
        *out = element;
    return Added(element);
}

Status XMLHelpers<void>::LoadNode(_xmlNode* parent, string node, string name, string* value,
                                  _xmlNode** out)
{
    if (!parent)
        return status::kBadArgument;
    xmlNode* element = FindTypedElement(parent, node, name);
    if (!element)
        return status::kNothingDone;
    const ElementText text(element);
    if (value && !std::string_view(text).empty())
        *value = text;
    if (out)
        *out = element;
    return status::kOk;
}

Status XMLHelpers<void>::SaveNode(_xmlNode* parent, string node, Attributes& attributes,
                                  _xmlNode** out)
{
    if (!parent || !IsName(node.c_str()))
        return status::kBadArgument;
    XmlNodePtr element{ xmlNewDocNode(parent->doc, nullptr, XmlChars(node.c_str()), nullptr) };
    const Status saved = SaveAttributes(element.get(), attributes);
    if (Failed(saved))
        return saved;
    xmlNode* added = xmlAddChild(parent, element.release());
    if (out)
        *out = added;
    return status::kOk;
}

Status XMLHelpers<void>::LoadNode(_xmlNode* parent, string node, Attributes& attributes,
                                  _xmlNode** out)
{
    xmlNode* element = nullptr;
    const Status found = LoadNode(parent, std::move(node), "", nullptr, &element);
    if (found != status::kOk)
        return found;
    if (out)
        *out = element;
    return LoadAttributes(element, attributes);
}

Status XMLHelpers<void>::SaveAttributes(_xmlNode* node, Attributes& attributes)
{
    if (!node || !std::ranges::all_of(attributes, NamesAttribute))
        return status::kBadArgument;
    for (const auto& [name, value] : attributes)
        xmlUnsetProp(node, XmlChars(name.c_str())); // a second one would be no XML
    for (const auto& [name, value] : attributes)
        (void)AddAttribute(node, name.c_str(), value); // fails for want of memory alone
    return status::kOk;
}

Status XMLHelpers<void>::LoadAttributes(_xmlNode* node, Attributes& attributes)
{
    if (!node)
        return status::kBadArgument;
    string store;
    for (auto& [name, value] : attributes)
        value = AttributeText(node, name, store);
    return status::kOk;
}

Status XMLHelpers<void>::SaveLongNode(_xmlNode* parent, string node, string name, long value)
{
    return SaveScalar<typed::Long>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveULongNode(_xmlNode* parent, string node, string name,
                                       unsigned long value)
{
    return SaveScalar<typed::ULong>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveDoubleNode(_xmlNode* parent, string node, string name, double value)
{
    return SaveScalar<typed::Double>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveFloatNode(_xmlNode* parent, string node, string name, float value)
{
    return SaveScalar<typed::Float>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveBoolNode(_xmlNode* parent, string node, string name, bool value)
{
    return SaveScalar<typed::Bool>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveStringNode(_xmlNode* parent, string node, string name, string value)
{
    return SaveScalar<typed::String>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveInt2Node(_xmlNode* parent, string node, string name, short value)
{
    return SaveScalar<typed::Int2>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveUInt2Node(_xmlNode* parent, string node, string name,
                                       unsigned short value)
{
    return SaveScalar<typed::UInt2>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveCOLORREFNode(_xmlNode* parent, string node, string name,
                                          unsigned long value)
{
    return SaveScalar<typed::ColorRef>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveUUIDNode(_xmlNode* parent, string node, string name, _GUID value)
{
    return SaveScalar<typed::Uuid>(parent, node, name, value);
}

Status XMLHelpers<void>::SaveBlobNode(_xmlNode* parent, string node, string name, char* data,
                                      unsigned long size)
{
    if ((!data && size > 0) || !IsName(node.c_str()))
        return status::kBadArgument;
    string text;
    typed::AppendBlob(text, data, size);
    return Added(AddTypedElement(parent, node.c_str(), name, typed::kBlobType, text));
}

Status XMLHelpers<void>::LoadLongNode(_xmlNode* parent, string node, string name, long* value)
{
    return LoadScalar<typed::Long>(parent, node, name, value);
}

Status XMLHelpers<void>::LoadULongNode(_xmlNode* parent, string node, string name,
                                       unsigned long* value)
{
    return LoadScalar<typed::ULong>(parent, node, name, value);
}

Status XMLHelpers<void>::LoadDoubleNode(_xmlNode* parent, string node, string name, double* value)
{
    return LoadScalar<typed::Double>(parent, node, name, value);
}

Status XMLHelpers<void>::LoadFloatNode(_xmlNode* parent, string node, string name, float& value)
{
    return LoadScalar<typed::Float>(parent, node, name, &value);
}

Status XMLHelpers<void>::LoadBoolNode(_xmlNode* parent, string node, string name, bool* value)
{
    return LoadScalar<typed::Bool>(parent, node, name, value);
}

Status XMLHelpers<void>::LoadStringNode(_xmlNode* parent, string node, string name, string* value)
{
    return LoadScalar<typed::String>(parent, node, name, value);
}

Status XMLHelpers<void>::LoadInt2Node(_xmlNode* parent, string node, string name, short* value)
{
    return LoadScalar<typed::Int2>(parent, node, name, value);
}

Status XMLHelpers<void>::LoadUInt2Node(_xmlNode* parent, string node, string name,
                                       unsigned short& value)
{
    return LoadScalar<typed::UInt2>(parent, node, name, &value);
}

Status XMLHelpers<void>::LoadCOLORREFNode(_xmlNode* parent, string node, string name,
                                          unsigned long& value)
{
    return LoadScalar<typed::ColorRef>(parent, node, name, &value);
}

Status XMLHelpers<void>::LoadUUIDNode(_xmlNode* parent, string node, string name, _GUID& value)
{
    return LoadScalar<typed::Uuid>(parent, node, name, &value);
}

Status XMLHelpers<void>::LoadBlobNode(_xmlNode* parent, string node, string name, char* data,
                                      unsigned long& size)
{
    if (!parent)
        return status::kBadArgument;
    const xmlNode* element = FindTypedElement(parent, node, name);
    return element ? typed::ReadBlob(ElementText(element), data, size) : status::kNothingDone;
}

Status XMLHelpers<void>::SaveD3DVECTOR3Node(_xmlNode* parent, string node, string name,
                                            D3DXVECTOR3* value)
{
    if (!value || !IsName(node.c_str()))
        return status::kBadArgument;
    xmlNode* element = AddElement(parent, node.c_str());
    if (!element)
        return status::kBadArgument;
    (void)AddAttribute(element, "Name", name); // fails for want of memory alone
    AddValue<typed::Float>(element, "x", value->x);
    AddValue<typed::Float>(element, "y", value->y);
    AddValue<typed::Float>(element, "z", value->z);
    return status::kOk;
}

Status XMLHelpers<void>::LoadD3DVECTOR3Node(_xmlNode* parent, string node, string name,
                                            D3DXVECTOR3* value)
{
    if (!parent || !value)
        return status::kBadArgument;
    xmlNode* element = FindTypedElement(parent, node, name);
    if (!element)
        return status::kFailure;
    *value = D3DXVECTOR3(0.0F, 0.0F, 0.0F);
    (void)LoadFloatNode(element, "x", "", value->x); // a missing component stays 0.0
    (void)LoadFloatNode(element, "y", "", value->y);
    (void)LoadFloatNode(element, "z", "", value->z);
    return status::kOk;
}

Status XMLHelpers<void>::AppendComment(_xmlNode* node, string text)
{
    if (!node)
        return status::kBadArgument;
    string mended;
    string comment = XmlText(text, mended);
    for (std::size_t i = comment.find("--"); i != string::npos; i = comment.find("--", i))
        comment.insert(i + 1, 1, ' ');
    if (comment.ends_with('-'))
        comment += ' ';
    xmlAddChild(node, xmlNewDocComment(node->doc, XmlChars(comment.c_str())));
    return status::kOk;
}

Status XMLHelpers<void>::CreateDocument(_xmlDoc** out)
{
    if (!out)
        return status::kBadArgument;
    if (*out)
        return status::kOk;
    XmlDocPtr doc{ xmlNewDoc(XmlChars("1.0")) };
    xmlNode* root = doc ? xmlNewDocNode(doc.get(), nullptr, XmlChars("Root"), nullptr) : nullptr;
    if (!root)
        return status::kNoMemory;
    xmlDocSetRootElement(doc.get(), root);
    (void)AddAttribute(root, "xmlns:dt", kDataTypesUri);
    *out = doc.release();
    return status::kOk;
}

Status XMLHelpers<void>::RemoveNode(_xmlNode* parent, string name)
{
    if (!parent)
        return status::kBadArgument;
    Status result = status::kNothingDone;
    xmlNode* child = NextElement(name.empty() ? nullptr : parent->children);
    while (child) {
        const XmlNodePtr found{ IsNamed(child, name) ? child : nullptr };
        child = NextElement(child->next);
        if (!found)
            continue;
        xmlUnlinkNode(found.get());
        result = status::kOk;
    }
    return result;
}
