#include "richtext/RichTextTree.h"

#include "richtext/TextAttributes.h"
#include "xml/XmlPtr.h"

#include <libxml/valid.h>

#include <algorithm>
#include <utility>

using std::string;
using std::string_view;

namespace vantrel {

namespace {

constexpr std::size_t kLongestValue = 1'000'000; // a file's parser has little room for an attribute

/// An element that no reader sees anything in.
constexpr const char* kNeutralName = "span";

bool IsBlank(const xmlNode* text)
{
    return WordsOf(text).find_first_not_of(" \t\r\n") == string_view::npos;
}

bool IsFormatElement(const xmlNode* node)
{
    const string_view tag = TagOf(node);
    return tag == WS_NODE_NAME_PARA || tag == WS_NODE_NAME_FONT || tag == WS_NODE_NAME_BOLD ||
           tag == WS_NODE_NAME_ITAL;
}

/// Hangs the chain `first` to `last` under `parent`, between two neighbours that may be null.
/// libxml2's own functions would merge texts, and look through the chain for it.
void Link(xmlNode* parent, xmlNode* before, xmlNode* first, xmlNode* last, xmlNode* behind)
{
    first->prev = before;
    last->next = behind;
    (before ? before->next : parent->children) = first;
    (behind ? behind->prev : parent->last) = last;
    for (xmlNode* node = first; node != behind; node = node->next)
        node->parent = parent;
}

/// Appends the texts behind `text` to it that are of its kind, as long as a file gives the sum
/// back.
void JoinFollowing(xmlNode* text)
{
    const auto fits = [&](const string& words, const xmlNode* next) {
        return IsTextNode(next) && IsIndentation(next) == IsIndentation(text) &&
               words.size() + WordsOf(next).size() <= kLongestText;
    };
    if (!IsTextNode(text->next))
        return;
    string words{ WordsOf(text) };
    const std::size_t before = words.size();
    while (fits(words, text->next)) {
        words += WordsOf(text->next);
        RemoveNode(text->next);
    }
    if (words.size() != before)
        xmlNodeSetContent(text, XmlChars(words.c_str()));
}

/// Removes the blank indentation among `first` and the texts right behind it, provided that there is
/// a run among them; gives the first that stays.
xmlNode* DropIndentation(xmlNode* first)
{
    bool hasRun = false;
    for (const xmlNode* text = first; IsTextNode(text); text = text->next)
        hasRun |= IsRun(text);
    for (xmlNode* text = first; hasRun && IsTextNode(text);) {
        xmlNode* const next = text->next;
        if (IsIndentation(text) && IsBlank(text)) {
            first = text == first ? next : first;
            RemoveNode(text);
        }
        text = next;
    }
    return first;
}

/// Settles `text` and the texts right behind it; gives the last of them.
xmlNode* SettleNeighbours(xmlNode* text)
{
    text = DropIndentation(text);
    JoinFollowing(text);
    while (IsTextNode(text->next)) {
        xmlNode* const next = text->next;
        XmlNodePtr part{ xmlNewDocNode(text->doc, nullptr, XmlChars(kNeutralName), nullptr) };
        if (part)
            xmlAddNextSibling(text, part.release());
        text = next;
        JoinFollowing(text);
    }
    return text;
}

} // namespace

bool FitsFile(const std::map<string, string>& attributes)
{
    return std::ranges::all_of(attributes, [](const auto& entry) {
        return IsName(entry.first.c_str()) && entry.second.size() <= kLongestValue;
    });
}

xmlNode* NextBelow(const xmlNode* node, const xmlNode* top)
{
    if (IsElement(node) && node->children)
        return node->children;
    for (; node != top; node = node->parent) {
        if (node->next)
            return node->next;
    }
    return nullptr;
}

xmlNode* FirstRun(const xmlNode* element)
{
    xmlNode* node = NextBelow(element, element);
    while (node && !IsRun(node))
        node = NextBelow(node, element);
    return node;
}

xmlNode* MakeRun(xmlNode* body)
{
    xmlNode* run = xmlNewDocText(body->doc, XmlChars(""));
    if (!run)
        return nullptr;
    xmlNode* place = body;
    for (xmlNode* child = NextElement(place->children); child;) {
        if (IsFormatElement(child))
            place = child;
        child = NextElement(place == child ? child->children : child->next);
    }
    Link(place, nullptr, run, run, place->children);
    return run;
}

xmlNode* Enclose(xmlNode* first, xmlNode* last, const char* name)
{
    xmlNode* element = xmlNewDocNode(first->doc, nullptr, XmlChars(name), nullptr);
    if (!element)
        return nullptr;
    xmlNode* const before = first->prev;
    xmlNode* const behind = last->next;
    Link(first->parent, before, element, element, behind);
    Link(element, nullptr, first, last, nullptr);
    return element;
}

void Dissolve(xmlNode* element)
{
    if (element->properties || element->nsDef) {
        xmlNodeSetName(element, XmlChars(kNeutralName));
        return;
    }
    Unwrap(element);
}

void Unwrap(xmlNode* element)
{
    if (element->children) {
        xmlNode* const first = std::exchange(element->children, nullptr);
        xmlNode* const last = std::exchange(element->last, nullptr);
        Link(element->parent, element->prev, first, last, element);
        for (xmlNode* child = first; child != element && element->nsDef; child = child->next) {
            if (IsElement(child) && child->doc)
                (void)xmlReconciliateNs(child->doc, child); // what was declared here goes with it
        }
    }
    RemoveNode(element);
}

void SettleTexts(xmlNode* element)
{
    for (xmlNode* node = NextBelow(element, element); node; node = NextBelow(node, element)) {
        if (IsTextNode(node))
            node = SettleNeighbours(node);
    }
}

void RemoveNode(xmlNode* node)
{
    xmlUnlinkNode(node);
    const XmlNodePtr released{ node };
}

} // namespace vantrel
