#pragma once

#include "xml/XmlValue.h"

#include <libxml/tree.h>

#include <map>
#include <string>
#include <string_view>

/// The tree of a rich text: "p", "font", "b" and "i" elements below a "body", in any order and at
/// any depth, with the words in text nodes. A run is a text node of words. How a run looks is said
/// by the elements around it, up to the nearest one with the body's name: a body in a body begins
/// anew.
namespace vantrel {

/// The longest text node that libxml2 reads back from a file.
inline constexpr std::size_t kLongestText = 10'000'000;

/// In the place of an attribute's value: the attribute is to be taken off.
inline constexpr const char* kRemoveAttribute = "TEXTED_REMOVE";

/// True when a file can hold these attributes and give them back.
bool FitsFile(const std::map<std::string, std::string>& attributes);

/// The name of a rich text element; empty for anything else. A name with a prefix is none of rich
/// text, here as in a kept copy, where the prefix has become part of the name.
inline std::string_view TagOf(const xmlNode* node)
{
    return IsElement(node) && !(node->ns && node->ns->prefix) ? NameOf(node) : std::string_view();
}

inline bool IsTextNode(const xmlNode* node)
{
    return node && node->type == XML_TEXT_NODE;
}

inline std::string_view WordsOf(const xmlNode* text)
{
    return text->content ? Chars(text->content) : "";
}

/// True for a text node that begins with a line feed, as the white space between the elements of an
/// indented file does. Readers pass it over.
inline bool IsIndentation(const xmlNode* node)
{
    return IsTextNode(node) && node->content && node->content[0] == '\n';
}

/// True for exactly the nodes that `IXMLDOMNode` finds by "text()".
inline bool IsRun(const xmlNode* node)
{
    return IsTextNode(node) && !IsIndentation(node);
}

/// The node behind `node` in document order below `top`, or null. Only elements are entered.
xmlNode* NextBelow(const xmlNode* node, const xmlNode* top);

/// The first run below `element`, or null.
xmlNode* FirstRun(const xmlNode* element);

/// A new empty run in `body` where its first words would stand: in the innermost of the rich text
/// elements that come first. Null when memory fails.
xmlNode* MakeRun(xmlNode* body);

/// Puts a new element around the siblings `first` to `last`. Null when memory fails.
xmlNode* Enclose(xmlNode* first, xmlNode* last, const char* name);

/// Takes an element out and leaves its content in its place. One with attributes or namespaces of
/// its own keeps them, under a name that says nothing. Texts may come to stand side by side: call
/// `SettleTexts` afterwards.
void Dissolve(xmlNode* element);

/// The same with its attributes, whatever they are. What it declares goes on in what needs it.
void Unwrap(xmlNode* element);

/// Brings the texts below `element` into the form in which a file gives them back, where neighbours
/// are one text: joins runs, and keeps a run apart from indentation, which would become words
/// otherwise, or make the words indentation.
void SettleTexts(xmlNode* element);

/// Takes a node with all below it out of its tree and releases it.
void RemoveNode(xmlNode* node);

} // namespace vantrel
