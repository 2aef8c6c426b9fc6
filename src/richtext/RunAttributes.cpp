#include "richtext/RunAttributes.h"

#include "core/Number.h"
#include "richtext/RichTextTree.h"
#include "xml/XmlValue.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>

using std::string;
using std::string_view;

namespace vantrel {

namespace {

/// What an element, or all elements around a run, say of it. The texts are views of the document,
/// or of the walk's own store.
struct RunAttributes
{
    string_view m_fontHeightString;
    string_view m_textColorString;
    string_view m_face;
    string_view m_align;
    std::optional<bool> m_isBold;
    std::optional<bool> m_isItalic;
    std::optional<bool> m_isUnderlined;
    unsigned long m_style = TEXT_STYLE_NOT_BOLD | TEXT_STYLE_NOT_ITALIC;
};

template <class Field>
struct AttributeRow
{
    const char* name;
    Field RunAttributes::*field;
};

constexpr AttributeRow<string_view> kFontTexts[] = {
    { "fontHeight", &RunAttributes::m_fontHeightString },
    { "color", &RunAttributes::m_textColorString },
    { "face", &RunAttributes::m_face },
};

constexpr AttributeRow<std::optional<bool>> kFontFlags[] = {
    { "isBold", &RunAttributes::m_isBold },
    { "isItalic", &RunAttributes::m_isItalic },
    { "isUnderlined", &RunAttributes::m_isUnderlined },
};

constexpr AttributeRow<string_view> kParagraphTexts[] = {
    { "align", &RunAttributes::m_align },
};

constexpr string_view RunAttributes::*kMerged[] = {
    &RunAttributes::m_face,
    &RunAttributes::m_fontHeightString,
    &RunAttributes::m_textColorString,
    &RunAttributes::m_align,
};

struct StyleGroup
{
    const char* element;
    unsigned long none;
    unsigned long all;
    unsigned long mixed;

    unsigned long Mask() const { return none | all | mixed; }
};

constexpr StyleGroup kStyles[] = {
    { WS_NODE_NAME_BOLD, TEXT_STYLE_NOT_BOLD, TEXT_STYLE_BOLD, TEXT_STYLE_BOLD_MIXED },
    { WS_NODE_NAME_ITAL, TEXT_STYLE_NOT_ITALIC, TEXT_STYLE_ITALIC, TEXT_STYLE_ITALIC_MIXED },
};

void SetGroup(unsigned long& style, const StyleGroup& group, unsigned long bit)
{
    style = (style & ~group.Mask()) | bit;
}

/// Adds what the elements outside of `inner` say: of the texts the innermost counts, of the flags
/// the outermost.
void AccumulateAttributes(RunAttributes& inner, const RunAttributes& outer)
{
    for (const auto text : kMerged) {
        if ((inner.*text).empty())
            inner.*text = outer.*text;
    }
    for (const auto& flag : kFontFlags) {
        if (outer.*flag.field)
            inner.*flag.field = outer.*flag.field;
    }
    for (const StyleGroup& group : kStyles) {
        if (outer.m_style & group.all)
            SetGroup(inner.m_style, group, group.all);
    }
}

bool IsSame(string_view a, string_view b)
{
    // runs of one element share its text, which need not be compared for each of them
    return a.size() == b.size() && (a.data() == b.data() || a == b);
}

/// Folds a run into what the runs before it have in common.
void MergeAttributes(RunAttributes& whole, const RunAttributes& run, bool first)
{
    for (const auto text : kMerged) {
        if (first || (whole.*text).empty())
            whole.*text = run.*text;
        else if (!IsSame(whole.*text, run.*text))
            whole.*text = kUndetermined;
    }
    if (first) {
        for (const auto& flag : kFontFlags)
            whole.*flag.field = run.*flag.field;
        whole.m_style = run.m_style;
        return;
    }
    for (const StyleGroup& group : kStyles) {
        if ((whole.m_style & group.Mask()) != (run.m_style & group.Mask()))
            SetGroup(whole.m_style, group, group.mixed);
    }
}

/// Walks the tree from the outside in, so that each element is looked at once.
class RunWalk
{
public:
    explicit RunWalk(const xmlNode* body) : m_bodyName(NameOf(body)) {}

    void Visit(const xmlNode* element, const RunAttributes& outer)
    {
        RunAttributes around = ReadElement(element);
        if (TagOf(element) != m_bodyName)
            AccumulateAttributes(around, outer);
        for (const xmlNode* child = element->children; child; child = child->next) {
            if (IsRun(child))
                AddRun(child, around);
            else if (IsElement(child))
                Visit(child, around);
        }
    }

    void Give(TextAttributes* out) const
    {
        out->Init();
        out->m_style = m_whole.m_style;
        out->m_fontHeightString = m_whole.m_fontHeightString;
        out->m_isBold = m_whole.m_isBold.value_or(false);
        out->m_isItalic = m_whole.m_isItalic.value_or(false);
        out->m_isUnderlined = m_whole.m_isUnderlined.value_or(false);
        out->m_textColorString = m_whole.m_textColorString;
        out->m_face = m_whole.m_face;
        out->m_align = m_whole.m_align;
        out->m_text = m_text;
    }

private:
    RunAttributes ReadElement(const xmlNode* element)
    {
        RunAttributes own;
        const string_view tag = TagOf(element);
        if (tag == WS_NODE_NAME_FONT) {
            ReadTexts(element, kFontTexts, own);
            for (const auto& flag : kFontFlags) {
                const string_view text = AttributeText(element, flag.name);
                if (!text.empty())
                    own.*flag.field = ParseLong(text) != 0;
            }
        } else if (tag == WS_NODE_NAME_PARA) {
            ReadTexts(element, kParagraphTexts, own);
        }
        for (const StyleGroup& group : kStyles) {
            if (tag == group.element)
                SetGroup(own.m_style, group, group.all);
        }
        return own;
    }

    template <std::size_t N>
    void ReadTexts(const xmlNode* element, const AttributeRow<string_view> (&rows)[N],
                   RunAttributes& own)
    {
        for (const auto& row : rows)
            own.*row.field = AttributeText(element, row.name);
    }

    string_view AttributeText(const xmlNode* element, const char* name)
    {
        const xmlAttr* attribute = FindAttribute(element, name);
        if (!attribute)
            return {};
        string store;
        const string_view text = ResolvedText(attribute->children, store);
        if (text.data() != store.data())
            return text;
        if (m_storedSize + text.size() > kLongestText)
            return {}; // entities can unfold into far more than the file holds
        m_storedSize += text.size();
        return m_stored.emplace_back(std::move(store));
    }

    void AddRun(const xmlNode* text, const RunAttributes& run)
    {
        m_text += WordsOf(text);
        MergeAttributes(m_whole, run, m_first);
        m_first = false;
    }

    string_view m_bodyName;
    string m_text;
    RunAttributes m_whole;
    bool m_first = true;
    std::deque<string> m_stored; ///< texts with entities, put together
    std::size_t m_storedSize = 0;
};

} // namespace

Status SummariseRuns(const xmlNode* body, TextAttributes* attributes)
{
    if (!body || !attributes)
        return status::kNullPointer;
    RunWalk walk(body);
    if (IsElement(body))
        walk.Visit(body, {});
    walk.Give(attributes);
    return status::kOk;
}

} // namespace vantrel
