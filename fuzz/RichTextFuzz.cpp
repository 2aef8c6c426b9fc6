// Takes bytes for the content of a rich text and for edits of it. After each edit the words are
// what they should be, asking again shows the change, doing it twice is doing it once, and a saved
// file gives the same answers.

#include "Fuzz.h"
#include "core/XmlText.h"
#include "richtext/RichTextTree.h"
#include "richtext/RunAttributes.h"
#include "richtext/VCPTextPlugInHelper.h"
#include "richtext/VCPTextXMLEditor.h"
#include "xml/DsXml.h"
#include "xml/KeptXml.h"
#include "xml/XmlFile.h"

#include <string_view>
#include <tuple>

using namespace vantrel;

namespace {

constexpr std::size_t kEdits = 3;

XmlDocPtr Parse(const std::string& text)
{
    return XmlDocPtr{ xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                    XML_PARSE_NONET) };
}

xmlNode* BodyOf(xmlNode* effect)
{
    unsigned char path[] = "plugin_data/html/body";
    return AsNode(effect)->selectSingleNode(path);
}

std::string Saved(const xmlNode* effect)
{
    const XmlDocPtr doc{ xmlNewDoc(XmlChars("1.0")) };
    xmlNode* root = xmlNewDocNode(doc.get(), nullptr, XmlChars("Text"), nullptr);
    xmlDocSetRootElement(doc.get(), root);
    (void)AppendXmlCopy(root, effect);
    std::string bytes;
    fuzz::Require(SerializeXml(doc.get(), &bytes), "can be serialised");
    return bytes;
}

TextAttributes SummaryOf(xmlNode* body)
{
    TextAttributes summary;
    (void)SummariseRuns(body, &summary); // there is a body
    (void)summary.Reconcile();
    std::string words;
    for (const xmlNode* run : AsNode(body)->selectNodes("text()"))
        words += WordsOf(run);
    fuzz::Require(words == summary.m_text, "the words are those that the tree's own query finds");
    return summary;
}

auto Answers(const TextAttributes& summary)
{
    return std::tie(summary.m_text, summary.m_style, summary.m_fontHeight,
                    summary.m_fontHeightString, summary.m_textColor, summary.m_face,
                    summary.m_align, summary.m_isBold, summary.m_isItalic, summary.m_isUnderlined);
}

std::string Mended(const std::string& text)
{
    std::string store;
    return XmlText(text, store);
}

/// One edit, and what the summary says when it shows.
class Edit
{
public:
    Edit(std::uint8_t choice, std::string_view text) : m_kind(choice % 9), m_text(text) {}

    Status Apply(xmlNode* body) const
    {
        TextAttributes attributes;
        CVCPTextXMLEditor editor(body, &attributes);
        switch (m_kind) {
        case 0:
            return editor.EditText(m_text, false);
        case 1:
            return editor.EditJustification(TEXT_JUSTIFY_CENTER);
        case 2:
            return editor.EditFont(m_text);
        case 3:
            return editor.EditFontSize(17);
        case 4:
            return editor.EditTextColor(0x12345678);
        default:
            return editor.EditStyle(StyleBit());
        }
    }

    bool ChangesWords() const { return m_kind == 0; }

    bool Shows(const TextAttributes& summary) const
    {
        const std::string mended = Mended(m_text);
        switch (m_kind) {
        case 0:
            return summary.m_text ==
                   mended.substr(std::min(mended.find_first_not_of('\n'), mended.size()));
        case 1:
            return summary.m_align == "center";
        case 2:
            return summary.m_face == (mended.empty() ? "Arial" : mended);
        case 3:
            return summary.m_fontHeight == 17;
        case 4:
            return summary.m_textColor == 0x12345678;
        default:
            return (summary.m_style & StyleBit()) != 0;
        }
    }

private:
    unsigned long StyleBit() const
    {
        constexpr unsigned long bits[] = { TEXT_STYLE_BOLD, TEXT_STYLE_NOT_BOLD, TEXT_STYLE_ITALIC,
                                           TEXT_STYLE_NOT_ITALIC };
        return bits[m_kind - 5];
    }

    int m_kind;
    std::string m_text;
};

void EditAndCheck(xmlNode* effect, const Edit& edit)
{
    xmlNode* body = BodyOf(effect);
    const TextAttributes before = SummaryOf(body);
    const Status result = edit.Apply(body);
    const TextAttributes after = SummaryOf(body);
    if (Failed(result)) {
        fuzz::Require(Answers(after) == Answers(before), "a failure changes nothing");
        return;
    }
    fuzz::Require(edit.ChangesWords() || after.m_text == before.m_text, "the words stay");
    fuzz::Require(!FirstRun(body) || edit.Shows(after), "the change shows");

    const std::string once = Saved(effect);
    fuzz::Require(edit.Apply(body) == status::kOk, "can be done twice");
    fuzz::Require(Saved(effect) == once, "done twice is done once");

    const XmlDocPtr doc = Parse(once);
    fuzz::Require(doc != nullptr, "can be read back");
    CVCPTextPlugInHelper helper;
    xmlNode* again = xmlDocGetRootElement(doc.get());
    fuzz::Require(helper.LoadXML(FindChildElement(again, "effect")) == status::kOk, "has its body");
    const TextAttributes reread = SummaryOf(BodyOf(FindChildElement(again, "effect")));
    fuzz::Require(Answers(reread) == Answers(after), "a saved file gives the same answers");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Silence();
    if (size < kEdits)
        return 0;
    const std::string content(reinterpret_cast<const char*>(data) + kEdits, size - kEdits);
    const XmlDocPtr doc = Parse("<!DOCTYPE effect [<!ENTITY e 'a&#10;'><!ENTITY f '<b>&e;</b>'>]>"
                                "<effect><plugin_data><html><body>" +
                                content + "</body></html></plugin_data></effect>");
    xmlNode* root = doc ? xmlDocGetRootElement(doc.get()) : nullptr;
    if (!root || !IsElement(BodyOf(root)))
        return 0;
    const XmlNodePtr kept = CopyXml(root);
    for (std::size_t i = 0; i < kEdits; ++i) {
        const Edit edit(data[i], std::string_view(content).substr(0, data[i] / 9));
        EditAndCheck(kept.get(), edit);
        (void)edit.Apply(BodyOf(root)); // where it was parsed, with its entities and namespaces
    }
    return 0;
}
