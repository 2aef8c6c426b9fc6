#include "core/XmlText.h"
#include "richtext/EditFormat.h"
#include "richtext/RichTextTree.h"
#include "richtext/RunCover.h"
#include "richtext/VCPTextXMLEditor.h"
#include "xml/XmlPtr.h"

#include <libxml/valid.h>

#include <algorithm>

using std::map;
using std::string;
using std::string_view;
using std::vector;
using namespace vantrel;

// The half of the editor that changes the tree.

namespace {

constexpr const char* kRemove = "TEXTED_REMOVE"; // in the place of a value: take the attribute off

constexpr std::size_t kLongestValue = 1'000'000; // a file's parser has little room for an attribute

/// A file's parser takes 256 levels. No edit puts words deeper than this, so that the tree still fits
/// at the place where it hangs in a file.
constexpr int kDeepestLevel = 200;

/// Gives a body without words an empty run for the time of an edit, so that what is put around the
/// words has something to stand around.
class RunPlace
{
public:
    explicit RunPlace(xmlNode* body) : m_run(FirstRun(body) ? nullptr : MakeRun(body)) {}
    RunPlace(const RunPlace&) = delete;
    RunPlace& operator=(const RunPlace&) = delete;
    ~RunPlace()
    {
        if (m_run)
            RemoveNode(m_run);
    }

private:
    xmlNode* m_run;
};

bool IsTooDeep(const xmlNode* body, const RunScan& scan)
{
    int level = scan.deepestRun;
    for (const xmlNode* node = body; node; node = node->parent)
        ++level;
    return level >= kDeepestLevel;
}

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

/// True for what a new text takes the place of: words, also those that readers can't see, and lines.
bool BelongsToText(const xmlNode* node)
{
    const string_view name = NameOf(node);
    return IsRun(node) || node->type == XML_CDATA_SECTION_NODE ||
           node->type == XML_ENTITY_REF_NODE ||
           (IsElement(node) && (name == WS_NODE_NAME_BREAK || name == WS_NODE_NAME_HR));
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

bool FitsFile(const map<string, string>& attributes)
{
    return std::ranges::all_of(attributes, [](const auto& entry) {
        return xmlValidateName(XmlChars(entry.first.c_str()), 0) == 0 &&
               entry.second.size() <= kLongestValue;
    });
}

Status SetAttribute(xmlNode* node, const string& name, const string& value)
{
    string store;
    string mended;
    const char* text = XmlText(value, mended);
    const xmlAttr* old = FindAttribute(node, name);
    if (old && ResolvedText(old->children, store) == text)
        return status::kOk;
    return xmlSetProp(node, XmlChars(name.c_str()), XmlChars(text)) ? status::kOk
                                                                    : status::kNullPointer;
}

} // namespace

Status CVCPTextXMLEditor::ReplaceText(const string& text)
{
    if (!IsElement(m_body))
        return status::kUnexpected;
    string mended;
    const string words{ XmlText(text.substr(std::min(text.find_first_not_of('\n'), text.size())),
                                mended) };
    if (words.size() > kLongestText)
        return status::kBadArgument;
    if (HasWords(m_body, words))
        return status::kOk;

    xmlNode* run = FirstRun(m_body);
    if (!run)
        run = MakeRun(m_body);
    if (!run)
        return status::kNullPointer;
    RemoveOtherText(m_body, run);
    if (words.empty())
        RemoveNode(run);
    else
        xmlNodeSetContent(run, XmlChars(words.c_str()));
    return status::kOk;
}

Status CVCPTextXMLEditor::PutStyle()
{
    if (!IsElement(m_body))
        return status::kUnexpected;
    Status covered;
    {
        const RunPlace place(m_body);
        const RunScan scan = ScanRuns(m_body, m_tagName, {});
        if (!scan.hasLooseRun)
            return status::kOk;
        if (IsTooDeep(m_body, scan))
            return status::kNotAvailable;
        for (xmlNode* element : scan.elements)
            Dissolve(element);
        vector<xmlNode*> made;
        covered = CoverLooseRuns(m_body, m_tagName, &made);
    }
    SettleTexts(m_body);
    return covered;
}

Status CVCPTextXMLEditor::TakeStyleOff()
{
    if (!IsElement(m_body))
        return status::kUnexpected;
    const RunScan scan = ScanRuns(m_body, m_tagName, {});
    if (scan.elements.empty())
        return status::kOk;
    for (xmlNode* element : scan.elements)
        Dissolve(element);
    SettleTexts(m_body);
    return status::kOk;
}

Status CVCPTextXMLEditor::FormatFonts(const map<string, string>& attributes)
{
    if (!IsElement(m_body))
        return status::kUnexpected;
    if (!FitsFile(attributes))
        return status::kBadArgument;
    map<string, string> removed;
    map<string, string> set;
    for (const auto& [name, value] : attributes) {
        if (value.empty() || value == kRemove)
            removed[name] = kRemove;
        else
            set[name] = value;
    }

    const RunPlace place(m_body);
    RunScan scan = ScanRuns(m_body, m_tagName, set);
    vector<xmlNode*>& changed = scan.deciding;
    if (scan.hasLooseRun && !set.empty()) {
        if (IsTooDeep(m_body, scan))
            return status::kNotAvailable;
        const Status covered = CoverLooseRuns(m_body, m_tagName, &changed);
        if (Failed(covered))
            return covered;
    }
    Status result = status::kOk;
    for (xmlNode* font : scan.elements)
        result = std::min(result, SetItemAttributes(font, removed));
    for (xmlNode* font : changed)
        result = std::min(result, SetItemAttributes(font, set));
    return result;
}

Status CVCPTextXMLEditor::ParseFrameList(_xmlNode*& node, const string& format)
{
    string tag;
    string text;
    map<string, string> attributes;
    if (Failed(ParseFormatString(format, tag, text, attributes, true)))
        return status::kOk; // asks for nothing
    if (!IsElement(node))
        return status::kUnexpected;
    if (tag != WS_NODE_NAME_PARA || m_operation != "f")
        return status::kNothingDone;
    if (!FitsFile(attributes))
        return status::kBadArgument;

    const RunPlace place(node);
    RunScan scan = ScanRuns(node, tag, attributes);
    if (scan.hasLooseRun) {
        if (IsTooDeep(node, scan))
            return status::kNotAvailable;
        const Status covered = CoverLooseRuns(node, tag, &scan.elements);
        if (Failed(covered))
            return covered;
    }
    Status result = status::kOk;
    for (xmlNode* paragraph : scan.elements)
        result = std::min(result, EditFrame(paragraph, format));
    return result;
}

Status CVCPTextXMLEditor::EditFrame(_xmlNode*& node, const string& format)
{
    string tag;
    string text;
    map<string, string> attributes;
    const Status parsed = ParseFormatString(format, tag, text, attributes, false);
    if (Failed(parsed))
        return parsed;
    const auto align = attributes.find("align");
    if (align != attributes.end() && align->second == "centre")
        align->second = "center"; // the language and the file differ in this word
    return SetItemAttributes(node, attributes);
}

bool CVCPTextXMLEditor::TestOnlyChildNodeOfOpType(_xmlNode*& node, long* found)
{
    xmlNode* first = nullptr;
    int others = 0;
    for (xmlNode* child : ChildElements(node)) {
        if (NameOf(child) == m_tagName && !first)
            first = child;
        else
            ++others;
    }
    if (found)
        *found = reinterpret_cast<long>(first);
    return first && others == 0;
}

Status CVCPTextXMLEditor::InsertNode(_xmlNode* parent, string name, map<string, string>& attributes,
                                     bool before, _xmlNode*& node, _xmlNode** out)
{
    if (!IsElement(parent) || (node && node->parent != parent) ||
        xmlValidateNCName(XmlChars(name.c_str()), 0) != 0 || !FitsFile(attributes))
        return status::kBadArgument;
    XmlNodePtr made{ xmlNewDocNode(parent->doc, nullptr, XmlChars(name.c_str()), nullptr) };
    if (!made)
        return status::kNullPointer;
    xmlNode* element = made.get();
    const Status set = SetItemAttributes(element, attributes);
    if (Failed(set))
        return set;
    if (!node)
        xmlAddChild(parent, made.release());
    else if (before)
        xmlAddPrevSibling(node, made.release());
    else
        xmlAddNextSibling(node, made.release());
    if (out)
        *out = element;
    return status::kOk;
}

Status CVCPTextXMLEditor::DeleteNode(_xmlNode*& node)
{
    const xmlNode* ancestor = IsElement(node) ? node->parent : nullptr;
    while (ancestor && ancestor != m_body)
        ancestor = ancestor->parent;
    if (!ancestor)
        return status::kBadArgument;
    Dissolve(node);
    SettleTexts(m_body);
    node = m_body->children;
    return status::kOk;
}

Status CVCPTextXMLEditor::SetItemAttributes(_xmlNode*& node, map<string, string>& attributes)
{
    return attributes.empty() ? status::kOk : XMLSaveAttributes(node, attributes);
}

Status CVCPTextXMLEditor::XMLSaveAttributes(_xmlNode* node, map<string, string>& attributes)
{
    if (!IsElement(node) || !FitsFile(attributes))
        return status::kBadArgument;
    for (const auto& [name, value] : attributes) {
        if (value == kRemove) {
            (void)xmlUnsetProp(node, XmlChars(name.c_str())); // it need not be there
            continue;
        }
        const Status set = SetAttribute(node, name, value);
        if (Failed(set))
            return set;
    }
    return status::kOk;
}
