#include "core/PathUtils.h"

#include <gtest/gtest.h>

struct SplitCase
{
    const char* name;
    const char* path;
    const char* directory;
    const char* fileName;
    const char* extension;
};
class SplitPath : public testing::TestWithParam<SplitCase>
{};

TEST_P(SplitPath, GivesDirectoryNameAndExtension)
{
    std::string directory = "?", name = "?", extension = "?";
    ASSERT_TRUE(Utils::GetDirectoryAndFileName(GetParam().path, &directory, &name, &extension));
    EXPECT_EQ(directory, GetParam().directory);
    EXPECT_EQ(name, GetParam().fileName);
    EXPECT_EQ(extension, GetParam().extension);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, SplitPath,
    testing::Values(SplitCase{ "Plain", "/a/b/c.xml", "/a/b", "c", ".xml" },
                    SplitCase{ "Backslashes", R"(C:\a\b.xml)", R"(C:\a)", "b", ".xml" },
                    SplitCase{ "BackslashWins", R"(C:\a/b.xml)", "C:", "a/b", ".xml" },
                    SplitCase{ "DotInAFolder", "/a.b/c", "/a.b", "c", "" },
                    SplitCase{ "NoFolder", "project.xml", "", "project", ".xml" },
                    SplitCase{ "RootFolder", "/c.xml", "", "c", ".xml" },
                    SplitCase{ "LastDotCounts", "/a/b.tar.gz", "/a", "b.tar", ".gz" },
                    SplitCase{ "LeadingDotIsTheName", "/a/.xml", "/a", ".xml", ".xml" },
                    SplitCase{ "FolderAlone", "/a/b/", "/a/b", "", "" }),
    [](const auto& row) { return row.param.name; });

TEST(SplitPathArguments, EmptyTouchesNothingAndNullsAreSkipped)
{
    std::string name = "?";
    EXPECT_FALSE(Utils::GetDirectoryAndFileName("", nullptr, &name, nullptr));
    EXPECT_EQ(name, "?");
    EXPECT_TRUE(Utils::GetDirectoryAndFileName("/a/b.c", nullptr, nullptr, nullptr));
}

TEST(ContentPath, IsCutBehindTheFirstContentFolder)
{
    const auto cut = [](std::string path) {
        EXPECT_FALSE(Utils::GetContentPath(&path));
        return path;
    };
    EXPECT_EQ(cut("/t/Content/a/Content/b.xml"), "/t/Content/");
    EXPECT_EQ(cut("/t/content/b.xml"), "/t/content/b.xml");
    EXPECT_EQ(cut(""), "");
}

struct ResolveCase
{
    const char* name;
    const char* stored;
    const char* resolved;
};
class ResolveFilePath : public testing::TestWithParam<ResolveCase>
{};

TEST_P(ResolveFilePath, MakesAPathOfThisMachine)
{
    std::string path = GetParam().stored;
    EXPECT_FALSE(Utils::ResolveFilePath(&path));
    EXPECT_EQ(path, GetParam().resolved);
}

INSTANTIATE_TEST_SUITE_P(
    Paths, ResolveFilePath,
    testing::Values(
        ResolveCase{ "TokenGoes", R"(%CONTENT%\Backgrounds\a.mpg)", "/Backgrounds/a.mpg" },
        ResolveCase{ "TokenAlone", "%CONTENT%x.mpg", "x.mpg" },
        ResolveCase{ "NeighboursGoWithIt", R"(a%CONTENT%\x.mpg)", "x.mpg" },
        ResolveCase{ "NothingBehindTheToken", "a%CONTENT%", "" },
        ResolveCase{ "TokenElsewhereStays", R"(ab%CONTENT%\x.mpg)", "ab%CONTENT%/x.mpg" },
        ResolveCase{ "DriveStays", R"(C:\a\b.mpg)", "C:/a/b.mpg" }, ResolveCase{ "Empty", "", "" }),
    [](const auto& row) { return row.param.name; });

TEST(UnresolveFilePath, PutsTheTokenBackForAFileOfATheme)
{
    std::string path = "/themes/Beach/Content/Content/a.mpg";
    EXPECT_TRUE(Utils::UnresolveFilePath(&path));
    EXPECT_EQ(path, "%CONTENT%/Content/a.mpg"); // the first folder of that name counts
    Utils::ResolveFilePath(&path);
    EXPECT_EQ(path, "/Content/a.mpg");

    std::string other = "/media/Contents/a.mpg";
    EXPECT_FALSE(Utils::UnresolveFilePath(&other));
    EXPECT_EQ(other, "/media/Contents/a.mpg");
    EXPECT_FALSE(Utils::UnresolveFilePath(nullptr));
    EXPECT_FALSE(Utils::ResolveFilePath(nullptr));
}
