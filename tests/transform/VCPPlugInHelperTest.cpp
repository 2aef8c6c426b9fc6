#include "transform/VCPPlugInHelper.h"

#include "support/XmlFixture.h"
#include "xml/XmlPtr.h"

#include <gtest/gtest.h>

#include <string>

using vantrel::XmlNodePtr;

TEST(PlugInHelper, SaveHandsOutAnUpdatedCopy)
{
    XmlNodePtr saved;
    CVCPPlugInHelper helper;
    {
        const XmlText xml{ "<plugin_data><Caps>3</Caps><html>a</html><EndPathID>4</EndPathID>"
                           "<Scaling><StartOffsetElements><KeyFrame/></StartOffsetElements>"
                           "</Scaling></plugin_data>" };
        const std::string before = TextOf(xml.root());
        _xmlNode* out = nullptr;
        EXPECT_EQ(helper.SaveXML(&out), status::kFailure); // nothing loaded
        EXPECT_EQ(helper.LoadXML(xml.root()), status::kOk);
        EXPECT_EQ(helper.SaveXML(nullptr), status::kFailure);
        helper.DeleteAllKeys(TRANSFORM_SCALING, vantrel::kAllKeyframes);
        helper.LoadPath(KVC_KEYFRAME_END_OFFSET, nullptr);
        ASSERT_EQ(helper.SaveXML(&out), status::kOk);
        saved.reset(out);
        EXPECT_EQ(TextOf(xml.root()), before);
    }
    // outlives the document; "EndPathID" and "Scaling" are not there to be read back
    const std::string text = TextOf(saved.get());
    EXPECT_EQ(text.find("<plugin_data><html>a</html><IsSelectable"), 0U);
    EXPECT_NE(text.find("<Caps dt:dt=\"ui4\">3</Caps><HandlesDelta"), std::string::npos);
}

TEST(PlugInHelper, MergePutsContentInPlaceOfItsNamesake)
{
    const CVCPPlugInHelper helper;
    const XmlText xml{ "<a><html>old</html><b/></a>" };
    const XmlText other{ "<c><html xmlns:dt='urn:d' dt:dt='x'>new</html></c>" };
    XmlNodePtr alone{ xmlNewNode(nullptr, vantrel::XmlChars("html")) };
    _xmlNode* out = nullptr;
    EXPECT_EQ(helper.MergeXML(xml.root(), nullptr, &out), status::kNullPointer);
    EXPECT_EQ(helper.MergeXML(xml.root(), other.root()->children->children, &out),
              status::kBadArgument); // a text

    ASSERT_EQ(helper.MergeXML(xml.root(), alone.get(), &out), status::kOk);
    EXPECT_EQ(out->last, alone.release()); // itself, not a copy
    EXPECT_EQ(TextOf(XmlNodePtr{ out }.get()), "<a><b/><html/></a>");

    ASSERT_EQ(helper.MergeXML(xml.root(), other.root()->children, &out), status::kOk);
    EXPECT_EQ(TextOf(XmlNodePtr{ out }.get()),
              R"(<a><b/><html xmlns:dt="urn:d" dt:dt="x">new</html></a>)");
    EXPECT_EQ(TextOf(other.root()), "<c/>");
    EXPECT_EQ(TextOf(xml.root()), "<a><html>old</html><b/></a>");
}
