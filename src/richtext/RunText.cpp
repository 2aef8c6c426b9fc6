#include "richtext/RunText.h"

#include "core/XmlText.h"
#include "richtext/RichTextTree.h"
#include "richtext/TextAttributes.h"

#include <algorithm>
#include <string_view>

using std::string;
using std::string_view;

namespace vantrel {

namespace {

bool HasWords(const xmlNode* body, string_view words)
{
    for (const xmlNode* node = FirstRun(body); node; node = NextBelow(node, body)) {
        if (!IsRun(node))
            continue;
        if (!words.starts_with(WordsOf(node)))
            return false;
        words.remove_prefix(WordsOf(node).size());
    }
    return words.empty();
}

/// True for what a new text takes the place of: words, also those that readers can't see, and
/// lines.
bool BelongsToText(const xmlNode* node)
{
    return IsRun(node) || node->type == XML_CDATA_SECTION_NODE ||
           node->type == XML_ENTITY_REF_NODE || TagOf(node) == WS_NODE_NAME_BREAK ||
           TagOf(node) == WS_NODE_NAME_HR;
}

bool HoldsText(const xmlNode* node)
{
    for (const xmlNode* below = node; below; below = NextBelow(below, node)) {
        if (BelongsToText(below))
            return true;
    }
    return false;
}

/// Removes all that holds words of the old text, except `run` and the elements around it.
void RemoveOtherText(const xmlNode* body, const xmlNode* run)
{
    for (const xmlNode* kept = run; kept != body; kept = kept->parent) {
        for (xmlNode* node = kept->parent->children; node;) {
            xmlNode* const next = node->next;
            // indentation beside the words would become part of them
            if (node != kept && (HoldsText(node) || (kept == run && IsTextNode(node))))
                RemoveNode(node);
            node = next;
        }
    }
}

/// What of a text a file gives back: one that begins with a line feed would be taken for
/// indentation.
string FitWords(const string& text)
{
    string store;
    const string words = text.substr(std::min(text.find_first_not_of('\n'), text.size()));
    return XmlText(words, store);
}

} // namespace

Status ReplaceRuns(xmlNode* body, const string& text)
{
    const string words = FitWords(text);
    if (words.size() > kLongestText)
        return status::kBadArgument;
    if (HasWords(body, words))
        return status::kOk;

    xmlNode* run = FirstRun(body);
    if (!run)
        run = MakeRun(body);
    if (!run)
        return status::kNullPointer;
    RemoveOtherText(body, run);
    if (words.empty())
        RemoveNode(run);
    else
        xmlNodeSetContent(run, XmlChars(words.c_str()));
    return status::kOk;
}

} // namespace vantrel
