#include "xml/XmlFile.h"

#include "support/XmlFixture.h"
#include "xml/KeptXml.h"

#include <csignal>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using std::string;
using namespace vantrel;

namespace {

/// Lets no file of this process grow beyond a size, as a full disk would.
class SmallDisk
{
public:
    explicit SmallDisk(rlim_t size)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit small{ size, m_former.rlim_max };
        setrlimit(RLIMIT_FSIZE, &small);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit m_former;
};

std::size_t FilesIn(const ScratchFolder& folder)
{
    const std::filesystem::directory_iterator files(folder.path());
    return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

} // namespace

TEST(SerializeXml, GivesTheBytesOfAFormattedSave)
{
    const XmlText xml{ "<Root>\n<a b='é &#10;&lt;\"'/><c>té&amp;<!--x--></c><d/></Root>" };
    const ScratchFolder folder;
    xmlSaveFormatFileEnc((folder / "by-libxml2.xml").c_str(), xml.doc(), "UTF-8", 1);
    string bytes;
    ASSERT_TRUE(SerializeXml(xml.doc(), &bytes));
    EXPECT_EQ(bytes, ReadFile(folder / "by-libxml2.xml"));
}

TEST(PlainPath, MeansItselfOnReadingAndWriting)
{
    const ScratchFolder folder;
    for (const char* name : { "my disc.xml", "100%25 %41.xml", "a#b?c=d&e.xml", "http:example.xml",
                              "d\xC3\xA9j\xC3\xA0 \xE9.xml", "-" }) {
        const string path = folder / name;
        for (const auto write : { WriteFileInPlace, ReplaceFile }) {
            ASSERT_EQ(write(path, "<r/>"), status::kOk);
            EXPECT_EQ(ReadFile(path), "<r/>");
            const XmlDocPtr doc = ReadXmlFile(path.c_str());
            ASSERT_TRUE(doc);
            EXPECT_EQ(Chars(doc->URL), path);
            EXPECT_EQ(FilesIn(folder), 1U);
            std::filesystem::remove(path);
        }
    }
}

TEST(ReadXmlFile, OpensNothingButTheFile)
{
    const ScratchFolder folder;
    WriteFile(folder / "secret.txt", "secret");
    WriteFile(folder / "a.xml", "<!DOCTYPE r [<!ENTITY s SYSTEM \"secret.txt\"><!ENTITY % p SYSTEM "
                                "\"secret.txt\"> %p;]><r a='b'>&s;</r>");
    const XmlDocPtr doc = ReadXmlFile((folder / "a.xml").c_str());
    ASSERT_TRUE(doc);
    EXPECT_EQ(TextOf(xmlDocGetRootElement(doc.get())).find("secret"), string::npos);
    const XmlNodePtr kept = CopyXml(xmlDocGetRootElement(doc.get()));
    EXPECT_EQ(TextOf(kept.get()), R"(<r a="b"/>)");

    testing::internal::CaptureStderr();
    for (const string& path : { folder.path(), folder / "none.xml", string("http://127.0.0.1/a") })
        EXPECT_FALSE(ReadXmlFile(path.c_str())) << path;
    EXPECT_FALSE(ReadXmlFile(nullptr));
    (void)testing::internal::GetCapturedStderr();
}

TEST(WriteFile, AFullDiskLeavesTheOldContent)
{
    const ScratchFolder folder;
    const string path = folder / "a.xml";
    const string large(200'000, 'x');
    for (const auto write : { WriteFileInPlace, ReplaceFile }) {
        WriteFile(path, "old");
        {
            const SmallDisk disk(100'000);
            EXPECT_EQ(write(path, large), status::kUnwritableFile);
            EXPECT_EQ(write(folder / "new.xml", large), status::kUnwritableFile);
        }
        EXPECT_EQ(ReadFile(path), "old");
        EXPECT_EQ(FilesIn(folder), 1U); // nothing half-written, no helper file
        EXPECT_EQ(write(path, "new, and then longer"), status::kOk);
        EXPECT_EQ(write(path, "new"), status::kOk);
        EXPECT_EQ(ReadFile(path), "new"); // no tail of the longer one
    }
    EXPECT_EQ(WriteFileInPlace("/dev/full", "x"), status::kUnwritableFile);
    EXPECT_EQ(ReplaceFile("/dev/full", "x"), status::kUnwritableFile);
}

TEST(WriteFile, WhatCannotBeOpenedIsTold)
{
    const ScratchFolder folder;
    for (const auto write : { WriteFileInPlace, ReplaceFile }) {
        EXPECT_EQ(write(folder.path(), "x"), status::kUnwritableFile); // a folder
        EXPECT_EQ(write(folder / "none/a.xml", "x"), status::kUnwritableFile);
        EXPECT_EQ(write("", "x"), status::kUnwritableFile);
    }
    EXPECT_EQ(FilesIn(folder), 0U);
}

TEST(ReplaceFile, KeepsTheModeAndFollowsASymbolicLink)
{
    const ScratchFolder folder;
    WriteFile(folder / "real.xml", "old");
    chmod((folder / "real.xml").c_str(), 0640);
    std::filesystem::create_symlink("real.xml", folder / "link.xml");

    ASSERT_EQ(ReplaceFile(folder / "link.xml", "new"), status::kOk);

    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.xml"));
    EXPECT_EQ(ReadFile(folder / "real.xml"), "new");
    struct stat info;
    ASSERT_EQ(stat((folder / "real.xml").c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0640U);
    EXPECT_EQ(FilesIn(folder), 2U);

    std::filesystem::remove(folder / "real.xml"); // the link leads nowhere now
    ASSERT_EQ(ReplaceFile(folder / "link.xml", "again"), status::kOk);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.xml"));
    EXPECT_EQ(ReadFile(folder / "real.xml"), "again");
}
