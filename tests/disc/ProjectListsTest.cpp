#include "disc/DSCommandList.h"
#include "disc/DSDataFile.h"
#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "support/NodeFixture.h"

#include <functional>
#include <memory>

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

std::unique_ptr<CDSMenu> MadeMenu(long id, unsigned long tag)
{
    auto menu = Made<CDSMenu>(id);
    (void)menu->put_Tag(tag);
    return menu;
}

std::unique_ptr<CDSDataFile> MadeFile(long id, const char* source, const char* dest,
                                      unsigned long tag)
{
    auto file = Made<CDSDataFile>(id);
    (void)file->put_SourcePath(source);
    (void)file->put_DestPath(dest);
    (void)file->put_Tag(tag);
    return file;
}

string SourceOf(const CDSDataFile& file)
{
    string source;
    (void)file.get_SourcePath(&source);
    return source;
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
    const struct
    {
        long index;
        Status status;
        const char* ids;
    } cases[] = {
        { 1, status::kOk, "9/1/2" },
        { 2, status::kOk, "1/9/2" },
        { 3, status::kOk, "1/2/9" },
        { 0, status::kOk, "1/2/9" },
        { 4, status::kNoSuchObject, "1/2" },
        { -1, status::kNoSuchObject, "1/2" },
        { std::numeric_limits<long>::max(), status::kNoSuchObject, "1/2" },
        { std::numeric_limits<long>::min(), status::kNoSuchObject, "1/2" },
    };
    for (const auto& c : cases) {
        const auto node = GetParam().make(9);
        EXPECT_EQ(GetParam().add(project, c.index, node.get()), c.status) << c.index;
        EXPECT_EQ(IdsIn(list()), c.ids) << c.index; // and the caller's node leaves it when it dies
    }
    EXPECT_EQ(GetParam().add(project, 1, nullptr), status::kNullPointer);
    EXPECT_EQ(IdsIn(list()), "1/2");
}

TEST_P(NumberedList, AddsANodeThatItHoldsByMovingIt)
{
    Fill(3);
    EXPECT_EQ(GetParam().add(project, 4, list().GetChild(0)), status::kOk);
    EXPECT_EQ(IdsIn(list()), "2/3/1");
    EXPECT_EQ(GetParam().add(project, 1, list().GetChild(1)), status::kOk);
    EXPECT_EQ(IdsIn(list()), "3/2/1");
}

TEST_P(NumberedList, GivesAnIdToANodeWithout)
{
    const auto node = GetParam().make(0);
    const IdCounterGuard guard(50);
    EXPECT_EQ(GetParam().add(project, 0, node.get()), status::kOk);
    EXPECT_EQ(node->GetID(), 50);
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
    EXPECT_EQ(GetParam().add(project, 1, third), status::kOk);
    EXPECT_EQ(GetParam().remove(project, 3, nullptr), status::kOk);
    EXPECT_EQ(GetParam().add(project, 2, third), status::kOk);
    EXPECT_EQ(IdsIn(list()), "2/3/4");
}

