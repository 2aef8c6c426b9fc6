#include "project/ProjectNode.h"

#include "disc/DSDataFile.h"
#include "disc/DSTitle.h"
#include "project/Visitor.h"
#include "support/NodeFixture.h"

#include <memory>
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
