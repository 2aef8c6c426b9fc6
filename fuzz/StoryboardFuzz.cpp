// Loads whatever bytes it is given as storyboards, asks each its questions and saves it: lending and
// copying give the same file, saving again too, and files that the library wrote come back as they
// are.

#include "Fuzz.h"
#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SbdUtils.h"
#include "xml/KeptXml.h"
#include "xml/TypedElement.h"
#include "xml/XMLHelpers.h"
#include "xml/XmlFile.h"
#include "xml/XmlValue.h"

#include <optional>

using namespace vantrel;

namespace {

XmlDocPtr Parse(const std::string& bytes)
{
    return XmlDocPtr{ xmlReadMemory(bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr,
                                    XML_PARSE_NONET) };
}

std::string Save(CQZBaseSBD& sbd, bool lend)
{
    xmlDoc* doc = nullptr;
    fuzz::Require(XMLHelpers<void>::CreateDocument(&doc) == status::kOk, "a document is made");
    const XmlDocPtr owner{ doc };
    std::optional<XmlLoan> loan;
    if (lend)
        loan.emplace(doc);
    xmlNode* productions = AddElement(xmlDocGetRootElement(doc), "Productions");
    const Status saved = sbd.SaveProductionToXML(AddElement(productions, "Title0001"));
    fuzz::Require(saved == status::kOk, "can be saved");
    std::string bytes;
    fuzz::Require(SerializeXml(doc, &bytes), "can be serialised");
    return bytes;
}

void AskEverything(CQZBaseSBD& sbd)
{
    std::string text;
    (void)getSbdDuration(&sbd); // any answer is fine
    (void)getMaxSbdDuration(&sbd);
    (void)getSbdBkgndVideo(&sbd, &text);
    (void)getSbdBkgndAudio(&sbd, &text);
    (void)sbd.CalculatePanelNumber();
    for (const auto& [key, panel] : sbd.m_panels) {
        xmlNode* found = nullptr;
        (void)panel->GetMetaData("TrackStatus", &found);
        if (auto* markers = dynamic_cast<CClipObject*>(panel->m_whole)) {
            (void)markers->GenerateList(6);
            (void)markers->IsTimingDirty();
        }
    }
}

void ChangeEverything(CQZBaseSBD& sbd)
{
    (void)setSbdDuration(&sbd, 10.0); // any answer is fine
    (void)setSbdBkgndVideo(&sbd, "%CONTENT%\\a.mpg", true);
    (void)setSbdBkgndAudio(&sbd, "a.mp3");
    (void)_matchBkgndAudioDuration(&sbd);
    (void)setSbdBkgndAudio(&sbd, "");
    while (!sbd.m_panels.empty())
        (void)sbd.RemovePanel(sbd.m_panels.begin()->first);
}

/// Loads one storyboard, whose document is gone before it is asked, and gives it back as a file.
std::string LoadAndSave(XmlDocPtr doc, xmlNode* element)
{
    CQZBaseSBD sbd;
    fuzz::Require(sbd.LoadProductionFromXML(element) == status::kOk, "can be loaded");
    doc.reset();
    AskEverything(sbd);
    std::string bytes = Save(sbd, true);
    fuzz::Require(Save(sbd, false) == bytes, "lending and copying give the same bytes");
    fuzz::Require(Save(sbd, true) == bytes, "a second save gives the same bytes");
    ChangeEverything(sbd);
    (void)Save(sbd, true);
    return bytes;
}

/// The storyboard elements of a document: those of a project file, or the root of a template.
xmlNode* FirstStoryboard(xmlDoc* doc)
{
    xmlNode* root = xmlDocGetRootElement(doc);
    xmlNode* productions = FindChildElement(root, "Productions");
    xmlNode* first = productions ? NextElement(productions->children) : nullptr;
    return first ? first : root;
}

std::string LoadAndSave(const std::string& bytes)
{
    XmlDocPtr doc = Parse(bytes);
    fuzz::Require(doc != nullptr, "can be read back");
    xmlNode* element = FirstStoryboard(doc.get());
    return LoadAndSave(std::move(doc), element);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Silence();
    CMarkerDataImpl::ms_lBaseID = 300; // so that every run has the same ids
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    if (XmlDocPtr doc = Parse(bytes); doc && FirstStoryboard(doc.get())) {
        xmlNode* element = FirstStoryboard(doc.get());
        // The first file settles what the input leaves open, such as ids of its own.
        const std::string settled = LoadAndSave(LoadAndSave(std::move(doc), element));
        fuzz::Require(LoadAndSave(settled) == settled, "comes back as it was saved");
    }
    return 0;
}
