#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "project/DSFileService.h"
#include "project/FormatUtils.h"
#include "storyboard/QZBaseSBD.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <string_view>
#include <unordered_map>
#include <vector>

using std::string;
using std::string_view;
using namespace vantrel;

namespace {

constexpr int kMostSharers = 16; // nodes of one ID that each get the whole of an element

/// An element of "Productions", and how many storyboards are still to be read from it.
struct ProductionElement
{
    xmlNode* element;
    int readers = 0;
};

/// The elements by name, so that no storyboard has to look for its own.
using ProductionIndex = std::unordered_map<string_view, ProductionElement>;

ProductionIndex IndexOf(const xmlNode* productions)
{
    ProductionIndex index;
    for (xmlNode* element : ChildElements(productions)) {
        if (!element->ns) // a foreign one hides nothing
            index.try_emplace(NameOf(element), ProductionElement{ element }); // the first counts
    }
    return index;
}

/// A document with a copy of `element` as its root.
XmlDocPtr CopyOf(xmlNode* element)
{
    XmlDocPtr doc{ xmlNewDoc(XmlChars("1.0")) };
    if (xmlNode* copy = doc ? xmlDocCopyNode(element, doc.get(), 1) : nullptr)
        xmlDocSetRootElement(doc.get(), copy);
    return doc;
}

/// Reading takes parts out of the element, so all readers but the last get a copy.
void ReadFrom(ProductionElement& source, CQZBaseSBD& storyboard)
{
    const XmlDocPtr copy = --source.readers > 0 ? CopyOf(source.element) : nullptr;
    xmlNode* element = copy ? xmlDocGetRootElement(copy.get()) : source.element;
    (void)storyboard.LoadProductionFromXML(element); // a bad one spoils no more than itself
}

/// Calls `act` for the titles and then for the menus whose storyboards stand in the file.
template <class Act>
void ForEachOwner(CDSProjectData& project, Act act)
{
    long titles = 0;
    long menus = 0;
    (void)project.get_TitleCount(&titles);
    (void)project.get_MenuCount(&menus);
    for (long index = 1; index <= titles; ++index) {
        CDSTitle* title = nullptr;
        if (!Failed(project.GetTitle(index, &title)) && title)
            act(*title);
    }
    for (long index = 1; index <= menus; ++index) {
        CDSMenu* menu = nullptr;
        if (!Failed(project.GetMenu(index, &menu)) && menu && !menu->IsNative())
            act(*menu);
    }
}

} // namespace

Status CDSFileService::PersistStoryboards(CDSProjectData* project, _xmlNode* productions, bool save)
{
    if (!project || !productions)
        return status::kNullPointer;
    if (save)
        WriteStoryboards(*project, productions);
    else
        ReadStoryboards(*project, productions);
    return status::kOk;
}

void CDSFileService::WriteStoryboards(CDSProjectData& project, _xmlNode* productions)
{
    ForEachOwner(project, [&](auto& node) {
        (void)PersistProductionXML(productions, GetProductionObj(&node),
                                   GetProductionNodeName(static_cast<CProjectNode*>(&node)), true);
    });
}

void CDSFileService::ReadStoryboards(CDSProjectData& project, _xmlNode* productions)
{
    ProductionIndex index = IndexOf(productions);
    std::vector<std::pair<ProductionElement*, CQZBaseSBD*>> readings;
    ForEachOwner(project, [&](auto& node) {
        const auto found = index.find(GetProductionNodeName(static_cast<CProjectNode*>(&node)));
        if (found == index.end() || found->second.readers == kMostSharers)
            return;
        (void)node.CreateProduction(); // a menu has one, and so may a title
        ++found->second.readers;
        readings.emplace_back(&found->second, GetProductionObj(&node));
    });
    for (const auto& [source, storyboard] : readings)
        ReadFrom(*source, *storyboard);
}

Status CDSFileService::PersistProductionXML(_xmlNode* productions, CQZBaseSBD* storyboard,
                                            string name, bool save)
{
    if (!productions || !storyboard)
        return status::kOk;
    if (!save) {
        (void)storyboard->LoadProductionFromXML(FindChildElement(productions, name));
        return status::kOk;
    }
    // Made outside of the document, whose dictionary has no use for thousands of names met once.
    XmlNodePtr element{ xmlNewNode(nullptr, XmlChars(name.c_str())) };
    if (element && xmlAddChild(productions, element.get()))
        (void)storyboard->SaveProductionToXML(element.release()); // told by what is in the file
    return status::kOk;
}

CQZBaseSBD* CDSFileService::GetProductionObj(CDSTitle* title)
{
    CQZBaseSBD* storyboard = nullptr;
    if (title)
        (void)title->GetProduction(&storyboard); // null without one
    return storyboard;
}

CQZBaseSBD* CDSFileService::GetProductionObj(CDSMenu* menu)
{
    CQZBaseSBD* storyboard = nullptr;
    if (menu)
        (void)menu->GetProduction(&storyboard);
    return storyboard;
}

string CDSFileService::GetProductionNodeName(void* node)
{
    const auto* owner = static_cast<const CProjectNode*>(node);
    const eNodeType type = owner ? owner->GetType() : eNodeNone;
    const char* kind = type == eNodeTitle ? "Title" : type == eNodeMenu ? "Menu" : "Unk";
    return kind + FormatString("%04ld", owner ? owner->GetID() : 0);
}
