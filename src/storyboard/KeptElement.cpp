#include "storyboard/KeptElement.h"

#include "xml/KeptXml.h"
#include "xml/TypedElement.h"

#include <map>
#include <string>
#include <string_view>
#include <vector>

using std::string;
using std::string_view;

namespace vantrel {

namespace {

constexpr const char* kId = "Id"; // the storyboard gives it, whatever a file says

string_view Text(const xmlNode* node)
{
    return node->content ? Chars(node->content) : "";
}

/// `node` or the first behind it that says something: a text of no length never does, white space
/// only in a value.
const xmlNode* NextSaying(const xmlNode* node, bool inValue)
{
    while (node && node->type == XML_TEXT_NODE &&
           (inValue ? Text(node).empty() : xmlIsBlankNode(node) != 0))
        node = node->next;
    return node;
}

bool HasSameAttributes(const xmlNode* a, const xmlNode* b)
{
    string storeA;
    string storeB;
    const xmlAttr* one = a->properties;
    const xmlAttr* other = b->properties;
    for (; one && other; one = one->next, other = other->next) {
        if (string_view(Chars(one->name)) != Chars(other->name) ||
            ResolvedText(one->children, storeA) != ResolvedText(other->children, storeB))
            return false;
    }
    return !one && !other;
}

bool IsSame(const xmlNode* a, const xmlNode* b)
{
    if (a->type != b->type)
        return false;
    if (!IsElement(a))
        return Text(a) == Text(b);
    if (NameOf(a) != NameOf(b) || !HasSameAttributes(a, b))
        return false;
    if (NameOf(a) == kId)
        return true;
    // Between elements white space says nothing; a value's own text is never skipped.
    const bool isValue = !NextElement(a->children) && !NextElement(b->children);
    const auto next = [isValue](const xmlNode* node) { return NextSaying(node, isValue); };
    const xmlNode* one = next(a->children);
    const xmlNode* other = next(b->children);
    for (; one && other; one = next(one->next), other = next(other->next)) {
        if (!IsSame(one, other))
            return false;
    }
    return !one && !other;
}

/// The child elements by name, those of one name in order.
using Children = std::map<string_view, std::vector<xmlNode*>>;

Children ChildrenOf(const xmlNode* parent)
{
    Children children;
    for (xmlNode* child : ChildElements(parent)) {
        if (!child->ns)
            children[NameOf(child)].push_back(child);
    }
    return children;
}

xmlNode* At(const Children& children, string_view name, std::size_t index)
{
    const auto found = children.find(name);
    return found != children.end() && index < found->second.size() ? found->second[index] : nullptr;
}

void Remove(xmlNode* node)
{
    xmlUnlinkNode(node);
    const XmlNodePtr released{ node };
}

void ReplaceText(xmlNode* element, const xmlNode* source)
{
    for (xmlNode* child = element->children; child;) {
        xmlNode* const next = child->next;
        if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE)
            Remove(child);
        child = next;
    }
    const string text{ string_view(ElementText(source)) };
    if (XmlNodePtr node = NewText(element->doc, text.c_str()))
        xmlAddChild(element, node.release());
}

void Merge(xmlNode* target, const xmlNode* was, const xmlNode* now)
{
    const Children before = ChildrenOf(was);
    const Children after = ChildrenOf(now);
    const Children present = ChildrenOf(target);
    for (const auto& [name, elements] : after) {
        for (std::size_t i = 0; i < elements.size(); ++i) {
            const xmlNode* former = At(before, name, i);
            xmlNode* const place = At(present, name, i);
            const bool isUnchanged = former && IsSame(former, elements[i]);
            if (place && (NextElement(elements[i]->children) || NextElement(place->children)))
                Merge(place, former, elements[i]); // the id below may be another
            else if (place && (name == kId || !isUnchanged))
                ReplaceText(place, elements[i]);
            else if (!place && name != kId && !isUnchanged)
                (void)AppendXmlCopy(target, elements[i]); // fails for want of memory alone
        }
    }
    for (const auto& [name, elements] : before) {
        for (std::size_t i = 0; i < elements.size(); ++i) {
            xmlNode* const place = At(present, name, i);
            if (place && !At(after, name, i))
                Remove(place);
        }
    }
}

} // namespace

KeptXmlPtr KeepWhole(const xmlNode* element)
{
    KeptXmlPtr kept{ CopyXml(element).release() };
    for (const char* name : { "key", "type" }) {
        if (IsElement(kept.get()))
            (void)xmlUnsetProp(kept.get(), XmlChars(name)); // its place tells
    }
    return kept;
}

KeptXmlPtr KeepForeign(const xmlNode* element, const xmlNode* written)
{
    KeptXmlPtr kept = KeepWhole(element);
    if (!kept || !written)
        return kept;
    const XmlNodePtr plain{ xmlCopyNode(const_cast<xmlNode*>(written), 1) };
    if (plain)
        xmlNodeSetName(plain.get(), kept->name);
    return plain && IsSame(kept.get(), plain.get()) ? nullptr : std::move(kept);
}

void SaveOver(xmlNode* element, const xmlNode* kept, const xmlNode* was, const xmlNode* now)
{
    const XmlNodePtr copy = CopyXml(kept);
    if (!element || !copy)
        return;
    string store;
    for (const xmlAttr* attribute = copy->properties; attribute; attribute = attribute->next)
        (void)AddAttribute(element, Chars(attribute->name),
                           string(ResolvedText(attribute->children, store)));
    while (xmlNode* child = copy->children) {
        xmlUnlinkNode(child);
        xmlAddChild(element, child);
    }
    Merge(element, was, now);
    DropEmptyTexts(element);
}

void DropEmptyTexts(xmlNode* element)
{
    const xmlDoc* const doc = element->doc; // what is lent to it belongs to others
    for (xmlNode* node = element->children; node;) {
        xmlNode* const child = node;
        node = node->next;
        if (child->type == XML_TEXT_NODE && Text(child).empty())
            Remove(child);
        else if (IsElement(child) && child->doc == doc)
            DropEmptyTexts(child);
    }
}

} // namespace vantrel