TEST_P(NumberedList, MovesFromPlaceToPlace)
{
    const struct
    {
        long from, to;
        Status status;
        const char* ids;
    } cases[] = {
        { 1, 4, status::kOk, "2/3/4/1" },           { 4, 1, status::kOk, "1/2/3/4" },
        { 2, 3, status::kOk, "1/3/2/4" },           { 3, 3, status::kOk, "1/3/2/4" },
        { 0, 1, status::kNoSuchObject, "1/3/2/4" }, { 1, 0, status::kNoSuchObject, "1/3/2/4" },
        { 5, 1, status::kNoSuchObject, "1/3/2/4" }, { 1, 5, status::kNoSuchObject, "1/3/2/4" },
    };
    Fill(4);
    for (const auto& c : cases) {
        EXPECT_EQ((project.*GetParam().move)(c.from, c.to), c.status) << c.from << " " << c.to;
        EXPECT_EQ(IdsIn(list()), c.ids);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, NumberedList,
    testing::Values(CaseOf<CDSTitle>("Titles", 0, &CDSProjectData::AddTitle,
                                     &CDSProjectData::RemoveTitle, &CDSProjectData::MoveTitle),
                    CaseOf<CDSMenu>("Menus", 1, &CDSProjectData::AddMenu,
                                    &CDSProjectData::RemoveMenu, &CDSProjectData::MoveMenu),
                    CaseOf<CDSMenu>("MenusByInsert", 1, &CDSProjectData::InsertMenu,
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
    EXPECT_EQ(project.AddMenu(0, &menu), status::kOk);

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

TEST(ProjectLists, FindAMenuByItsWholeTag)
{
    CDSProjectData project;
    for (const unsigned long tag : { 1, 5, 4, 8, 4 })
        project.GetChild(1)->AdoptChild(MadeMenu(0, tag), true);
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
    for (const unsigned long tag : { 1, 4, 2, 8 })
        menus.AdoptChild(MadeMenu(7, tag), false);
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
    files.AdoptChild(MadeFile(1, "a", "x", 1), false);
    files.AdoptChild(MadeFile(2, "b", "x", 2), false);
    files.AdoptChild(MadeFile(3, "b", "y", 2), false);

    CDSDataFile out;
    EXPECT_EQ(project.GetDataFile(3, &out), status::kOk);
    EXPECT_EQ(WrittenNode(out), R"x(<N ID="0" destPath="y" sourcePath="b" tag="2"/>)x");
    EXPECT_EQ(project.GetDataFile(1, nullptr), status::kNullPointer);
    EXPECT_EQ(project.GetDataFile(4, &out), status::kNoSuchObject);

    string a = "a", b = "b", x = "x", y = "y";
    const struct
    {
        string* source;
        string* dest;
        unsigned long tag;
        const char* found; ///< source and destination; null for none
    } cases[] = {
        { nullptr, nullptr, 0, "ax" }, { &b, nullptr, 0, "bx" }, { nullptr, &y, 0, "by" },
        { nullptr, nullptr, 2, "bx" }, { &b, &y, 2, "by" },      { &a, &y, 0, nullptr },
        { &a, &x, 2, nullptr },
    };
    for (const auto& c : cases) {
        CDSDataFile found;
        EXPECT_EQ(project.FindDataFile(c.source, c.dest, c.tag, &found),
                  c.found ? status::kOk : status::kNothingDone);
        string dest;
        (void)found.get_DestPath(&dest);
        EXPECT_EQ(SourceOf(found) + dest, c.found ? c.found : "");
    }
    EXPECT_EQ(project.FindDataFile(&a, nullptr, 0, nullptr), status::kNullPointer);

    EXPECT_EQ(project.RemoveDataFileBySource(nullptr, &out), status::kNullPointer);
    EXPECT_EQ(project.RemoveDataFileBySource(&a, &out), status::kOk);
    EXPECT_EQ(SourceOf(out), "a");
    EXPECT_EQ(project.RemoveDataFileBySource(&a, nullptr), status::kNoSuchObject);
    EXPECT_EQ(project.RemoveDataFileBySource(&b, nullptr), status::kOk);
    EXPECT_EQ(IdsIn(files), "3");
}

TEST(ProjectLists, AreReplacedByASecondLoadWhileSettingsStay)
{
    const XmlText xml{ "<Root><Project Version='900'><Titles><Title ID='1'/></Titles><Commands>"
                       "<PlayMenu code='2'/></Commands></Project></Root>" };
    CDSProjectData project;
    CDSMenu mine;
    EXPECT_EQ(project.AddMenu(0, &mine), status::kOk);
    EXPECT_EQ(project.put_Label("kept"), status::kOk);
    for (int load = 0; load < 2; ++load) {
        EXPECT_EQ(project.LoadXML(AsNode(xml.root())), status::kOk);
        EXPECT_EQ(IdsIn(*project.GetChild(0)), "1");
        EXPECT_EQ(project.GetChild(1)->GetNumChildren(), 0);
        EXPECT_EQ(mine.GetParent(), nullptr);
        EXPECT_EQ(project.GetChild(3)->GetNumChildren(), 1);
    }
    string label;
    (void)project.get_Label(&label);
    EXPECT_EQ(label, "kept");
}
