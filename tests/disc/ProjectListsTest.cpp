#include "disc/DSCommandList.h"
#include "disc/DSDataFile.h"
#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "support/NodeFixture.h"

#include <functional>
#include <memory>
#include <tuple>

using std::string;
using namespace vantrel;

namespace {

/// The children's IDs in order, "/"-separated.
string IdsIn(CProjectNode& list)
{
    string ids;
    for (int i = 0; i < list.GetNumChildren(); ++i)
        ids += (i ? "/" : "") + std::to_string(list.GetChild(i)->GetID());
    return ids;
}

template <class Node>
std::unique_ptr<Node> Made(long id)
{
    auto node = std::make_unique<Node>();
    node->SetID(id);
    return node;
}

/// Loads a project of these lists.
void Load(CDSProjectData& project, const string& lists)
{
    const XmlText xml{ "<Project Version='900'>" + lists + "</Project>" };
    EXPECT_EQ(project.LoadXML(AsNode(xml.root())), status::kOk);
}

string PathsOf(const CDSDataFile& file)
{
    string source, dest;
    (void)file.get_SourcePath(&source);
    (void)file.get_DestPath(&dest);
    return source + dest;
}

} // namespace

/// The operations that one of the three lists has, with the nodes that it holds.
struct ListCase
{
    const char* name;
    int position;
    std::function<std::unique_ptr<CProjectNode>(long id)> make;
    std::function<Status(CDSProjectData&, long, CProjectNode*)> add;
    std::function<Status(CDSProjectData&, long, CProjectNode*)> remove;
    Status (CDSProjectData::*move)(long, long);
};

template <class Node>
ListCase CaseOf(const char* name, int position, Status (CDSProjectData::*add)(long, Node*),
                Status (CDSProjectData::*remove)(long, Node*),
                Status (CDSProjectData::*move)(long, long))
{
    const auto calling = [](auto operation) {
        return [operation](CDSProjectData& project, long number, CProjectNode* node) {
            return (project.*operation)(number, static_cast<Node*>(node));
        };
    };
    return { name, position, Made<Node>, calling(add), calling(remove), move };
}

class NumberedList : public testing::TestWithParam<ListCase>
{
protected:
    /// Adds nodes of the IDs 1 to `count`, which the library owns.
    void Fill(int count)
    {
        for (long id = 1; id <= count; ++id)
            list().AdoptChild(GetParam().make(id), false);
    }
    CProjectNode& list() { return *project.GetChild(GetParam().position); }

    CDSProjectData project;
};

TEST_P(NumberedList, AddsAtAPlaceThatCountsFromOne)
{
    Fill(2);
    constexpr long least = std::numeric_limits<long>::min();
    const std::map<long, const char*> cases = { { 1, "9/1/2" },  { 2, "1/9/2" }, { 3, "1/2/9" },
                                                { 0, "1/2/9" },  { 4, "1/2" },   { -1, "1/2" },
                                                { least, "1/2" } };
    for (const auto& [index, ids] : cases) {
        const auto node = GetParam().make(9);
        const bool isPlace = index >= 0 && index <= 3;
        EXPECT_EQ(GetParam().add(project, index, node.get()),
                  isPlace ? status::kOk : status::kNoSuchObject);
        EXPECT_EQ(IdsIn(list()), ids) << index; // and the caller's node leaves it when it dies
    }
    EXPECT_EQ(GetParam().add(project, 1, nullptr), status::kNullPointer);

    const auto fresh = GetParam().make(0);
    const IdCounterGuard guard(50);
    EXPECT_EQ(GetParam().add(project, 1, fresh.get()), status::kOk);
    EXPECT_EQ(GetParam().add(project, 4, list().GetChild(1)), status::kOk); // moves what it holds
    EXPECT_EQ(IdsIn(list()), "50/2/1");
}

TEST_P(NumberedList, RemovesByNodeOrById)
{
    Fill(4);
    const auto mine = GetParam().make(9);
    EXPECT_EQ(GetParam().add(project, 0, mine.get()), status::kOk);
    CProjectNode* const first = list().GetChild(0);
    CProjectNode* const third = list().GetChild(2);

    EXPECT_EQ(GetParam().remove(project, 77, first), status::kOk); // the node decides
    EXPECT_EQ(GetParam().remove(project, 3, nullptr), status::kOk);
    EXPECT_EQ(GetParam().remove(project, 9, mine.get()), status::kOk);
    EXPECT_EQ(IdsIn(list()), "2/4");
    EXPECT_EQ(GetParam().remove(project, 3, nullptr), status::kNoSuchObject);
    EXPECT_EQ(GetParam().remove(project, 2, first), status::kNoSuchObject);
    for (CProjectNode* removed : { first, third, mine.get() })
        EXPECT_EQ(removed->GetParent(), nullptr); // detached, and alive

    for (int round = 0; round < 2; ++round) { // it may come and go
        EXPECT_EQ(GetParam().add(project, 2, third), status::kOk);
        EXPECT_EQ(IdsIn(list()), "2/3/4");
        EXPECT_EQ(GetParam().remove(project, 3, nullptr), status::kOk);
    }
    EXPECT_EQ(GetParam().add(project, 0, mine.get()), status::kOk);
    EXPECT_EQ(project._Clear(), status::kOk);
    EXPECT_EQ(list().GetNumChildren(), 0);
    EXPECT_EQ(mine->GetParent(), nullptr);
}

