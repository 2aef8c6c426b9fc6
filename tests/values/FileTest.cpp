#include "values/File.h"

#include "support/XmlFixture.h"

using std::string;
using namespace vantrel;

namespace {

struct LoadCase
{
    const char* name;
    const char* content; ///< null for no file
    Status status;
    const char* text; ///< behind the path
};

class LoadError : public testing::TestWithParam<LoadCase>
{};

TEST_P(LoadError, SaysWhatIsWrongAndPrintsNothing)
{
    const ScratchFolder folder;
    const string path = folder / "a.xml";
    if (GetParam().content)
        WriteFile(path, GetParam().content);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    const auto loaded = Load(path);
    const auto saved = Save(loaded, folder / "b.xml"); // carries the load's error on
    EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");

    EXPECT_FALSE(loaded || *loaded || saved);
    EXPECT_EQ(loaded.error().status, GetParam().status);
    EXPECT_EQ(loaded.error().step, "load");
    EXPECT_EQ(saved.error().text(), path + GetParam().text);
    EXPECT_FALSE(std::filesystem::exists(folder / "b.xml"));
}

INSTANTIATE_TEST_SUITE_P(
    Files, LoadError,
    testing::Values(
        LoadCase{ "Missing", nullptr, status::kUnreadableFile,
                  ": the file can't be read, or is no XML (0xC2010142)" },
        LoadCase{ "NoXml", "<Root>\n  <Project Version='900'></Root>", status::kUnreadableFile,
                  ":2:33: Opening and ending tag mismatch: Project line 2 and Root (0xC2010142)" },
        LoadCase{ "Old", "<Root><Project Version='700'/></Root>", status::kOldVersion,
                  ": the file's version is too old (0xC2010143)" }),
    [](const auto& row) { return row.param.name; });

TEST(SaveProject, ThatFailsLeavesProjectAndFileAlone)
{
    const ScratchFolder folder;
    const OwnedProject disc("x");
    const auto saved = Save(disc.view(), folder / "none/a.xml");
    EXPECT_EQ(saved.error().step, "save");
    EXPECT_EQ(saved.error().text(),
              folder / "none/a.xml" + ": the file can't be written (0xC2010144)");
    EXPECT_EQ(Save(Project(), folder / "a.xml").error().status, status::kNullPointer);
}

TEST(OwnedProject, IsMovedAsAWhole)
{
    OwnedProject first("first");
    OwnedProject second = std::move(first);
    EXPECT_TRUE(!first &&
                second.label() == "first"); // NOLINT(bugprone-use-after-move): stays empty
    first = OwnedProject("third");
    second = std::move(first);
    EXPECT_EQ(second.label(), "third");
}

} // namespace
