#include "disc/DSCommandList.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "project/DSList.h"
#include "project/XMLPersistTable.h"
#include "project/XMLPersistor.h"
#include "project/XMLProjectLoader.h"
#include "support/NodeFixture.h"

#include <string>

using std::string;
using namespace vantrel;

namespace {

/// Loads the elements into a project, and hands out its lists.
struct LoadedProject
{
    explicit LoadedProject(const char* text)
    {
        const XmlText xml{ text };
        EXPECT_EQ(project.LoadXML(AsNode(xml.root())), status::kOk);
    }
    CProjectNode* titles() { return project.GetChild(0); }
    CDSTitle* title(int i) { return dynamic_cast<CDSTitle*>(titles()->GetChild(i)); }
    string label()
    {
        string label;
        EXPECT_EQ(project.get_Label(&label), status::kOk);
        return label;
    }

    CDSProjectData project;
};

/// A node without a row of its own.
class NamelessNode : public CDSList
{
public:
    NamelessNode() : CDSList(eNodeNone) {}
};

/// A command that can't be read, and one that can't be written.
class BrokenCommand : public CDiscCommandNode
{
public:
    Status ParseAttributeMap(const std::map<string, string>&) override { return status::kFailure; }
    Status FillAttributeMap(std::map<string, string>&, bool) override { return status::kFailure; }
};

} // namespace

TEST(PersistTable, FirstRowOfATypeAndExactNames)
{
    EXPECT_EQ(FindEntry(eNodeButtonScheme)->strElement, "ButtonScheme1");
    EXPECT_EQ(FindEntry(eNodeCommand)->strElement, "PlayTitleFromChapter");
    EXPECT_EQ(FindEntry(eNodeNone), nullptr);
    for (const XMLPersistEntry& row : xmlPersistTable)
        EXPECT_EQ(FindEntry(row.strElement), &row) << row.strElement;
    for (const char* name : { "text", "Root", "TEXT", "", "Titles ", "Zzz" })
        EXPECT_EQ(FindEntry(name), nullptr) << name;
    for (std::size_t code = 1; code < std::size(arCmdTags); ++code)
        EXPECT_EQ(FindEntry(string(arCmdTags[code]))->nodeType, eNodeCommand);
}

TEST(Loader, FillsTheTreeAndRaisesTheIdCounter)
{
    const IdCounterGuard guard(7);
    LoadedProject loaded(
        "<R><Project label='x'><Titles NumItems='9'><Title ID='40'/><Title ID='7'/>"
        "<Title ID='12'/></Titles></Project></R>");
    ASSERT_EQ(loaded.titles()->GetNumChildren(), 3);
    EXPECT_EQ(loaded.title(0)->GetID(), 40);
    EXPECT_EQ(loaded.title(2)->GetID(), 12);
    EXPECT_EQ(CProjectNode::GetNewID(), 41);
    EXPECT_EQ(loaded.project.GetNumChildren(), 5); // fixed ones are filled, never added
}

TEST(Loader, ASecondProjectElementReadsOverTheRoot)
{
    EXPECT_EQ(LoadedProject("<R><Project label='a'/><x><Project label='b'/></x></R>").label(), "b");
    EXPECT_EQ(LoadedProject("<Project label='c'/>").label(), "c");
}

TEST(Loader, PassesOverTheRootsProductions)
{
    EXPECT_EQ(LoadedProject("<R><Project label='a'/><Productions><k><Project label='kept'/></k>"
                            "</Productions></R>")
                  .label(),
              "a");
}

TEST(Loader, EntersElementsOnlyAndKeepsWhatNoParentTakesOutOfTheTree)
{
    LoadedProject loaded(
        "<!DOCTYPE R [<!ENTITY a '<Title ID=\"1\">&b;</Title>'><!ENTITY b '<x>&c;</x>'>"
        "<!ENTITY c 'end'>]><R><Title ID='8'/><Project><Titles>&a;<!--<Title/>--><?Title?>"
        "<unknown><Title ID='9'><Commands><PlayMenu/></Commands></Title></unknown></Titles>"
        "<Links/></Project></R>");
    EXPECT_EQ(loaded.titles()->GetNumChildren(), 0);
}

