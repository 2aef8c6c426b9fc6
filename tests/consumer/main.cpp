// Touches every family of exported classes from outside, through the installed headers and the
// shared library alone: what lacks its export fails to link here.

#include <Vantrel.h>

#include "disc/DSTitle.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <string>

using namespace vantrel;

namespace {

/// Ends the program with a message when a fact doesn't hold, also in builds without `assert`.
void Require(bool holds, const char* fact)
{
    if (!holds) {
        std::fprintf(stderr, "consumer: not so: %s\n", fact);
        std::exit(1);
    }
}

void UseVersion()
{
    Require(VantrelVersionNumber == 1.0, "the version is 1.0");
    const char* text = reinterpret_cast<const char*>(VantrelVersionString);
    Require(std::strstr(text, "PROJECT:Vantrel-1\n") != nullptr, "the version's text names it");
}

void UsePaths()
{
    std::string name;
    Require(Utils::GetDirectoryAndFileName("/a/b.xml", nullptr, &name, nullptr), "a path splits");
    Require(name == "b", "the name is without directory and extension");
    std::string path = "/a/Content/b.xml";
    Utils::GetContentPath(&path);
    Require(path == "/a/Content/", "the content path ends there");
}

void UseXml()
{
    const vantrel::XmlDocPtr doc(xmlReadMemory("<a><b/></a>", 11, nullptr, nullptr, 0));
    xmlNode* root = xmlDocGetRootElement(doc.get());
    unsigned char name[] = "b";
    Require(vantrel::AsNode(root)->selectSingleNode(name) == root->children, "a node walks");
    Require(vantrel::AsElement(root)->selectSingleNode(name) == root->children, "an element too");
}

void UseFormats()
{
    Require(FormatEnum(TVStandard::NTSC) == "1 (NTSC)", "an enumeration has a text");
    Require(FormatMenuTag(5) == "5 (Main|MainTemplate)", "a bit set has a text");
    Require(FormatString("%ld", 7) == "7", "a number has a text");
    Require(GetPropValue("4 (DVD_47)") == 4 && ReadHex("0xFF") == 255, "texts are read");
    Require(FindEntry(eNodeTitle) == FindEntry("Title"), "the persist table is there");
    Require(xmlPersistTable[0].strElement == "Project", "its rows too");
}

/// An application's own node and visitor.
class Note : public CProjectNode
{
public:
    Note() : CProjectNode(eNodeNone) {}
    Status FillAttributeMap(std::map<std::string, std::string>& attributes, bool) override
    {
        attributes["text"] = "hello";
        return status::kOk;
    }
    Status ParseAttributeMap(const std::map<std::string, std::string>&) override
    {
        return status::kOk;
    }
    std::string GetObjectTagName() override { return "Note"; }
};

class Counter : public CVisitor
{
public:
    int count = 0;
    Status Visit(CProjectNode*, IXMLDOMNode*, long) override
    {
        ++count;
        return status::kOk;
    }
};

void UseTree()
{
    CDSList list(eNodeTitles);
    Note note;
    list.AddChild(&note, true);
    Require(note.GetID() != 0 && CProjectNode::sm_dwNextID > 1, "IDs are handed out");

    Counter counter;
    counter.Traverse(&list, 0);
    Require(counter.count == 2, "a visitor walks");

    const vantrel::XmlDocPtr doc(xmlReadMemory("<Root/>", 7, nullptr, nullptr, 0));
    IXMLDOMNode* root = vantrel::AsNode(xmlDocGetRootElement(doc.get()));
    Require(CXMLPersistor(root).Traverse(&list, 0) == status::kOk, "a tree is written");
    Require(CDSXMLDataLoader(&list).LoadProject(root) == status::kOk, "and read");
}

void UseMenuParts()
{
    CPaletteNode palette;
    RGBEntry colours[16];
    Require(!Failed(palette.SetPalette(colours)), "a palette takes colours");
    CButtonSchemeNode scheme("ButtonScheme1");
    Require(!Failed(scheme.SetColourInfo({}, {})), "a scheme takes colours");
    CSPUColourNode subpicture;
    Require(!Failed(subpicture.SetColourInfo({})), "a subpicture too");
    CLayoutRectNode layoutRect;
    FloatRect rect;
    Require(!Failed(layoutRect.GetLayoutRect(&rect)), "a layout has a rectangle");
    Require(CDSLayout().GetNumberOfLines() == 2, "and two lines");
}

void UseStoryboard()
{
    CQZBaseSBD storyboard;
    storyboard.NewProduction();
    CClipObject* clip = storyboard.AddClipPanel(0);
    clip->m_duration = 5.0;
    storyboard.AddColorPanel(2)->m_duration = 2.0;
    storyboard.AddTransition(1)->m_duration = 1.0;
    Require(getSbdDuration(&storyboard) == 6.0, "a time line has a duration");
    clip->AddEffect(1, {});
    clip->AddMotion(1, {})->AddAudio();
    clip->MarkerAdd(1.0, {}, 0, {});
    Require(clip->m_layers.size() == 1 && clip->m_markers.size() == 1, "panels carry objects");

    const vantrel::XmlDocPtr doc(xmlReadMemory("<a/>", 4, nullptr, nullptr, 0));
    xmlNode* root = xmlDocGetRootElement(doc.get());
    Require(storyboard.SaveProductionToXML(root) == status::kOk, "a storyboard is written");
    Require(storyboard.LoadProductionFromXML(root) == status::kOk, "and read");
    std::string version;
    XMLHelpers<void>::LoadStringNode(root, "version", "", &version);
    Require(version == "9.0", "typed elements are read");
}

void UseTransform()
{
    CVCPTransformImpl transform;
    transform.SetDuration(4.0);
    D3DXMATRIX world;
    Require(transform.FrameMove(1.0, 0) == status::kOk &&
                transform.GetWorldMatrix(&world) == status::kOk,
            "a transform is evaluated");
    Require(!CQZEffect().exists(), "a handle has no target at first");
}

void UseElements()
{
    CDSMenu menu;
    CDSMenuButton button;
    CDSMenuOverlay overlay;
    CDSMenuText text;
    menu.GetChild(8)->AddChild(&button, true);
    for (CProjectNode* element : std::initializer_list<CProjectNode*>{ &overlay, &text })
        button.GetChild(3)->AddChild(element, true);
    FloatPoint corners[4];
    Require(overlay.GetBoundingBox(corners) == status::kOk && corners[0].x == -0.5F,
            "an overlay has corners");
    Require(menu.put_DefaultButton(button.GetID()) == status::kOk, "a menu knows its buttons");
    std::string words;
    Require(text.getString(&words) == status::kNothingDone, "a text without words has none");
    FPoint point(1.0F, 2.0F);
    Require(CMenuOverlayImpl(nullptr).setSize(point.x, point.y) == status::kOk, "parts are there");
    CVCPTextPlugInHelper helper;
    Require(helper.GetTextString(&words) == status::kNothingDone, "and the helper of texts");
}

/// Builds a project, saves it as `path` and loads it again.
void UseProject(const std::string& path)
{
    CDSProjectData project;
    CDSTitle title;
    CDSDataFile file;
    CDiscCommandNode command;
    Require(title.FinalConstruct() == status::kOk, "a title gets its children");
    title.put_Label("North");
    project.GetChild(0)->AddChild(&title, true);
    project.GetChild(2)->AddChild(&file, true);
    project.GetChild(3)->AddChild(&command, true);
    auto* encoding = dynamic_cast<CDSEncodingParams*>(project.GetChild(4));
    Require(encoding && encoding->put_VideoBitrate(6000000) == status::kOk, "encoding is set");
    Require(dynamic_cast<CDSCommandList*>(project.GetChild(3)) != nullptr, "types are known");

    CDSFileService service;
    Require(service.SaveProject(path, &project) == status::kOk, "a project is saved");
    CDSProjectData copy;
    Require(service.LoadProject(path.c_str(), &copy) == status::kOk, "and loaded");
    std::string label;
    auto* loaded = dynamic_cast<CDSTitle*>(copy.GetChild(0)->GetChild(0));
    Require(loaded && loaded->get_Label(&label) == status::kOk && label == "North", "whole");
}

/// The same by handles, which need no symbol of their own.
void UseValues(const std::string& path)
{
    OwnedProject disc("Disc");
    disc.addTitle("North").makeStoryboard().addClip("north.mpg", 0.0, 5.0);
    disc.addMenu("Main").addButton("Play").addText("Play it");
    Require(bool(Save(disc.view(), path)), "handles are saved");
    const auto loaded = Load(path);
    Require(loaded->titles().find("North").duration() == 5.0, "and loaded");
    const Button button = loaded->menus().front().buttons().find("Play");
    Require(button.texts().front().words() == "Play it", "whole");
    Require(button.object() && Button(button.object()) == button, "and lead to the classes");
}

} // namespace

int main(int, char** argv)
{
    UseVersion();
    UsePaths();
    UseXml();
    UseFormats();
    UseTree();
    UseMenuParts();
    UseStoryboard();
    UseTransform();
    UseElements();
    UseProject(std::string(argv[0]) + ".xml");
    UseValues(std::string(argv[0]) + ".xml");
    std::puts("consumer: all families answer");
}
