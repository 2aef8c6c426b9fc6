#include "xml/XMLHelpers.h"

#include "support/XmlFixture.h"

#include <functional>
#include <limits>

using Helpers = XMLHelpers<void>;
using namespace vantrel;

namespace {

/// What a save adds to an empty element.
std::string Written(const std::function<Status(_xmlNode*)>& save)
{
    const EmptyXml xml{ "P" };
    EXPECT_EQ(save(xml.root()), status::kOk);
    return xml.root()->children ? TextOf(xml.root()->children) : "";
}

/// What a load makes of `<v>text</v>`, starting from `value`.
template <class T>
T Loaded(Status (*load)(_xmlNode*, std::string, std::string, T*), std::string_view text, T value,
         Status expected = status::kOk)
{
    const XmlText xml{ "<P><v>" + std::string(text) + "</v></P>" };
    EXPECT_EQ(load(xml.root(), "v", "", &value), expected) << text;
    return value;
}

template <class T>
T Loaded(Status (*load)(_xmlNode*, std::string, std::string, T&), std::string_view text, T value,
         Status expected = status::kOk)
{
    const XmlText xml{ "<P><v>" + std::string(text) + "</v></P>" };
    EXPECT_EQ(load(xml.root(), "v", "", value), expected) << text;
    return value;
}

constexpr _GUID kGuid = { 0x01234567, 0x89AB, 0xCDEF, { 0, 1, 2, 3, 0xFC, 0xFD, 0xFE, 0xFF } };

std::string GuidText(const _GUID& guid)
{
    return Written([&](_xmlNode* p) { return Helpers::SaveUUIDNode(p, "v", "", guid); });
}

} // namespace

TEST(XMLHelpers, WritesEachKindWithItsTypeWord)
{
    char bytes[] = { '\x00', '\x7f', '\xff' };
    const struct
    {
        std::function<Status(_xmlNode*)> save;
        const char* text;
    } cases[] = {
        { [](_xmlNode* p) { return Helpers::SaveULongNode(p, "v", "", ~0UL); },
          R"(<v dt:dt="ui4">18446744073709551615</v>)" },
        { [](_xmlNode* p) { return Helpers::SaveFloatNode(p, "v", "", 0.1F); },
          R"(<v dt:dt="r4">0.1</v>)" },
        { [](_xmlNode* p) { return Helpers::SaveStringNode(p, "v", "", "a < \x01\xC3\xBC"); },
          "<v dt:dt=\"string\">a &lt; \xEF\xBF\xBD\xC3\xBC</v>" },
        { [&](_xmlNode* p) { return Helpers::SaveBlobNode(p, "v", "", bytes, 3); },
          R"(<v dt:dt="bin.hex">007fff</v>)" },
        { [](_xmlNode* p) { return Helpers::SaveCOLORREFNode(p, "v", "", 0xABC); },
          R"(<v dt:dt="string">#000abc</v>)" },
        { [](_xmlNode* p) { return Helpers::SaveCOLORREFNode(p, "v", "", 0xFF123456); },
          R"(<v dt:dt="string">#ff123456</v>)" },
        { [](_xmlNode* p) { return Helpers::SaveUUIDNode(p, "v", "", kGuid); },
          R"(<v dt:dt="uuid">{01234567-89AB-CDEF-0001-0203FCFDFEFF}</v>)" },
        { [](_xmlNode* p) { return Helpers::SaveNode(p, "v", "n", "", "gone", nullptr); },
          R"(<v Name="n"/>)" },
        { [](_xmlNode* p) {
             D3DXVECTOR3 vector(1.0F, -0.5F, 0.0F);
             return Helpers::SaveD3DVECTOR3Node(p, "v", "", &vector);
         },
          R"(<v Name=""><x dt:dt="r4">1</x><y dt:dt="r4">-0.5</y><z dt:dt="r4">0</z></v>)" },
    };
    for (const auto& row : cases)
        EXPECT_EQ(Written(row.save), row.text);
}

TEST(XMLHelpers, ReadsNumbersAsTheCLibraryDoes)
{
    EXPECT_EQ(Loaded(Helpers::LoadLongNode, "12abc", 5L), 12);
    EXPECT_EQ(Loaded(Helpers::LoadLongNode, "", 5L), 0);
    EXPECT_EQ(Loaded(Helpers::LoadLongNode, "<c/>12", 5L), 12); // wherever the text stands
    // Negative numbers that were written as unsigned ones come back as they were.
    EXPECT_EQ(Loaded(Helpers::LoadLongNode, "18446744073709551615", 5L), -1);
    EXPECT_EQ(Loaded(Helpers::LoadULongNode, "18446744073709551615", 5UL), ~0UL);
    EXPECT_EQ(Loaded(Helpers::LoadULongNode, "-2", 5UL), ~0UL - 1);
    EXPECT_EQ(Loaded(Helpers::LoadFloatNode, "1e300", 5.0F),
              std::numeric_limits<float>::infinity());
    EXPECT_TRUE(Loaded(Helpers::LoadBoolNode, "1", false));
    EXPECT_FALSE(Loaded(Helpers::LoadBoolNode, "true", true));
    EXPECT_FALSE(Loaded(Helpers::LoadBoolNode, "01", true));
    EXPECT_EQ(Loaded<std::string>(Helpers::LoadStringNode, "", "former"), "");
}

