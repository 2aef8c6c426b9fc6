#include "disc/DSMenu.h"
#include "disc/DSMenuButton.h"
#include "disc/DSMenuOverlay.h"
#include "disc/DSMenuText.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"
#include "storyboard/SbdUtils.h"
#include "support/MenuFixture.h"

#include <filesystem>

using std::string;
using namespace vantrel;

namespace {

/// What the elements of a list, and of the buttons in it, answer; a line each.
string AnswersOf(CProjectNode& list)
{
    string answers;
    for (int i = 0; i < list.GetNumChildren(); ++i) {
        CProjectNode* node = list.GetChild(i);
        answers += std::to_string(node->GetID());
        if (const CMenuElementImpl* element = ElementOf(node))
            answers += " at " + PositionOf(*element) + " extent " + ExtentOf(*element);
        if (auto* text = dynamic_cast<CDSMenuText*>(node)) {
            string words, font;
            (void)text->getString(&words);
            (void)text->get_Font(&font);
            answers += " says " + words + " in " + font + " corners " + Corners(*text);
        } else if (auto* overlay = dynamic_cast<CDSMenuOverlay*>(node)) {
            string source;
            (void)overlay->get_Source(&source);
            answers += " shows " + std::filesystem::path(source).filename().string();
        } else if (auto* button = dynamic_cast<CDSMenuButton*>(node)) {
            FloatRect lit;
            (void)button->GetHighlightRegion(&lit);
            answers += " lights up " + PointText(lit.left, lit.top) + " " +
                       PointText(lit.right, lit.bottom) + "\n" + AnswersOf(*button->GetChild(3));
        }
        answers += "\n";
    }
    return answers;
}

string AnswersOf(CDSProjectData& project)
{
    string answers;
    CDSMenu* menu = nullptr;
    for (long index = 1; !Failed(project.GetMenu(index, &menu)); ++index) {
        double duration = 0;
        (void)menu->get_Duration(&duration);
        answers += "menu " + std::to_string(menu->GetID()) + " lasts " + NumberText(duration) +
                   "\n" + AnswersOf(*menu->GetChild(8));
    }
    return answers;
}

/// Takes out the lines from the one that begins with `first` to the one that is `last`.
void EraseLines(string& text, const string& first, const string& last)
{
    const std::size_t begin = text.find("\n" + first);
    const std::size_t end = text.find("\n" + last + "\n", begin);
    ASSERT_NE(end, string::npos) << first;
    text.erase(begin, end + last.size() + 1 - begin);
}

} // namespace

TEST(ExampleDisc, ComesBackWholeButForTheTemplateThatNothingUses)
{
    const ScratchFolder folder;
    std::filesystem::copy(EXAMPLES_FOLDER "/travel-disc", folder.path(),
                          std::filesystem::copy_options::recursive);
    const string path = folder / "Content/travel-disc.xml";
    string expected = ReadFile(path);
    EraseLines(expected, "      <Menu ID=\"50\"", "      </Menu>");
    EraseLines(expected, "    <Menu0050>", "    </Menu0050>");
    const string count = "<Menus NumItems=\"";
    expected[expected.find(count) + count.size()] = '3';

    string answers;
    for (int save = 0; save < 2; ++save) {
        CDSProjectData project;
        ASSERT_EQ(CDSFileService().LoadProject(path.c_str(), &project), status::kOk);
        if (save == 0)
            (void)CDSFileService().RemoveUnusedTemplates(&project);
        else
            EXPECT_EQ(AnswersOf(project), answers);
        answers = AnswersOf(project);
        ASSERT_EQ(CDSFileService().SaveProject(path, &project), status::kOk);
        EXPECT_EQ(ReadFile(path), expected) << save;
        EXPECT_EQ(AnswersOf(project), answers); // what was lent to the save has come back
    }
    for (const char* part :
         { "says Three Weeks North in ", "lights up -0.97 ", "shows frame-brass.png" })
        EXPECT_NE(answers.find(part), string::npos) << part << "\n" << answers;
}

TEST(ExampleDisc, OfAnEarlyVersionIsAFixedPointOnceSaved)
{
    const ScratchFolder folder;
    const string path = folder / "old-disc.xml";
    std::filesystem::copy(EXAMPLES_FOLDER "/old-disc/old-disc.xml", path);
    string saved;
    for (int save = 0; save < 3; ++save) {
        CDSProjectData project;
        ASSERT_EQ(CDSFileService().LoadProject(path.c_str(), &project), status::kOk);
        ASSERT_EQ(CDSFileService().SaveProject(path, &project), status::kOk);
        if (save == 2) { // the label shows from the second save on
            EXPECT_EQ(ReadFile(path), saved);
        }
        saved = ReadFile(path);
    }
}
