#include "disc/DSMenu.h"
#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "project/DSFileService.h"
#include "support/NodeFixture.h"

using std::string;
using namespace vantrel;

namespace {

struct MenuRow
{
    long id;
    unsigned long tag; ///< 1, 2 ordinary; 4, 8 template; 16 neither
    long templateID;
};

/// The menus of a project, and the IDs of those that stay.
struct PruningCase
{
    std::vector<MenuRow> menus;
    bool hasTitle;
    const char* kept;
};

string IdsAfterPruning(const PruningCase& row)
{
    CDSProjectData project;
    CProjectNode& list = *project.GetChild(1);
    for (const MenuRow& one : row.menus) {
        auto menu = std::make_unique<CDSMenu>();
        menu->SetID(one.id);
        (void)menu->put_Tag(one.tag);
        (void)menu->put_TemplateID(one.templateID);
        list.AdoptChild(std::move(menu), false);
    }
    CDSTitle title;
    if (row.hasTitle)
        (void)project.AddTitle(0, &title);

    EXPECT_EQ(CDSFileService().RemoveUnusedTemplates(&project), status::kOk);
    string kept;
    for (int i = 0; i < list.GetNumChildren(); ++i)
        kept += (i ? " " : "") + std::to_string(list.GetChild(i)->GetID());
    return kept;
}

} // namespace

TEST(TemplatePruning, KeepsWhatIsUsed)
{
    // clang-format off
    const std::pair<const char*, PruningCase> cases[] = {
        { "NoTemplates", { { { 1, 1, 0 }, { 2, 16, 0 } }, false, "1 2" } },
        { "TheUnusedOneGoes", { { { 1, 1, 5 }, { 5, 4, 0 }, { 6, 4, 0 } }, false, "1 5" } },
        { "ATemplateOfAUsedOneStays", { { { 1, 1, 5 }, { 5, 4, 6 }, { 6, 8, 0 } }, false, "1 5 6" } },
        { "RisingChainsStayWhole", { { { 1, 2, 5 }, { 5, 4, 6 }, { 6, 4, 7 }, { 7, 4, 8 }, { 8, 4, 9 }, { 9, 4, 0 } }, false, "1 5 6 7 8 9" } },
        { "FallingChainsStayForThreeLinks", { { { 1, 2, 9 }, { 9, 4, 8 }, { 8, 4, 7 }, { 7, 4, 6 }, { 6, 4, 5 }, { 5, 4, 0 } }, false, "1 9 8 7 6" } },
        { "OneMadeFromItself", { { { 1, 1, 5 }, { 5, 4, 5 } }, false, "1 5" } },
        { "TwoMadeFromEachOther", { { { 1, 1, 5 }, { 5, 4, 6 }, { 6, 4, 5 } }, false, "1 5 6" } },
        { "NothingButTemplates", { { { 5, 4, 0 }, { 6, 8, 5 }, { 7, 16, 0 } }, false, "5 6 7" } },
        { "NothingButTemplatesAndATitle", { { { 5, 4, 0 }, { 6, 8, 5 }, { 7, 16, 0 } }, true, "7" } },
        { "OneThatIsNoneIsUsed", { { { 1, 1, 7 }, { 5, 4, 0 } }, false, "1" } },
        { "ATagOfBothKindsIsOrdinary", { { { 1, 5, 6 }, { 6, 4, 0 }, { 7, 4, 0 } }, false, "1 6" } },
        { "OneWithoutAnIdStays", { { { 1, 1, 6 }, { 0, 4, 0 }, { 6, 4, 0 } }, false, "1 0 6" } },
        { "AnOrdinaryMenuOfTheSameIdStays", { { { 1, 1, 9 }, { 5, 1, 0 }, { 5, 4, 0 } }, false, "1 5" } },
    };
    // clang-format on
    for (const auto& [name, row] : cases)
        EXPECT_EQ(IdsAfterPruning(row), row.kept) << name;
}

TEST(TemplatePruning, HappensWithASaveAndLeavesPointersAlive)
{
    const ScratchFolder folder;
    CDSProjectData project;
    const XmlText xml{ "<Project><Titles><Title/></Titles><Menus><Menu tag='1'/>"
                       "<Menu ID='7' tag='5'/><Menu ID='7' tag='4'/></Menus></Project>" };
    EXPECT_EQ(project.LoadXML(vantrel::AsNode(xml.root())), status::kOk);
    CProjectNode& menus = *project.GetChild(1);
    CProjectNode* const pruned = menus.GetChild(2); // the one before is ordinary too
    string text;
    (void)project.put_ProjectDirectory("former");
    EXPECT_EQ(CDSFileService().SaveProject(folder / "none/a.xml", &project),
              status::kUnwritableFile);
    EXPECT_EQ(menus.GetChild(2), pruned); // a save that fails leaves the project as it was
    (void)project.get_DisplayName(&text);
    EXPECT_EQ(text, "");
    (void)project.get_Label(&text);
    EXPECT_EQ(text, "");
    (void)project.get_ProjectDirectory(&text);
    EXPECT_EQ(text, "former");
    EXPECT_EQ(CDSFileService().SaveProject(folder / "a.xml", &project), status::kOk);
    EXPECT_EQ(menus.GetNumChildren(), 2);
    EXPECT_EQ(pruned->GetType(), eNodeMenu);
    EXPECT_EQ(CDSFileService().RemoveUnusedTemplates(nullptr), status::kNullPointer);
}
