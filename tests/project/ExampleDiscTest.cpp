#include "disc/DSProjectData.h"
#include "project/DSFileService.h"
#include "support/XmlFixture.h"

#include <filesystem>

using std::string;

namespace {

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

    for (int save = 0; save < 2; ++save) {
        CDSProjectData project;
        ASSERT_EQ(CDSFileService().LoadProject(path.c_str(), &project), status::kOk);
        for (int again = 0; again < 2; ++again) { // what was lent to a save has come back
            ASSERT_EQ(CDSFileService().SaveProject(path, &project), status::kOk);
            EXPECT_EQ(ReadFile(path), expected) << save;
        }
    }
}

TEST(ExampleDisc, OfAnEarlyVersionIsAFixedPointOnceSaved)
{
    const ScratchFolder folder;
    const string path = folder / "old-disc.xml";
    std::filesystem::copy(EXAMPLES_FOLDER "/old-disc/old-disc.xml", path);
    string saved[3];
    for (string& text : saved) {
        CDSProjectData project;
        ASSERT_EQ(CDSFileService().LoadProject(path.c_str(), &project), status::kOk);
        ASSERT_EQ(CDSFileService().SaveProject(path, &project), status::kOk);
        text = ReadFile(path);
    }
    EXPECT_EQ(saved[2], saved[1]); // the label shows from the second save on
}