TEST(XMLHelpers, ReadsColoursAndIdentifiers)
{
    EXPECT_EQ(Loaded(Helpers::LoadCOLORREFNode, "#00FF7f", 5UL), 0xFF7F);
    EXPECT_EQ(Loaded(Helpers::LoadCOLORREFNode, "00FF7f", 5UL), 5);
    EXPECT_EQ(Loaded(Helpers::LoadCOLORREFNode, "#green", 5UL), 5);

    for (const char* text :
         { "{01234567-89AB-CDEF-0001-0203FCFDFEFF}", "01234567-89ab-cdef-0001-0203fcfdfeff" })
        EXPECT_EQ(GuidText(Loaded(Helpers::LoadUUIDNode, text, _GUID())), GuidText(kGuid));
    for (const char* text : { "", "{}", "{", "{01234567-89AB-CDEF-0001-0203FCFDFEFF",
                              "01234567-89AB-CDEF-0001-0203FCFDFEF", "0123456789ABCDEF00010203",
                              "{01234567-89AB-CDEF-0001-0203FCFDFEFG}" })
        EXPECT_EQ(GuidText(Loaded(Helpers::LoadUUIDNode, text, kGuid, status::kBadArgument)),
                  GuidText(kGuid));
}

TEST(LoadBlob, FillsNoMoreThanThereIsRoomFor)
{
    const struct
    {
        const char* text;
        Status result;
        unsigned long size; ///< of a buffer that takes 3 bytes, afterwards
        const char* bytes;
    } cases[] = { { " 4a\n4B ", status::kOk, 2, "JK.!" },
                  { "4142434445", status::kOk, 3, "ABC!" },
                  { "", status::kOk, 0, "...!" },
                  { "414", status::kBadArgument, 3, "...!" },
                  { "4142434g", status::kBadArgument, 3, "...!" } };
    for (const auto& c : cases) {
        const XmlText xml{ std::string("<P><v>") + c.text + "</v></P>" };
        std::string bytes = "...!";
        unsigned long size = 3;
        EXPECT_EQ(Helpers::LoadBlobNode(xml.root(), "v", "", bytes.data(), size), c.result);
        EXPECT_EQ(size, c.size) << c.text;
        EXPECT_EQ(bytes, c.bytes);
    }
}

TEST(XMLHelpers, MissingElementsAndParentsLeaveTheOutputAlone)
{
    const XmlText xml{ "<P/>" };
    long number = 5;
    std::string text = "former";
    _xmlNode* element = xml.root();
    unsigned long size = 1;
    char byte = '?';
    D3DXVECTOR3 vector(1.0F, 2.0F, 3.0F);
    Helpers::Attributes wanted = { { "key", "former" } };
    EXPECT_EQ(Helpers::LoadLongNode(xml.root(), "v", "", &number), status::kNothingDone);
    EXPECT_EQ(Helpers::LoadLongNode(nullptr, "v", "", &number), status::kBadArgument);
    EXPECT_EQ(Helpers::LoadNode(xml.root(), "v", "", &text, &element), status::kNothingDone);
    EXPECT_EQ(Helpers::LoadNode(xml.root(), "v", wanted, &element), status::kNothingDone);
    EXPECT_EQ(Helpers::LoadBlobNode(xml.root(), "v", "", &byte, size), status::kNothingDone);
    EXPECT_EQ(Helpers::LoadD3DVECTOR3Node(xml.root(), "v", "", &vector), status::kFailure);
    EXPECT_EQ(Helpers::SaveLongNode(nullptr, "v", "", 1), status::kBadArgument);
    EXPECT_EQ(Helpers::SaveD3DVECTOR3Node(nullptr, "v", "", &vector), status::kBadArgument);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(text, "former");
    EXPECT_EQ(element, xml.root());
    EXPECT_EQ(size, 1U);
    EXPECT_EQ(vector.y, 2.0F);
    EXPECT_EQ(wanted["key"], "former");
}

TEST(XMLHelpers, NameSelectsAmongElements)
{
    const XmlText xml{ "<P><a><v Name='x'>1</v><v>2</v><v Name='y\"]'>3</v></a></P>" };
    long value = 0;
    EXPECT_EQ(Helpers::LoadLongNode(xml.root(), "a/v", "y\"]", &value), status::kOk);
    EXPECT_EQ(value, 3);
    EXPECT_EQ(Helpers::LoadLongNode(xml.root(), "a/v", "", &value), status::kOk);
    EXPECT_EQ(value, 1);
    EXPECT_EQ(Helpers::LoadLongNode(xml.root(), "a/v", "z", &value), status::kNothingDone);
}

