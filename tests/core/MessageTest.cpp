#include "core/Message.h"

#include "core/Status.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"
#include "support/XmlFixture.h"
#include "xml/DsXml.h"
#include "xml/XmlFile.h"

#include <set>
#include <thread>

using std::string;
using std::vector;
using namespace vantrel;

namespace {

void Keep(const Message& message, void* log) noexcept
{
    static_cast<vector<string>*>(log)->push_back(
        string(message.path) + "|" + std::to_string(message.line) + ":" +
        std::to_string(message.column) + "|" + string(message.text));
}

class Messages : public testing::Test
{
protected:
    void SetUp() override
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
    }
    void TearDown() override
    {
        SetMessageHandler(&PrintMessage);
        EXPECT_EQ(testing::internal::GetCapturedStdout(), m_output);
        EXPECT_EQ(testing::internal::GetCapturedStderr(), m_errors);
    }

    ScratchFolder m_folder;
    vector<string> m_log;
    string m_output; ///< what the test expects to be printed
    string m_errors;
};

TEST_F(Messages, GoToTheInnermostScopeOfTheirThread)
{
    const string path = m_folder / "none.xml";
    const string text = "can't open \"" + path + "\"\n";
    m_errors = text;

    vector<string> all;
    SetMessageHandler(&Keep, &all);
    const auto fail = [&] { EXPECT_FALSE(ReadXmlFile(path.c_str())); };
    {
        const MessageScope scope(&Keep, &m_log);
        fail();
        {
            const MessageScope silence(nullptr);
            fail();
        }
        std::thread(fail).join(); // knows no scope
        fail();
    }
    EXPECT_THAT(m_log, testing::ElementsAre(path + "|0:0|" + text, path + "|0:0|" + text));
    EXPECT_THAT(all, testing::ElementsAre(path + "|0:0|" + text));

    SetMessageHandler(nullptr);
    fail();
    SetMessageHandler(&PrintMessage);
    fail();
}

TEST_F(Messages, TellWhereXmlIsWrong)
{
    const string path = m_folder / "a.xml";
    WriteFile(path, "<a>\n <b></c>\n</a>");
    const MessageScope scope(&Keep, &m_log);
    CDSProjectData project;
    EXPECT_EQ(CDSFileService().LoadProject(path.c_str(), &project), status::kUnreadableFile);
    ASSERT_GE(m_log.size(), 2U);
    EXPECT_THAT(m_log.front(), testing::StartsWith(path + "|2:9|" + path + ":2: error : "));
    EXPECT_EQ(m_log.back(), "|0:0|LoadProject: could not parse file " + path + "\n");
}

TEST_F(Messages, OfASearchAreTheLibrarysToo)
{
    const XmlText xml("<a/>");
    unsigned char query[] = "[";
    const MessageScope scope(&Keep, &m_log);
    EXPECT_EQ(AsElement(xml.root())->selectNodes(query), nullptr);
    EXPECT_GE(m_log.size(), 2U);
}

TEST(Describe, HasItsOwnWordsForEachStatus)
{
    std::set<string> words;
    const auto all = { status::kOk,          status::kNothingDone,
                       status::kBadArgument, status::kUnreadableFile,
                       status::kOldVersion,  Status(-5) };
    for (const Status result : all)
        words.insert(Describe(result));
    EXPECT_EQ(words.size(), all.size());
    EXPECT_EQ(string(Describe(status::kUnwritableFile)), "the file can't be written");
}

} // namespace
