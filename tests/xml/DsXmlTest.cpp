#include "xml/DsXml.h"

#include "support/XmlFixture.h"

#include <string>
#include <vector>

using std::string;
using std::vector;
using namespace vantrel;

namespace {

unsigned char* Query(const char* text)
{
    return const_cast<unsigned char*>(XmlChars(text));
}

/// The node's "id", or what else it is.
string IdOf(const _xmlNode* node)
{
    if (!node)
        return "nothing";
    const xmlAttr* id = FindAttribute(node, "id");
    string store;
    return id ? string(ResolvedText(id->children, store)) : string(NameOf(node));
}

vector<string> ContentsOf(const vector<_xmlNode*>& nodes)
{
    vector<string> contents;
    for (const _xmlNode* node : nodes)
        contents.emplace_back(node->content ? Chars(node->content) : "");
    return contents;
}

vector<string> IdsOf(XmlNodeSetPtr set)
{
    vector<string> ids;
    for (int i = 0; set && i < set->nodeNr; ++i)
        ids.push_back(IdOf(set->nodeTab[i]));
    return ids;
}

constexpr const char* kEntityRing = "<!DOCTYPE r [<!ENTITY a '<x>&b;</x>'><!ENTITY b '<x>&c;</x>'>"
                                    "<!ENTITY c 'end'>]><r>one&a;<e>two</e></r>";

} // namespace

TEST(SelectSingleNode, TakesFirstChildOfEachStep)
{
    const XmlText xml{ "<root id='root'><a id='a1'/><a id='a2'><b id='b'/></a><c id='c'><d "
                       "id='d'/></c></root>" };
    constexpr std::pair<const char*, const char*> cases[] = {
        { "", "root" }, { "a/", "a1" },        { "/a", "nothing" }, { "a/b", "nothing" },
        { "c/d", "d" }, { "a[2]", "nothing" }, { "A", "nothing" },
    };
    for (const auto& [path, found] : cases)
        EXPECT_EQ(IdOf(AsNode(xml.root())->selectSingleNode(Query(path))), found) << path;
}

TEST(SelectChildren, SeesWhiteSpaceByNameAndSkipsItAsText)
{
    const XmlText xml{ "<e>\n  <a/>\n  <b>in</b>out<c/>\n</e>" };
    IXMLDOMNode* e = AsNode(xml.root());
    EXPECT_EQ(e->selectChildrenNodesAsName(e, "text").size(), 4U);
    EXPECT_EQ(ContentsOf(e->selectNodes("text()")), (vector<string>{ "in", "out" }));
    EXPECT_EQ(e->selectNodes("b").size(), 1U);
    EXPECT_TRUE(e->traverseTextNode(nullptr).empty());
    EXPECT_EQ(e->Compare(XmlChars("a"), XmlChars("a")), 0);
}

TEST(SelectTexts, KeepsDocumentOrderAcrossElementsAndEndsAtEntities)
{
    const XmlText inlined{ "<t>one<b>two<i>three</i></b>four<!--no--><?no no?></t>" };
    EXPECT_EQ(ContentsOf(AsNode(inlined.root())->selectAllTextNodes()),
              (vector<string>{ "one", "two", "three", "four" }));
    const XmlText ring{ kEntityRing };
    EXPECT_EQ(ContentsOf(AsNode(ring.root())->selectAllTextNodes()),
              (vector<string>{ "one", "two" }));
}

/// A plain name is answered by walking: it must be the very answer of XPath.
TEST(SelectByExpression, PlainNamesAnswerAsXPathDoes)
{
    const XmlText xml{
        "<r xmlns:p='urn:p'><p:a id='p'/><x><a id='deep'/></x><a id='1'/>t<!--a--><a "
        "id='2'/><b xmlns='urn:d' id='d'/><div id='v'/><é id='e'/></r>"
    };
    IXMLDOMElement* root = AsElement(xml.root());
    const SilentXml silent; // a name with an undeclared prefix is an error to XPath
    testing::internal::CaptureStdout();
    for (const char* name : { "a", "b", "p:a", "div", "é", "nope", "text()", "a[2]", "*", "@id" }) {
        SCOPED_TRACE(name);
        const string query = root->getNodeQueryString(Query(name));
        const XmlObjectPtr object{ root->getXPathObject(XmlChars(query.c_str())) };
        vector<string> expected;
        for (int i = 0; object && object->nodesetval && i < object->nodesetval->nodeNr; ++i)
            expected.push_back(IdOf(object->nodesetval->nodeTab[i]));

        _xmlNodeSet* all = root->selectNodes(Query(name));
        EXPECT_EQ(all == nullptr, expected.empty()); // an empty answer is null, not an empty set
        EXPECT_EQ(IdsOf(XmlNodeSetPtr(all)), expected);
        EXPECT_EQ(IdOf(root->selectSingleNode(Query(name))),
                  expected.empty() ? "nothing" : expected.front());
    }
    (void)testing::internal::GetCapturedStdout();
}

TEST(SelectByExpression, StaysInsideTheElement)
{
    const XmlText xml{ "<r><a><b id='1'/></a><a><b id='2'/><b id='3'/></a></r>" };
    IXMLDOMElement* second = AsElement(NextElement(xml.root()->children->next));
    EXPECT_EQ(IdOf(second->selectSingleNode(Query("b"))), "2");
    EXPECT_EQ(IdOf(second->selectSingleNode(Query("b[2]"))), "3");
    EXPECT_EQ(second->getNodeQueryString(Query("b")), "/r/a[2]/b");
    EXPECT_EQ(second->selectSingleNode(Query("namespace::*")), nullptr); // none of the tree's nodes
}

TEST(SelectByExpression, AnExpressionThatCannotBeEvaluatedIsReported)
{
    const XmlText xml{ "<r/>" };
    const SilentXml silent;
    testing::internal::CaptureStdout();
    EXPECT_EQ(AsElement(xml.root())->selectSingleNode(Query("[")), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "getXPathObject: expression result is NULL\n");
}

TEST(AttributeText, ResolvesEntitiesWithinBounds)
{
    const XmlText xml{ "<!DOCTYPE r [<!ENTITY e 'mid'><!ENTITY two '&e;&e;'>]>"
                       "<r a='x &e;-&two; &amp; y' b='' c='&#65;'/>" };
    string store;
    EXPECT_EQ(ResolvedText(FindAttribute(xml.root(), "a")->children, store), "x mid-midmid & y");
    EXPECT_EQ(ResolvedText(FindAttribute(xml.root(), "b")->children, store), "");
    EXPECT_EQ(ResolvedText(FindAttribute(xml.root(), "c")->children, store), "A");
}
