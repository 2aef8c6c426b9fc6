#include "storyboard/ProductionObject.h"

#include "storyboard/MotionObject.h"
#include "support/StoryboardFixture.h"

using namespace vantrel;

namespace {

constexpr const char* kDt = "<O xmlns:dt='urn:schemas-microsoft-com:datatypes'>";

/// A gradient of 2 rows and as many columns as are told, with these "color" elements.
std::string Gradient(const char* columns, const char* colors)
{
    return std::string("<O><gradientRows>2</gradientRows><gradientCols>") + columns +
           "</gradientCols><gradientColors>" + colors + "</gradientColors></O>";
}

} // namespace

TEST(ProductionObject, NewOneWritesItsDefaults)
{
    CProductionObject production;
    EXPECT_EQ(
        WrittenObject(production),
        R"(<O><LibraryAlbumID dt:dt="i4">-1</LibraryAlbumID><Duration dt:dt="r8">0</Duration>)"
        R"(<uuid dt:dt="string">{941D8B77-2EA3-4157-9F5D-49AB36D5B2F6}</uuid>)"
        R"(<aspectRatio dt:dt="r8">0</aspectRatio><editFrameRate dt:dt="r8">29.97</editFrameRate>)"
        R"(<bkgType dt:dt="ui4">1</bkgType><bkgTile dt:dt="boolean">0</bkgTile>)"
        R"(<bkgColor dt:dt="string">#000000</bkgColor><gradientRows dt:dt="ui4">0</gradientRows>)"
        R"(<gradientCols dt:dt="ui4">0</gradientCols><is3DProduction dt:dt="boolean">0</is3DProduction>)"
        R"(<leftEyePrecedence dt:dt="boolean">1</leftEyePrecedence>)"
        R"(<layoutMode3D dt:dt="ui4">0</layoutMode3D><gradientColors/>)"
        R"(<metadata><trackstatus><Visible><Audio><Native dt:dt="boolean">0</Native>)"
        R"(<Narration dt:dt="boolean">0</Narration><SoundEffect dt:dt="boolean">0</SoundEffect>)"
        R"(</Audio></Visible></trackstatus></metadata>)"
        R"(<parentObject><effects/><audioList/></parentObject></O>)");
}

TEST(ProductionObject, MissingElementsGiveTheirDefaultOrLeaveTheField)
{
    CProductionObject production;
    production.m_bkgType = 9;
    production.m_bkgTile = true;
    production.m_layoutMode3D = 9;
    production.m_editFrameRate = 25.0;
    production.m_bkgColor = 9;
    ReadObject(production, "<O><bkgColor>green</bkgColor></O>");
    EXPECT_EQ(production.m_bkgType, 1U);
    EXPECT_FALSE(production.m_bkgTile);
    EXPECT_EQ(production.m_layoutMode3D, 0U);
    EXPECT_EQ(production.m_editFrameRate, 25.0);
    EXPECT_EQ(production.m_bkgColor, 9U);
    EXPECT_EQ(production.PersistXML(nullptr, false), status::kBadArgument);
}

TEST(ProductionObject, OnlyTheWatermarksIdentifierSetsIt)
{
    CProductionObject production;
    ReadObject(production, "<O><uuid>{F66FD1A7-5276-4671-86E7-213D3C55BFD9}</uuid></O>");
    EXPECT_TRUE(production.m_useWatermark);
    ReadObject(production, "<O><uuid>{941D8B77-2EA3-4157-9F5D-49AB36D5B2F6}</uuid></O>");
    EXPECT_TRUE(production.m_useWatermark);
}

TEST(ProductionObject, GradientIsPlacedByIndexAndBounded)
{
    CProductionObject production;
    ReadObject(production,
               Gradient("2", "<color><RGB>#3</RGB><index>3</index></color>"
                             "<color><index>4</index><RGB>#ff</RGB></color>"
                             "<color><index>-1</index><RGB>#ff</RGB></color>"
                             "<color><RGB>#ff</RGB></color><color><index>1</index></color>"));
    EXPECT_EQ(production.m_gradientColors, (std::vector<unsigned long>{ 0, 0, 0, 3 }));

    for (const char* columns : { "41", "32769", "2147483647", "4294967295", "-3" }) {
        CProductionObject other;
        ReadObject(other, Gradient(columns, "<color><index>0</index><RGB>#1</RGB></color>"));
        EXPECT_TRUE(other.m_gradientColors.empty()) << columns;
        WrittenObject(other);
    }
    CProductionObject largest;
    ReadObject(largest, Gradient("32", ""));
    EXPECT_EQ(largest.m_gradientColors.size(), 64U);
}

TEST(ProductionObject, SavesTheColoursThatALoadWillHave)
{
    CProductionObject production;
    production.m_gradientRows = 70000;
    production.m_gradientCols = 70000;
    production.m_gradientColors = { 1 };
    EXPECT_EQ(WrittenObject(production).find("<color>"), std::string::npos);
    production.m_gradientRows = 1;
    production.m_gradientCols = 2;
    const std::string text = WrittenObject(production);
    EXPECT_NE(text.find("#000001"), std::string::npos);
    EXPECT_NE(text.find("#000000", text.find("#000001")), std::string::npos); // not given: black
}

TEST(ProductionObject, MetaDataIsFoundAsGivenThenFolded)
{
    const XmlText xml{ "<m a='1'/>" };
    CProductionObject production;
    _xmlNode* found = nullptr;
    EXPECT_EQ(production.SetMetaData("Author", xml.root()), status::kOk);
    EXPECT_EQ(production.SetMetaData("", xml.root()), status::kBadArgument);
    EXPECT_EQ(production.SetMetaData("no name", xml.root()), status::kBadArgument);
    EXPECT_EQ(production.SetMetaData("x", nullptr), status::kBadArgument);
    EXPECT_EQ(production.GetMetaData("AUTHOR", &found), status::kOk);
    EXPECT_EQ(TextOf(found), R"(<m a="1"/>)");
    EXPECT_NE(found, xml.root());

    ReadObject(production, std::string(kDt) + "<metadata> <Author> <b dt:dt='i4'/> <c/></Author>"
                                              "<empty> </empty></metadata></O>");
    EXPECT_EQ(production.GetMetaData("Author", &found), status::kOk);
    EXPECT_EQ(TextOf(found), R"(<b dt:dt="i4"/>)"); // the file's own key comes first
    EXPECT_EQ(production.GetMetaData("empty", &found), status::kNothingDone);
    EXPECT_EQ(production.GetMetaData("", &found), status::kBadArgument);
    EXPECT_EQ(production.GetMetaData("Author", nullptr), status::kBadArgument);
    production.m_metaData["not a name"].reset(xmlNewNode(nullptr, vantrel::XmlChars("n")));
    EXPECT_EQ(WrittenObject(production).find("not a name"), std::string::npos);
}

TEST(ProductionObject, IdIsSetAsideForASpecialEffect)
{
    CQZBaseSBD sbd;
    CProductionObject production;
    production.SetSBD(&sbd);
    ReadObject(production, "<O/>");
    EXPECT_EQ(sbd.m_nextID, 1);
    ReadObject(production, "<O><specialEffect/></O>");
    EXPECT_EQ(production.m_specialEffect->CSubObjectImpl::m_id, 2);
    EXPECT_EQ(production.m_specialEffect->GetSBD(), &sbd);
}