TEST(Loader, SkipsWhatLiesBelowANodeThatCannotBeRead)
{
    CDSList list(eNodeTitles);
    BrokenCommand root;
    CDSXMLDataLoader loader(&root);
    const XmlText xml{ "<PlayMenu code='2'><Title ID='1'/></PlayMenu>" };
    EXPECT_EQ(loader.Traverse(AsNode(xml.root()), &list), status::kNothingDone);
    EXPECT_EQ(loader.Traverse(nullptr, &list), status::kNothingDone);
    EXPECT_EQ(loader.LoadProject(AsNode(xml.root())), status::kOk);
    EXPECT_EQ(list.GetNumChildren(), 0);
}

TEST(Loader, ATitleGetsItsFixedChildrenWithTheFirstOfThem)
{
    const IdCounterGuard guard(50);
    LoadedProject loaded(
        "<Project><Titles><Title ID='1'/><Title ID='2'><Encoding videoBitrate='5'/>"
        "<Commands><PlayMenu code='2'/></Commands></Title></Titles></Project>");
    EXPECT_EQ(loaded.title(0)->GetNumChildren(), 0);
    CDSTitle& full = *loaded.title(1);
    ASSERT_EQ(full.GetNumChildren(), 2);
    EXPECT_EQ(full.GetChild(0)->GetType(), eNodeCommands);
    EXPECT_EQ(full.GetChild(0)->GetNumChildren(), 1);
    EXPECT_EQ(full.GetChild(1)->GetType(), eNodeEncoding);
    EXPECT_EQ(full.GetChild(1)->GetID(), 0);
    EXPECT_EQ(full.FinalConstruct(), status::kOk); // they are there
    EXPECT_EQ(full.GetNumChildren(), 2);
}

TEST(Persistor, NamesElementsByTheNodeAndReturnsToItsPlace)
{
    const EmptyXml xml;
    CDSTitle title;
    CDSCommandList* commands = nullptr;
    ASSERT_EQ(title.FinalConstruct(), status::kOk);
    commands = dynamic_cast<CDSCommandList*>(title.GetChild(0));
    CDiscCommandNode menu, coded;
    ASSERT_EQ(menu.SetCommandParams({ 2, 5, -1 }), status::kOk);
    ASSERT_EQ(coded.SetCommandParams({ 77, 0, 0 }), status::kOk);
    commands->AddChild(&menu, false);
    commands->AddChild(&coded, false);

    CXMLPersistor persistor(AsNode(xml.root()));
    EXPECT_EQ(persistor.Traverse(commands, 0), status::kOk);
    EXPECT_EQ(persistor.Traverse(&coded, 0), status::kOk);
    EXPECT_EQ(TextOf(xml.root()),
              R"x(<Root><Commands><PlayMenu code="2" param1="5" param2="-1"/>)x"
              R"x(<PlayTitleFromChapter code="77" param1="0" param2="0"/></Commands>)x"
              R"x(<PlayTitleFromChapter code="77" param1="0" param2="0"/></Root>)x");
}

TEST(Persistor, StopsAtTheFirstNodeThatCannotBeWritten)
{
    const EmptyXml xml;
    CDSList list(eNodeTitles);
    CDSTitle first, last;
    NamelessNode nameless;
    BrokenCommand broken;
    for (CProjectNode* child : std::initializer_list<CProjectNode*>{ &first, &nameless, &last })
        list.AddChild(child, false);

    CXMLPersistor persistor(AsNode(xml.root()));
    EXPECT_EQ(persistor.Traverse(&list, 0), status::kNullPointer);
    EXPECT_EQ(xmlChildElementCount(xml.root()->children), 1UL); // the earlier sibling stays
    EXPECT_EQ(persistor.Traverse(&broken, 0), status::kFailure);
    EXPECT_EQ(persistor.Traverse(nullptr, 0), status::kNullPointer);
    EXPECT_EQ(persistor.Traverse(&last, 0), status::kOk);
    EXPECT_EQ(xmlChildElementCount(xml.root()), 2UL); // beside the list: the place is kept
    EXPECT_EQ(CXMLPersistor().Traverse(&last, 0), status::kNullPointer);
}
