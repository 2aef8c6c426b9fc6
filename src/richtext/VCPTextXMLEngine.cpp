#include "richtext/EditFormat.h"
#include "richtext/RichTextTree.h"
#include "richtext/RunCover.h"
#include "richtext/RunText.h"
#include "richtext/VCPTextXMLEditor.h"

#include <algorithm>

using std::map;
using std::string;
using std::vector;
using namespace vantrel;

// What the edits do to the tree.

namespace {

/// A file's parser takes 256 levels. No edit puts words deeper than this, so that the tree still
/// fits at the place where it hangs in a file.
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

} // namespace

Status CVCPTextXMLEditor::ReplaceText(const string& text)
{
    return IsElement(m_body) ? ReplaceRuns(m_body, text) : status::kUnexpected;
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
        if (value.empty() || value == kRemoveAttribute)
            removed[name] = kRemoveAttribute;
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
