#include "project/ProjectNode.h"

#include "disc/DSDataFile.h"
#include "disc/DSTitle.h"
#include "project/DSList.h"
#include "project/Visitor.h"
#include "support/NodeFixture.h"

#include <memory>
#include <random>
#include <string>
#include <vector>

using std::make_unique;
using std::map;
using std::string;
using namespace vantrel;

namespace {

/// A node that tells when it dies, and keeps what it is given.
class ProbeNode : public CProjectNode
{
public:
    explicit ProbeNode(int* deaths = nullptr, string tag = "")
        : CProjectNode(eNodeButtonScheme),
          m_deaths(deaths),
          m_tag(std::move(tag))
    {}
    ~ProbeNode() override
    {
        if (m_deaths)
            ++*m_deaths;
    }

    string GetObjectTagName() override { return m_tag; }
    Status FillAttributeMap(map<string, string>& attributes, bool native) override
    {
        attributes = m_attributes;
        return native ? status::kFailure : status::kOk;
    }
    Status ParseAttributeMap(const map<string, string>& attributes) override
    {
        m_attributes = attributes;
        return status::kOk;
    }

    map<string, string> m_attributes;

private:
    int* m_deaths;
    string m_tag;
};

/// An application's own kind of data file.
class RenamedFile : public CDSDataFile
{
public:
    Status ParseAttributeMap(const map<string, string>& attributes) override
    {
        m_parsed = attributes.size();
        return CDSDataFile::ParseAttributeMap(attributes);
    }
    std::size_t m_parsed = 0;
};

} // namespace

TEST(NodeIds, FollowTheCounter)
{
    const IdCounterGuard guard(5);
    ProbeNode parent, fresh, known, unasked;
    known.SetID(3);
    EXPECT_TRUE(parent.AddChild(&fresh, true));
    EXPECT_TRUE(parent.AddChild(&known, true));
    EXPECT_TRUE(parent.AddChild(&unasked, false));
    EXPECT_EQ(fresh.GetID(), 5);
    EXPECT_EQ(known.GetID(), 3);
    EXPECT_EQ(unasked.GetID(), 0);
    EXPECT_EQ(CProjectNode::GetNewID(), 6);
    known.SetName("a name");
    EXPECT_EQ(known.GetName(), "a name");
}

TEST(NodeIds, RaiseTheCounterAboveThem)
{
    const struct
    {
        unsigned long before;
        long id;
        unsigned long after;
    } cases[] = { { 5, 100, 101 }, { 100, 100, 101 }, { 101, 3, 101 }, { 7, -1, 7 }, { 7, -5, 7 } };
    for (const auto& c : cases) {
        const IdCounterGuard guard(c.before);
        ProbeNode node;
        node.SetID(c.id);
        EXPECT_EQ(node.GetID(), c.id);
        EXPECT_EQ(CProjectNode::sm_dwNextID, c.after) << c.id;
    }
}

TEST(NodeTree, OwnedChildrenDieWithTheParentAndOthersLoseIt)
{
    int deaths = 0;
    ProbeNode stays(&deaths);
    {
        ProbeNode parent;
        parent.AdoptChild(make_unique<ProbeNode>(&deaths), true)
            ->AdoptChild(make_unique<ProbeNode>(&deaths), true);
        parent.AddChild(&stays, true);
        EXPECT_EQ(stays.GetParent(), &parent);
    }
    EXPECT_EQ(deaths, 2);
    EXPECT_EQ(stays.GetParent(), nullptr);
}

TEST(NodeTree, ANodeThatDiesOrMovesLeavesItsList)
{
    ProbeNode first, second;
    {
        ProbeNode child;
        first.AddChild(&child, false);
        second.AddChild(&child, false);
        EXPECT_EQ(first.GetNumChildren(), 0);
        EXPECT_EQ(second.GetChild(0), &child);
    }
    EXPECT_EQ(second.GetNumChildren(), 0);
    EXPECT_EQ(second.GetChild(0), nullptr);
    EXPECT_EQ(second.GetChild(-1), nullptr);
}

