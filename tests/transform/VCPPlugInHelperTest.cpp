#include "transform/VCPPlugInHelper.h"

#include "support/XmlFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using vantrel::XmlNodePtr;
using namespace vantrel;

TEST(PlugInHelper, SaveHandsOutAnUpdatedCopy)
{
    CVCPPlugInHelper helper;
    _xmlNode* out = nullptr;
    EXPECT_EQ(helper.SaveXML(&out), status::kFailure); // nothing loaded
    {
        const XmlText xml{ "<p><Caps>3</Caps><html>a</html><EndPathID>4</EndPathID><Scaling>"
                           "<EndOffsetElements><KeyFrame/></EndOffsetElements></Scaling></p>" };
        const std::string before = TextOf(xml.root());
        EXPECT_EQ(helper.LoadXML(xml.root()), status::kOk);
        helper.LoadPath(KVC_KEYFRAME_END_OFFSET, nullptr);
        ASSERT_EQ(helper.SaveXML(&out), status::kOk);
        EXPECT_EQ(TextOf(xml.root()), before);
    }
    // outlives the document; "EndPathID" and "Scaling" are not there to be read back
    EXPECT_THAT(TextOf(XmlNodePtr{ out }.get()),
                testing::AllOf(testing::StartsWith("<p><html>a</html><IsSelectable"),
                               testing::HasSubstr("<Caps dt:dt=\"ui4\">3</Caps><HandlesDelta")));
}

TEST(PlugInHelper, MergePutsContentInPlaceOfItsNamesake)
{
    const CVCPPlugInHelper helper;
    const XmlText xml{ "<a><html>old</html><b/></a>" };
    XmlText other{
        "<!DOCTYPE c [<!ENTITY e 'lot'>]><c xmlns:o='urn:o' xmlns:dt="
        "'urn:schemas-microsoft-com:datatypes'><html xml:lang='en' o:a='1'><o:b dt:dt='r4'>a "
        "&e; of new</o:b><!-- a remark --></html></c>"
    };
    _xmlNode* alone = xmlNewNode(nullptr, vantrel::XmlChars("html"));
    _xmlNode* out = nullptr;
    EXPECT_EQ(helper.MergeXML(xml.root(), nullptr, &out), status::kNullPointer);
    EXPECT_EQ(helper.MergeXML(xml.root(), xml.root()->children->children, &out),
              status::kBadArgument); // a text
    ASSERT_EQ(helper.MergeXML(xml.root(), alone, &out), status::kOk);
    EXPECT_EQ(out->last, alone); // itself, not a copy
    EXPECT_EQ(TextOf(XmlNodePtr{ out }.get()), "<a><b/><html/></a>");
    _xmlNode* const content = other.root()->children;
    const xmlNode* const inner = content->children;
    ASSERT_EQ(helper.MergeXML(xml.root(), content, &out), status::kOk);
    EXPECT_EQ(out->last, content); // from a document too
    EXPECT_EQ(content->children, inner);
    other = XmlText{ "<gone/>" };
    EXPECT_EQ(TextOf(XmlNodePtr{ out }.get()),
              R"(<a><b/><html xmlns:o="urn:o" xml:lang="en" o:a="1"><o:b dt:dt="r4">a lot of new)"
              R"(</o:b><!-- a remark --></html></a>)");
    EXPECT_EQ(TextOf(xml.root()), "<a><html>old</html><b/></a>");
}