TEST(XMLHelpers, ForeignContentHidesNothing)
{
    const XmlText xml{ "<!DOCTYPE P [<!ENTITY e '3'>]><P xmlns:x='urn:x'><x:a><v>0</v></x:a><?a b?>"
                       "<a><x:v Name='n'>1</x:v><?v 1?><v x:Name='n'>2</v><v x:Name='m' Name='n'>"
                       "<!-- 9 -->1<![CDATA[2]]>&e;<x:v>8</x:v></v></a></P>" };
    long value = 0;
    EXPECT_EQ(Helpers::LoadLongNode(xml.root(), "a/v", "n", &value), status::kOk);
    EXPECT_EQ(value, 123); // all text that stands in the element itself
    EXPECT_EQ(Helpers::LoadLongNode(xml.root(), "a/v", "", &value), status::kOk);
    EXPECT_EQ(value, 2);
}

TEST(XMLHelpers, VectorsWithoutAComponentHaveZeroThere)
{
    const XmlText xml{ "<P><v><y>2.5</y></v></P>" };
    D3DXVECTOR3 v(1.0F, 1.0F, 1.0F);
    EXPECT_EQ(Helpers::LoadD3DVECTOR3Node(xml.root(), "v", "", &v), status::kOk);
    EXPECT_TRUE(v.x == 0.0F && v.y == 2.5F && v.z == 0.0F);
}

TEST(XMLHelpers, AttributesComeAndGoThroughAMap)
{
    const EmptyXml xml{ "P" };
    Helpers::Attributes written = { { "b", "2 \"<" }, { "a", "1" } };
    _xmlNode* element = nullptr;
    EXPECT_EQ(Helpers::SaveNode(xml.root(), "v", written, &element), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), "<P><v a=\"1\" b=\"2 &quot;&lt;\"/></P>");

    Helpers::Attributes wanted = { { "b", "" }, { "missing", "former" } };
    EXPECT_EQ(Helpers::LoadNode(xml.root(), "v", wanted, nullptr), status::kOk);
    EXPECT_EQ(wanted, (Helpers::Attributes{ { "b", "2 \"<" }, { "missing", "" } }));

    EXPECT_EQ(Helpers::SaveAttributes(element, written), status::kOk);
    EXPECT_EQ(TextOf(element), "<v a=\"1\" b=\"2 &quot;&lt;\"/>"); // replaced

    Helpers::Attributes bad = { { "a b", "1" } };
    D3DXVECTOR3 vector(1.0F, 2.0F, 3.0F);
    char byte = 1;
    for (const Status refused : { Helpers::SaveNode(xml.root(), "w", bad, nullptr),
                                  Helpers::SaveNode(xml.root(), "1w", written, nullptr),
                                  Helpers::SaveNode(xml.root(), "w<", "", "string", "", nullptr),
                                  Helpers::SaveLongNode(xml.root(), "w w", "", 1),
                                  Helpers::SaveBlobNode(xml.root(), "", "", &byte, 1),
                                  Helpers::SaveD3DVECTOR3Node(xml.root(), "-w", "", &vector) })
        EXPECT_EQ(refused, status::kBadArgument);
    EXPECT_EQ(xml.root()->last, element); // nothing was attached
}

TEST(XMLHelpers, CommentsCanAlwaysBeReadBack)
{
    const EmptyXml xml{ "P" };
    EXPECT_EQ(Helpers::AppendComment(xml.root(), "a---b-"), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), "<P><!--a- - -b- --></P>");
    EXPECT_EQ(Helpers::AppendComment(nullptr, "a"), status::kBadArgument);
}

TEST(XMLHelpers, DocumentIsMadeOnce)
{
    _xmlDoc* doc = nullptr;
    EXPECT_EQ(Helpers::CreateDocument(nullptr), status::kBadArgument);
    EXPECT_EQ(Helpers::CreateDocument(&doc), status::kOk);
    const vantrel::XmlDocPtr owner{ doc };
    EXPECT_EQ(TextOf(xmlDocGetRootElement(doc)),
              R"(<Root xmlns:dt="urn:schemas-microsoft-com:datatypes"/>)");
    EXPECT_EQ(Helpers::CreateDocument(&doc), status::kOk);
    EXPECT_EQ(doc, owner.get());
}

TEST(XMLHelpers, RemoveNodeTakesAllElementsOfAName)
{
    const XmlText xml{ "<P>text<a/><b/>more<a><a/></a></P>" };
    EXPECT_EQ(Helpers::RemoveNode(xml.root(), "a"), status::kOk);
    EXPECT_EQ(Helpers::RemoveNode(xml.root(), "text"), status::kNothingDone);
    EXPECT_EQ(Helpers::RemoveNode(xml.root(), ""), status::kNothingDone);
    EXPECT_EQ(TextOf(xml.root()), "<P>text<b/>more</P>");
    EXPECT_EQ(Helpers::RemoveNode(nullptr, "a"), status::kBadArgument);
}
