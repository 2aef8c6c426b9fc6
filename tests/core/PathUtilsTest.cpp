#include "core/PathUtils.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(SplitPath, GivesDirectoryNameAndExtension)
{
    constexpr const char* cases[][4] = {
        { "/a/b/c.xml", "/a/b", "c", ".xml" },
        { R"(C:\a\b.xml)", R"(C:\a)", "b", ".xml" },
        { R"(C:\a/b.xml)", "C:", "a/b", ".xml" }, // the backslash wins
        { "/a.b/c", "/a.b", "c", "" },
        { "project.xml", "", "project", ".xml" },
        { "/c.xml", "", "c", ".xml" },
        { "/a/b.tar.gz", "/a", "b.tar", ".gz" },
        { "/a/.xml", "/a", ".xml", ".xml" }, // a leading dot is the name
        { "/a/b/", "/a/b", "", "" },
    };
    for (const auto& [path, directory, fileName, extension] : cases) {
        std::string parts[] = { "?", "?", "?" };
        ASSERT_TRUE(Utils::GetDirectoryAndFileName(path, &parts[0], &parts[1], &parts[2]));
        EXPECT_THAT(parts, testing::ElementsAre(directory, fileName, extension)) << path;
    }
}

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

TEST(ResolveFilePath, MakesAPathOfThisMachine)
{
    constexpr const char* cases[][2] = {
        { R"(%CONTENT%\Backgrounds\a.mpg)", "/Backgrounds/a.mpg" },
        { "%CONTENT%x.mpg", "x.mpg" },
        { R"(a%CONTENT%\x.mpg)", "x.mpg" }, // the token's neighbours go with it
        { "a%CONTENT%", "" },
        { R"(ab%CONTENT%\x.mpg)", "ab%CONTENT%/x.mpg" },
        { R"(C:\a\b.mpg)", "C:/a/b.mpg" },
        { "", "" },
    };
    for (const auto& [stored, resolved] : cases) {
        std::string path = stored;
        EXPECT_FALSE(Utils::ResolveFilePath(&path));
        EXPECT_EQ(path, resolved) << stored;
    }
}

TEST(UnresolveFilePath, PutsTheTokenBackForAFileOfTheDocumentsTheme)
{
    const std::string document = "/themes/Beach/Content/Content/a.xml";
    std::string path = "/themes/Beach/Content/Content/a.mpg";
    EXPECT_TRUE(Utils::UnresolveFilePath(&path, document));
    EXPECT_EQ(path, "%CONTENT%/Content/a.mpg"); // the first folder of that name counts
    Utils::ResolveFilePath(&path);
    EXPECT_EQ(path, "/Content/a.mpg");

    for (const char* other :
         { "/themes/Beach/Contents/a.mpg", "/themes/Hills/Content/a.mpg", "a.mpg" }) {
        path = other;
        EXPECT_FALSE(Utils::UnresolveFilePath(&path, document));
        EXPECT_EQ(path, other);
    }
    path = "/themes/Beach/Content/a.mpg";
    EXPECT_FALSE(Utils::UnresolveFilePath(&path)); // without a document nothing is its own
    EXPECT_FALSE(Utils::UnresolveFilePath(nullptr, document));
    EXPECT_FALSE(Utils::ResolveFilePath(nullptr));
}
