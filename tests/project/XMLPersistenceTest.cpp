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

/// A node that asks for a name that no element can have.
class MisnamedNode : public CDSList
{
public:
    MisnamedNode() : CDSList(eNodeTitles) {}
    string GetObjectTagName() override { return "a b"; }
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
        EXPECT_EQ(FindEntry(arCmdTags[code])->nodeType, eNodeCommand);
    XMLPersistEntry* entry = FindEntry(eNodeTitle); // callers hold it so, and names as strings
    const string name = arCmdTags[2];
    EXPECT_EQ(entry->strElement + name, "TitlePlayMenu");
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

TEST(Loader, ReadsEveryProjectElementOverTheRootButTheProductions)
{
    for (const char* text : { "<Project label='b'/>", "<File><Project label='b'/></File>",
                              "<R><Project label='a'/><x><Project label='b'/></x></R>",
                              "<R><Project label='b'/><Productions><k><Project label='kept'/></k>"
                              "</Productions></R>" })
        EXPECT_EQ(LoadedProject(text).label(), "b") << text;
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
    EXPECT_EQ(full.GetChild(1)->GetType(), eNodeEncoding);
    EXPECT_EQ(full.FinalConstruct(), status::kOk); // they are there
    EXPECT_EQ(full.GetNumChildren(), 2);
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
    MisnamedNode misnamed;
    list.InsertChild(&misnamed, 1, false);
    EXPECT_EQ(persistor.Traverse(&list, 0), status::kBadArgument);
    EXPECT_EQ(xmlChildElementCount(xml.root()), 2UL); // before anything is written
}
