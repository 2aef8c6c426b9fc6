#include "xml/KeptXml.h"

#include "support/XmlFixture.h"
#include "xml/XmlFile.h"

#include <optional>
#include <string>

using namespace vantrel;

namespace {

/// The bytes of a new file that gets `kept`, lent or copied, more than once over.
std::string WrittenFile(const KeptXmlPtr& kept, bool lend)
{
    const EmptyXml out;
    std::string bytes;
    std::optional<XmlLoan> loan;
    if (lend)
        loan.emplace(out.doc());
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(AppendKeptXml(out.root(), kept), status::kOk);
    EXPECT_TRUE(SerializeXml(out.doc(), &bytes));
    return bytes;
}

/// What the root's first child element looks like in a new file when it is kept, taken or copied.
std::string KeptAndWritten(const char* text)
{
    XmlNodePtr copy;
    KeptXmlPtr taken;
    {
        const XmlText xml{ text };
        xmlNode* child = NextElement(xml.root()->children);
        copy = CopyXml(child);
        taken = TakeXml(child);
        EXPECT_EQ(NextElement(xml.root()->children), nullptr);
    } // both must outlive their document
    const EmptyXml out;
    EXPECT_EQ(AppendXmlCopy(out.root(), copy.get()), status::kOk);
    EXPECT_EQ(AppendKeptXml(out.root(), taken), status::kOk);
    EXPECT_EQ(TextOf(out.root()->children), TextOf(out.root()->last));

    const std::string copied = WrittenFile(taken, false);
    EXPECT_EQ(WrittenFile(taken, true), copied);
    EXPECT_EQ(WrittenFile(taken, true), copied); // lent things come back
    EXPECT_EQ(WrittenFile(KeptXmlPtr{ copy.release() }, true), copied);
    return TextOf(out.root()->children);
}

} // namespace

TEST(KeptXml, NeedsNoNamespaceDeclarationOfItsOwn)
{
    constexpr const char* text = R"(<Root xmlns:dt="urn:schemas-microsoft-com:datatypes">)"
                                 R"(<k><v dt:dt="i4" Name="é &lt;">7<!--c--></v></k></Root>)";
    EXPECT_EQ(KeptAndWritten(text), R"(<k><v dt:dt="i4" Name="é &lt;">7<!--c--></v></k>)");
}

TEST(KeptXml, DeclaresOtherPrefixesThatItUses)
{
    EXPECT_EQ(KeptAndWritten(R"(<Root xmlns:p="urn:p"><k><p:v xml:lang="en" p:a="1"/></k></Root>)"),
              R"(<k xmlns:p="urn:p"><p:v xml:lang="en" p:a="1"/></k>)");
    EXPECT_EQ(KeptAndWritten(R"(<Root><k xmlns="urn:d"><q:v xmlns:q="urn:q"/></k></Root>)"),
              R"(<k xmlns="urn:d"><q:v xmlns:q="urn:q"/></k>)");
}

TEST(KeptXml, TurnsEntityReferencesIntoTheirText)
{
    EXPECT_EQ(KeptAndWritten("<!DOCTYPE r [<!ENTITY e 'mid'>]><r><k a='&e;'>x&e;y</k></r>"),
              R"(<k a="mid">xmidy</k>)");
}

TEST(KeptXml, ReferencesThatUnfoldWithoutBoundAreLeftOut)
{
    std::string text = "<!DOCTYPE r [<!ENTITY a '" + std::string(2000, 'x') + "'>]><r><k>";
    for (int i = 0; i < 600; ++i)
        text += "&a;";
    const XmlText xml{ text + "end</k></r>" };
    const KeptXmlPtr kept = TakeXml(xml.root()->children);
    EXPECT_EQ(TextOf(kept.get()), "<k>" + std::string(1'000'000, 'x') + "end</k>");
}

TEST(KeptXml, ReleasedLenderOrFileLeavesNoTrace)
{
    EXPECT_EQ(TakeXml(nullptr), nullptr);
    EXPECT_EQ(CopyXml(nullptr), nullptr);
    const EmptyXml out;
    EXPECT_EQ(AppendXmlCopy(out.root(), nullptr), status::kNullPointer);
    EXPECT_EQ(AppendXmlCopy(nullptr, out.root()), status::kNullPointer);

    // A tree that a program built, without a dictionary, and with a name that needs its prefix.
    const EmptyXml built;
    const xmlNs* dt = xmlNewNs(built.root(), XmlChars(kDataTypesUri), XmlChars("dt"));
    xmlNode* child = xmlNewChild(built.root(), nullptr, XmlChars("k"), XmlChars("v"));
    xmlNewNsProp(child, const_cast<xmlNs*>(dt), XmlChars("dt"), XmlChars("i4"));
    const KeptXmlPtr kept = TakeXml(child);
    EXPECT_EQ(TextOf(kept.get()), R"(<k dt:dt="i4">v</k>)");
}

TEST(KeptXml, IsTakenOutOfADocumentThatIsGivenAway)
{
    const XmlText xml{ "<r><k>a</k></r>" };
    EXPECT_EQ(TextOf(KeepXml(xml.root()->children).get()), "<k>a</k>");
    EXPECT_EQ(TextOf(xml.root()), "<r><k>a</k></r>");
    KeptXmlPtr taken;
    {
        const XmlGift gift(xml.doc());
        taken = KeepXml(xml.root()->children);
    }
    EXPECT_EQ(TextOf(taken.get()), "<k>a</k>");
    EXPECT_EQ(TextOf(xml.root()), "<r/>");
    EXPECT_EQ(KeepXml(nullptr), nullptr);
}
