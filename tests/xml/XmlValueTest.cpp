#include "xml/XmlValue.h"

#include "support/XmlFixture.h"

#include <string>

using std::string;
using namespace vantrel;

// Short texts lie within their nodes: at no length may a copy, a move to another document or a later
// change of the value show it.
class AddAttributeOfLength : public testing::TestWithParam<std::size_t>
{};

TEST_P(AddAttributeOfLength, IsAnAttributeLikeAnyOther)
{
    const string value(GetParam(), 'v');
    const string expected = "<Root a=\"" + value + "\"/>";
    EmptyXml moved;
    {
        EmptyXml xml;
        ASSERT_EQ(AddAttribute(xml.root(), "a", value), status::kOk);
        EXPECT_EQ(TextOf(xml.root()), expected);
        xmlNode* copy = xmlDocCopyNode(xml.root(), moved.doc(), 1);
        xmlAddChild(moved.root(), copy);
        xmlNode* root = xml.root();
        xmlUnlinkNode(root);
        xmlAddChild(moved.root(), root);
    }
    EXPECT_EQ(TextOf(moved.root()), "<Root>" + expected + expected + "</Root>");
    xmlSetProp(moved.root()->children, XmlChars("a"), XmlChars("another and a longer value"));
    EXPECT_EQ(TextOf(moved.root()->children), "<Root a=\"another and a longer value\"/>");
}

INSTANTIATE_TEST_SUITE_P(Lengths, AddAttributeOfLength, testing::Values(0, 1, 15, 16, 1000));

TEST(AddAttribute, RefusesNull)
{
    EXPECT_EQ(AddAttribute(nullptr, "a", "value"), status::kNullPointer);
}
