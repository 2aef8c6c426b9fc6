#include "xml/XMLWrapper.h"

#include "support/XmlFixture.h"
#include "xml/MemberTable.h"

#include <string>

using namespace vantrel;

namespace {

struct Sample
{
    long count = 5;
    bool on = true;
    std::string text = "former";
};

constexpr MemberRow<Sample> kSample[] = {
    member::Long<&Sample::count>("count"),
    member::BoolOrFalse<&Sample::on>("on"),
    member::String<&Sample::text>("text"),
};

class SampleWrapper : public XMLWrapper<Sample>
{
public:
    explicit SampleWrapper(Sample& sample, bool elementNames = true) : XMLWrapper(sample, "sample")
    {
        m_useElementNames = elementNames;
    }
    Status SaveMembers() override
    {
        SaveTable(kSample);
        return status::kOk;
    }
    Status LoadMembers() override
    {
        LoadTable(kSample);
        return LoadLongMember("count", &m_object.count);
    }
};

struct Plain
{
    unsigned char bytes[2];
};

constexpr const char* kNamed =
    R"(<P><sample><count dt:dt="i4">1</count>)"
    R"(<on dt:dt="boolean">1</on><text dt:dt="string">a</text></sample></P>)";
constexpr const char* kMembers =
    R"(<P><struct Name="sample"><member Name="count" dt:dt="i4">1</member>)"
    R"(<member Name="on" dt:dt="boolean">1</member>)"
    R"(<member Name="text" dt:dt="string">a</member></struct></P>)";

} // namespace

TEST(XMLWrapper, WritesAndReadsInBothModes)
{
    for (const bool elementNames : { true, false }) {
        Sample sample{ 1, true, "a" };
        const EmptyXml xml{ "P" };
        EXPECT_EQ(SampleWrapper(sample, elementNames).SaveToXML(xml.root(), false), status::kOk);
        EXPECT_EQ(TextOf(xml.root()), elementNames ? kNamed : kMembers);

        Sample read;
        EXPECT_EQ(SampleWrapper(read, elementNames).LoadFromXML(xml.root(), false), status::kOk);
        EXPECT_EQ(read.count, 1);
        EXPECT_EQ(read.text, "a");
        Sample other;
        EXPECT_EQ(SampleWrapper(other, !elementNames).LoadFromXML(xml.root(), false),
                  status::kBadArgument);
        EXPECT_EQ(other.text, "former");
    }
}

TEST(XMLWrapper, DirectMembersNeedNoElement)
{
    Sample sample;
    const EmptyXml xml{ "P" };
    EXPECT_EQ(SampleWrapper(sample).SaveToXML(xml.root(), true), status::kOk);
    EXPECT_EQ(TextOf(xml.root()->children), R"(<count dt:dt="i4">5</count>)");
    EXPECT_EQ(SampleWrapper(sample).SaveToXML(nullptr, true), status::kBadArgument);
    EXPECT_EQ(SampleWrapper(sample).LoadFromXML(nullptr, false), status::kBadArgument);
}

TEST(MemberTable, FirstOfANameCountsInAnyOrderAndTheRestStays)
{
    const XmlText xml{
        "<P><text>b</text><!--count--><count>7</count><other/><count>8</count></P>"
    };
    Sample sample;
    LoadRows({ xml.root() }, kSample, sample);
    EXPECT_EQ(sample.count, 7);
    EXPECT_EQ(sample.text, "b");
    EXPECT_FALSE(sample.on); // missing means false for this row
    LoadRows({ nullptr }, kSample, sample);
    EXPECT_EQ(sample.count, 7);
}

TEST(XMLWrapper, ObjectOfPlainBytesIsABlobUntilItsWrapperSaysMore)
{
    Plain plain{ { 0x12, 0xAB } };
    const EmptyXml xml{ "P" };
    XMLWrapper<Plain> wrapper(plain, "plain");
    EXPECT_EQ(wrapper.SaveToXML(xml.root(), false), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), R"(<P><plain><plain dt:dt="bin.hex">12ab</plain></plain></P>)");
    plain = {};
    EXPECT_EQ(wrapper.LoadFromXML(xml.root(), false), status::kOk);
    EXPECT_EQ(plain.bytes[1], 0xAB);

    Sample sample; // bytes would destroy the string
    EXPECT_EQ(XMLWrapper<Sample>(sample, "s").SaveToXML(xml.root(), false), status::kNotAvailable);
    EXPECT_EQ(XMLWrapper<Sample>(sample, "s").LoadFromXML(xml.root(), false),
              status::kNotAvailable);
}