TEST_P(NumberedList, MovesFromPlaceToPlace)
{
    Fill(4);
    const std::tuple<long, long, const char*> moves[] = {
        { 1, 4, "2/3/4/1" }, { 4, 1, "1/2/3/4" }, { 2, 3, "1/3/2/4" }, { 3, 3, "1/3/2/4" }
    };
    for (const auto& [from, to, ids] : moves) {
        EXPECT_EQ((project.*GetParam().move)(from, to), status::kOk);
        EXPECT_EQ(IdsIn(list()), ids);
    }
    for (const long outside : { 0, 5, -1 }) {
        EXPECT_EQ((project.*GetParam().move)(outside, 1), status::kNoSuchObject);
        EXPECT_EQ((project.*GetParam().move)(1, outside), status::kNoSuchObject);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, NumberedList,
    testing::Values(CaseOf<CDSTitle>("Titles", 0, &CDSProjectData::AddTitle,
                                     &CDSProjectData::RemoveTitle, &CDSProjectData::MoveTitle),
                    CaseOf<CDSMenu>("Menus", 1, &CDSProjectData::AddMenu,
                                    &CDSProjectData::RemoveMenu, &CDSProjectData::MoveMenu),
                    CaseOf<CDSDataFile>("DataFiles", 2, &CDSProjectData::AddDataFile,
                                        &CDSProjectData::RemoveDataFile,
                                        &CDSProjectData::MoveDataFile)),
    [](const auto& row) { return row.param.name; });

TEST(ProjectLists, HandOutTitlesAndMenusByNumber)
{
    CDSProjectData project;
    CDSTitle title;
    CDSMenu menu;
    EXPECT_EQ(project.AddTitle(0, &title), status::kOk);
    EXPECT_EQ(project.InsertMenu(0, &menu), status::kOk);

    CDSTitle* gotTitle = nullptr;
    EXPECT_EQ(project.GetTitle(1, &gotTitle), status::kOk);
    EXPECT_EQ(gotTitle, &title);
    CDSMenu* gotMenu = nullptr;
    EXPECT_EQ(project.GetMenu(1, &gotMenu), status::kOk);
    EXPECT_EQ(gotMenu, &menu);
    for (const long outside : { 0L, 2L, std::numeric_limits<long>::min() }) {
        EXPECT_EQ(project.GetTitle(outside, &gotTitle), status::kOk);
        EXPECT_EQ(gotTitle, nullptr); // a title tells it so
        EXPECT_EQ(project.GetMenu(outside, &gotMenu), status::kNoSuchObject);
        EXPECT_EQ(gotMenu, &menu);
    }
    EXPECT_EQ(project.GetTitle(1, nullptr), status::kNullPointer);
    EXPECT_EQ(project.GetMenu(1, nullptr), status::kNullPointer);

    EXPECT_EQ(CDSProjectData::GetObject(project.GetChild(0), 0, &gotMenu), status::kOk);
    EXPECT_EQ(gotMenu, nullptr); // a title is no menu
}

TEST(ProjectLists, GiveATitleOrMenuOfATakenIdANewOne)
{
    CDSProjectData project;
    Load(project, "<Titles><Title ID='4'/></Titles><Menus><Menu ID='5'><Elements><Button ID='6'/>"
                  "</Elements></Menu></Menus>");
    CDSTitle title;
    CDSMenu first, second;
    const IdCounterGuard guard(20);
    title.SetID(4);
    first.SetID(6); // that of a button
    second.SetID(7);
    EXPECT_EQ(project.AddTitle(1, &title), status::kOk);
    EXPECT_EQ(project.AddMenu(0, &first), status::kOk);
    EXPECT_EQ(project.AddMenu(0, &second), status::kOk);
    EXPECT_EQ(project.AddMenu(1, &second), status::kOk); // its own is not taken
    EXPECT_EQ(IdsIn(*project.GetChild(0)), "20/4");
    EXPECT_EQ(IdsIn(*project.GetChild(1)), "7/5/21");
    EXPECT_EQ(project.RemoveMenu(5, nullptr), status::kOk); // with its button
    first.SetID(8);
    CDSMenu third;
    third.SetID(6);
    EXPECT_EQ(project.AddMenu(0, &third), status::kOk);
    EXPECT_EQ(IdsIn(*project.GetChild(1)), "7/8/6");
}

TEST(ProjectLists, FindAMenuByItsWholeTag)
{
    CDSProjectData project;
    Load(project, "<Menus><Menu tag='1'/><Menu tag='5'/><Menu tag='4'/><Menu tag='8'/></Menus>");
    CDSMenu* found = nullptr;
    EXPECT_TRUE(project.GetMainTempMenu(&found));
    EXPECT_EQ(found, project.GetChild(1)->GetChild(2));
    EXPECT_TRUE(project.GetChapTempMenu(&found));
    EXPECT_EQ(found, project.GetChild(1)->GetChild(3));
    EXPECT_FALSE(project.GetMenuAsType(MenuTypes::Transition, &found));
    EXPECT_EQ(found, project.GetChild(1)->GetChild(3));
    EXPECT_FALSE(project.GetMainTempMenu(nullptr));
}

TEST(ProjectLists, RemoveTheTemplateOfSeveralMenusWithOneId)
{
    CDSProjectData project;
    CProjectNode& menus = *project.GetChild(1);
    Load(project, "<Menus><Menu ID='7' tag='1'/><Menu ID='7' tag='4'/><Menu ID='7' tag='2'/>"
                  "<Menu ID='7' tag='8'/></Menus>");
    const auto tags = [&menus] {
        string all;
        for (int i = 0; i < menus.GetNumChildren(); ++i) {
            unsigned long tag = 0;
            (void)static_cast<CDSMenu*>(menus.GetChild(i))->get_Tag(&tag);
            all += std::to_string(tag);
        }
        return all;
    };
    for (const char* left : { "128", "12", "2", "" }) {
        EXPECT_EQ(project.RemoveMenu(7, nullptr), status::kOk);
        EXPECT_EQ(tags(), left);
    }
    EXPECT_EQ(project.RemoveMenu(7, nullptr), status::kNoSuchObject);
}

TEST(ProjectLists, CopyTheValuesOfADataFile)
{
    CDSProjectData project;
    CProjectNode& files = *project.GetChild(2);
    Load(project, "<DataFiles><File ID='1' sourcePath='a' destPath='x' tag='1'/>"
                  "<File ID='2' sourcePath='b' destPath='x' tag='2'/>"
                  "<File ID='3' sourcePath='b' destPath='y' tag='2'/></DataFiles>");

    CDSDataFile out;
    EXPECT_EQ(project.GetDataFile(3, &out), status::kOk);
    EXPECT_EQ(WrittenNode(out), R"x(<N ID="0" destPath="y" sourcePath="b" tag="2"/>)x");
    EXPECT_EQ(project.GetDataFile(1, nullptr), status::kNullPointer);
    EXPECT_EQ(project.GetDataFile(4, &out), status::kNoSuchObject);

    string a = "a", b = "b", x = "x", y = "y";
    const std::tuple<string*, string*, unsigned long, const char*> searches[] = {
        { nullptr, nullptr, 0, "ax" },
        { &b, nullptr, 0, "bx" },
        { nullptr, &y, 0, "by" },
        { nullptr, nullptr, 2, "bx" },
        { &b, &y, 2, "by" },
        { &a, &y, 0, "" },
        { &a, &x, 2, "" },
    };
    for (const auto& [source, dest, tag, paths] : searches) {
        CDSDataFile found;
        EXPECT_EQ(project.FindDataFile(source, dest, tag, &found),
                  *paths ? status::kOk : status::kNothingDone);
        EXPECT_EQ(PathsOf(found), paths);
    }
    EXPECT_EQ(project.FindDataFile(&a, nullptr, 0, nullptr), status::kNullPointer);

    EXPECT_EQ(project.RemoveDataFileBySource(nullptr, &out), status::kNullPointer);
    EXPECT_EQ(project.RemoveDataFileBySource(&a, &out), status::kOk);
    EXPECT_EQ(PathsOf(out), "ax");
    EXPECT_EQ(project.RemoveDataFileBySource(&a, nullptr), status::kNoSuchObject);
    EXPECT_EQ(project.RemoveDataFileBySource(&b, nullptr), status::kOk);
    EXPECT_EQ(IdsIn(files), "3");
}

TEST(ProjectLists, AreReplacedByASecondLoadWhileSettingsStay)
{
    CDSProjectData project;
    CDSMenu mine;
    EXPECT_EQ(project.AddMenu(0, &mine), status::kOk);
    EXPECT_EQ(project.put_Label("kept"), status::kOk);
    for (int load = 0; load < 2; ++load) {
        Load(project, "<Titles><Title ID='1'/></Titles><Commands><PlayMenu/></Commands>");
        EXPECT_EQ(IdsIn(*project.GetChild(0)), "1");
        EXPECT_EQ(project.GetChild(1)->GetNumChildren(), 0);
        EXPECT_EQ(mine.GetParent(), nullptr);
        EXPECT_EQ(project.GetChild(3)->GetNumChildren(), 1);
    }
    string label;
    (void)project.get_Label(&label);
    EXPECT_EQ(label, "kept");
}