TEST(NodeTree, RefusesAChildThatItHangsBelow)
{
    ProbeNode top, middle;
    EXPECT_TRUE(top.AddChild(&middle, false));
    EXPECT_FALSE(middle.AddChild(&top, false));
    EXPECT_FALSE(middle.AddChild(&middle, false));
    EXPECT_FALSE(middle.AddChild(nullptr, false));
    EXPECT_EQ(middle.GetParent(), &top);
}

TEST(NodeTree, FindsDirectChildrenByTypeAndId)
{
    ProbeNode parent, one(nullptr, "ButtonScheme1"), two(nullptr, "ButtonScheme2"), below;
    parent.AddChild(&one, true);
    parent.AddChild(&two, true);
    two.AddChild(&below, true);
    EXPECT_EQ(parent.FindChildByType(eNodeButtonScheme, "ButtonScheme2"), &two);
    EXPECT_EQ(parent.FindChildByType(eNodeButtonScheme, ""), &one);
    EXPECT_EQ(parent.FindChildByType(eNodeButtonScheme, "ButtonScheme3"), nullptr);
    EXPECT_EQ(two.FindChildByType(eNodeButtonScheme, "ButtonScheme3"), &below); // asks for no name
    EXPECT_EQ(parent.FindChildByType(eNodeMenu, ""), nullptr);

    int index = 7;
    EXPECT_EQ(parent.FindChildByID(below.GetID(), &index), nullptr);
    EXPECT_EQ(index, 7);
    EXPECT_EQ(parent.FindChildByID(two.GetID(), &index), &two);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(parent.FindChildByID(one.GetID(), nullptr), &one);
}

TEST(NodeAttributes, NullAndMissingOnesAreTold)
{
    ProbeNode node;
    EXPECT_EQ(node.Read(nullptr), status::kNotAvailable);
    EXPECT_EQ(node.Write(nullptr, 0), status::kNotAvailable);
    EXPECT_EQ(node.ReadXML(nullptr), status::kNothingDone);
    EXPECT_EQ(node.WriteNodeAttributes(nullptr, {}), status::kBadArgument);
    EXPECT_EQ(ReadNode(node, "<n><a b='c'/></n>"), status::kNothingDone);
    EXPECT_EQ(WrittenNode(node), "<N/>");
    const EmptyXml xml;
    EXPECT_EQ(node.Write(AsNode(xml.root()), 1), status::kFailure); // the map's own failure
    EXPECT_EQ(TextOf(xml.root()), "<Root/>");
}

TEST(NodeAttributes, OnesWithAPrefixAreNoneOfTheNode)
{
    const map<string, string> expected{ { "a", "plain" }, { "b", "plain" } };
    ProbeNode node;
    EXPECT_EQ(
        ReadNode(node, "<n xmlns:p='urn:p' a='plain' p:a='x' p:b='x' b='plain' p:c='other'/>"),
        status::kOk);
    EXPECT_EQ(node.m_attributes, expected);

    CDSDataFile file; // the direct way has the same rule
    EXPECT_EQ(ReadNode(file, "<n xmlns:p='urn:p' p:destPath='x' destPath='d' sourcePath='s' "
                             "p:sourcePath='x' p:tag='4'/>"),
              status::kOk);
    EXPECT_EQ(WrittenNode(file), R"x(<N ID="0" destPath="d" sourcePath="s" tag="0"/>)x");
}

TEST(NodeAttributes, AnOverrideOfADerivedClassCounts)
{
    RenamedFile file;
    EXPECT_EQ(ReadNode(file, "<n destPath='d' other='o'/>"), status::kOk);
    EXPECT_EQ(file.m_parsed, 2U);
    EXPECT_EQ(WrittenNode(file), R"x(<N ID="0" destPath="d" sourcePath="" tag="0"/>)x");
}

