#include "xml/KeptXml.h"

#include "support/XmlFixture.h"

#include <string>

using namespace vantrel;

namespace {

/// What a kept copy of the root's first child element looks like in a new file.
std::string KeptAndWritten(const char* text)
{
    XmlNodePtr kept;
    {
        const XmlText xml{ text };
        kept = CopyXml(NextElement(xml.root()->children));
    } // the copy must outlive its document
    const EmptyXml out;
    EXPECT_EQ(AppendXmlCopy(out.root(), kept.get()), status::kOk);
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
