#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "project/DSFileService.h"
#include "storyboard/ColorObject.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/SbdUtils.h"
#include "support/NodeFixture.h"

using std::string;
using namespace vantrel;

namespace {

/// A "clip" of a storyboard's element, with an effect whose data a load takes out of the document.
string Clip(double duration)
{
    return "<panels><clip key='0' type='solid color'><baseObject><duration dt:dt='r8'>" +
           std::to_string(duration) +
           "</duration></baseObject><parentObject><effects><layer key='0'><effect><effectInfo>"
           "<data><effect><plugin_data/></effect></data></effectInfo></effect></layer></effects>"
           "</parentObject></clip></panels>";
}

string ProjectText(const string& lists, const string& productions)
{
    return "<Root xmlns:dt='urn:schemas-microsoft-com:datatypes'><Project Version='900'>" + lists +
           "</Project><Productions>" + productions + "</Productions></Root>";
}

string WrittenStoryboard(CQZBaseSBD* storyboard)
{
    const EmptyXml xml;
    if (storyboard)
        (void)storyboard->SaveProductionToXML(xml.root());
    return TextOf(xml.root());
}

} // namespace

TEST(FileStoryboards, AreNamedAfterTheirNodes)
{
    CDSMenu menu;
    CDSTitle title;
    CDSProjectData other;
    const auto name = [](CProjectNode& node, long id) {
        node.SetID(id);
        return CDSFileService().GetProductionNodeName(&node);
    };
    const IdCounterGuard guard(1);
    EXPECT_EQ(name(menu, 7), "Menu0007");
    EXPECT_EQ(name(menu, 0), "Menu0000");
    EXPECT_EQ(name(title, 12345), "Title12345");
    EXPECT_EQ(name(title, 4294967297), "Title4294967297"); // not that of another ID
    EXPECT_EQ(name(other, 1), "Unk0001");
}

TEST(FileStoryboards, StandTitlesFirstWithoutNativeMenusAndTitlesThatHaveNone)
{
    CDSProjectData project;
    const XmlText lists{ ProjectText(
        "<Titles><Title ID='1'/><Title ID='2'/></Titles><Menus><Menu ID='3' tag='4'/>"
        "<Menu ID='4' native='1'/><Menu ID='2'/></Menus>",
        "<Title0002/>") };
    EXPECT_EQ(CDSFileService().ReadProjectXML(AsNode(lists.root()), &project),
              status::kNothingDone);

    EmptyXml out;
    EXPECT_EQ(CDSFileService().PersistStoryboards(&project, out.root(), true), status::kOk);
    EXPECT_EQ(ChildNames(out.root()), "Title0002 Menu0003 Menu0002");
    EXPECT_EQ(CDSFileService().PersistStoryboards(nullptr, out.root(), true), status::kNullPointer);
    EXPECT_EQ(CDSFileService().PersistStoryboards(&project, nullptr, false), status::kNullPointer);
    EXPECT_EQ(CDSFileService().PersistProductionXML(out.root(), nullptr, "A", true), status::kOk);
    EXPECT_EQ(ChildNames(out.root()), "Title0002 Menu0003 Menu0002");
}

TEST(FileStoryboards, AreReadWholeByAllNodesOfOneId)
{
    const XmlText xml{ ProjectText("<Titles><Title ID='5'/></Titles><Menus><Menu ID='5'/>"
                                   "<Menu ID='5'/><Menu ID='6'/></Menus>",
                                   "<Title0005>" + Clip(2) + "</Title0005><Menu0005>" + Clip(3) +
                                       "</Menu0005><Menu0005/><Other/>") };
    CDSProjectData project;
    (void)CDSFileService().ReadProjectXML(AsNode(xml.root()), &project);

    CDSTitle* title = nullptr;
    (void)project.GetTitle(1, &title);
    CQZBaseSBD* const ofTitle = CDSFileService().GetProductionObj(title);
    EXPECT_EQ(getSbdDuration(ofTitle), 2.0);

    CDSMenu* menus[3] = {};
    for (int i = 0; i < 3; ++i)
        (void)project.GetMenu(i + 1, &menus[i]);
    const string first = WrittenStoryboard(CDSFileService().GetProductionObj(menus[0]));
    EXPECT_NE(first.find("<plugin_data/>"), string::npos);
    EXPECT_EQ(WrittenStoryboard(CDSFileService().GetProductionObj(menus[1])), first);
    EXPECT_EQ(getSbdDuration(CDSFileService().GetProductionObj(menus[2])), 0.0);
}

TEST(FileStoryboards, OfHostileNumbersOfMenusWithOneIdStaySmall)
{
    string menus = "<Menus>";
    for (int i = 0; i < 2000; ++i)
        menus += "<Menu ID='5'/>";
    const XmlText xml{ ProjectText(menus + "</Menus>", "<Menu0005>" + Clip(3) + "</Menu0005>") };
    CDSProjectData project;
    (void)CDSFileService().ReadProjectXML(AsNode(xml.root()), &project);
    CDSMenu* menu = nullptr;
    (void)project.GetMenu(1, &menu);
    EXPECT_EQ(getSbdDuration(CDSFileService().GetProductionObj(menu)), 3.0);
    (void)project.GetMenu(2000, &menu);
    EXPECT_EQ(getSbdDuration(CDSFileService().GetProductionObj(menu)), 0.0);
}

TEST(TitleStoryboard, IsMadeAndReleasedOnDemand)
{
    CDSTitle title;
    CQZBaseSBD* storyboard = nullptr;
    EXPECT_EQ(title.GetProduction(nullptr), status::kNullPointer);
    EXPECT_EQ(title.GetProduction(&storyboard), status::kNothingDone);
    EXPECT_EQ(title.ReleaseProduction(), status::kNothingDone);
    EXPECT_EQ(title.CreateProduction(), status::kOk);
    EXPECT_EQ(title.CreateProduction(), status::kNothingDone);
    EXPECT_EQ(title.GetProduction(&storyboard), status::kOk);
    EXPECT_EQ(title.FinalRelease(), status::kOk);
    EXPECT_EQ(title.GetProduction(&storyboard), status::kNothingDone);
    EXPECT_EQ(storyboard, nullptr);
}