TEST(NodeAttributes, AreWrittenInByteOrderAndFitForAFile)
{
    ProbeNode node;
    node.m_attributes = { { "name", "n" }, { "ID", "1" }, { "label", "a\x01\xE9<" } };
    EXPECT_EQ(WrittenNode(node),
              "<N ID=\"1\" label=\"a\xEF\xBF\xBD\xEF\xBF\xBD&lt;\" name=\"n\"/>");

    const EmptyXml xml;
    for (int round = 0; round < 2; ++round) // a second time the values are replaced
        EXPECT_EQ(node.Write(AsNode(xml.root()), 0), status::kOk);
    EXPECT_EQ(AttributesOf(TextOf(xml.root())).size(), 3U);

    node.m_attributes = { { "no name", "x" } };
    testing::internal::CaptureStdout();
    EXPECT_EQ(node.Write(AsNode(xml.root()), 0), status::kNullPointer);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "Failed on attribute: no name\n");
}

TEST(Visitor, VisitsANodeBeforeItsChildren)
{
    struct Recorder : CVisitor
    {
        Status Visit(CProjectNode* node, IXMLDOMNode* element, long native) override
        {
            visited.push_back(node->GetID());
            EXPECT_EQ(reinterpret_cast<long>(element), 42);
            EXPECT_EQ(native, 0);
            return status::kFailure; // ends nothing
        }
        std::vector<long> visited;
    } recorder;
    CDSTitle title;
    ProbeNode leaf;
    title.SetID(1);
    leaf.SetID(2);
    title.AddChild(&leaf, false);
    EXPECT_EQ(recorder.Traverse(&title, 42), status::kOk);
    EXPECT_EQ(recorder.visited, (std::vector<long>{ 1, 2 }));
}

TEST(Tree, KeepsTheOrderOfALongListOverEdits)
{
    // Seldom, often and mostly at the front, so that every way of making room is taken.
    for (const unsigned frontShare : { 0U, 2U, 50U, 98U }) {
        CDSList list(eNodeTitles);
        std::vector<std::unique_ptr<CDSList>> made;
        std::vector<CProjectNode*> expected;
        std::minstd_rand random(frontShare);
        const auto place = [&](std::size_t count) {
            return random() % 100 < frontShare ? 0 : random() % count;
        };
        for (int step = 0; step < 4000; ++step) {
            const bool grows = expected.size() < 2 || (expected.size() < 300 && random() % 3 != 0);
            if (grows) {
                made.push_back(std::make_unique<CDSList>(eNodeTitle));
                const std::size_t at = place(expected.size() + 1);
                EXPECT_TRUE(list.InsertChild(made.back().get(), static_cast<int>(at), true));
                expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(at),
                                made.back().get());
            } else if (random() % 2 != 0) {
                const std::size_t from = place(expected.size()), to = place(expected.size());
                EXPECT_TRUE(list.MoveChild(static_cast<int>(from), static_cast<int>(to)));
                CProjectNode* const moved = expected[from];
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(from));
                expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(to), moved);
            } else {
                const std::size_t at = place(expected.size());
                CProjectNode* const gone = expected[at];
                EXPECT_EQ(list.FindChildrenByID(gone->GetID()), std::vector{ gone });
                EXPECT_EQ(list.ReleaseChild(gone), nullptr); // the caller's
                EXPECT_TRUE(list.FindChildrenByID(gone->GetID()).empty());
                expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(at));
            }
            ASSERT_EQ(list.GetNumChildren(), static_cast<int>(expected.size()));
        }
        for (std::size_t i = 0; i < expected.size(); ++i)
            ASSERT_EQ(list.GetChild(static_cast<int>(i)), expected[i]) << frontShare << ' ' << i;
        made.clear(); // front first
        EXPECT_EQ(list.GetNumChildren(), 0);
    }
}
