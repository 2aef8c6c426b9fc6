#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/TransitionObject.h"
#include "support/StoryboardFixture.h"

using std::string;
using namespace vantrel;

namespace {

string DataFile(const char* name)
{
    const string bytes = ReadFile(string(TEST_DATA_FOLDER) + "/" + name);
    EXPECT_FALSE(bytes.empty()) << name;
    return bytes;
}

/// A whole file around the content of a storyboard's element. A production takes part in the
/// numbering of objects, so every file has one.
string FileOf(const string& content)
{
    const bool hasProduction = content.find("<production>") != string::npos;
    return R"(<Root xmlns:dt="urn:schemas-microsoft-com:datatypes"><Productions><Title0001>)" +
           string(hasProduction ? "" : "<production/>") + content +
           "</Title0001></Productions></Root>";
}

CClipObject* ClipAt(const CQZBaseSBD& sbd, long key)
{
    CBaseObjectImpl* panel = nullptr;
    EXPECT_EQ(sbd.GetPanelBaseObject(key, &panel), status::kOk);
    return panel ? dynamic_cast<CClipObject*>(panel->m_whole) : nullptr;
}

/// Loads, saves in both ways, loads and saves again; all files must be the same. Gives that file.
string StableFile(const string& input)
{
    CQZBaseSBD first;
    LoadFile(first, input);
    const string saved = SavedFile(first);
    EXPECT_EQ(SavedFile(first, false), saved);
    EXPECT_EQ(SavedFile(first), saved);
    CQZBaseSBD second;
    LoadFile(second, saved);
    EXPECT_EQ(SavedFile(second), saved);
    return saved;
}

} // namespace

TEST(StoryboardFile, RichFileComesBackByteForByte)
{
    const string rich = DataFile("rich_storyboard.xml");
    EXPECT_EQ(StableFile(rich), rich);
}

TEST(StoryboardFile, LoadOverALoadedStoryboardReplacesIt)
{
    const string rich = DataFile("rich_storyboard.xml");
    CQZBaseSBD sbd;
    LoadFile(sbd, rich);
    LoadFile(sbd, rich);
    EXPECT_EQ(SavedFile(sbd), rich);

    // What another file lacks stays, and what it has replaces: panel 0 becomes a colour.
    LoadFile(sbd, FileOf("<version>8.0</version><panels>"
                         "<clip key='0' type='solid color'/></panels>"));
    EXPECT_EQ(sbd.m_panels.size(), 3U);
    EXPECT_EQ(sbd.m_groups.size(), 1U);
    EXPECT_EQ(sbd.m_version, "8.0");
    EXPECT_NE(dynamic_cast<CColorObject*>(sbd.m_panels[0]->m_whole), nullptr);
    EXPECT_EQ(sbd.m_productionObject->m_libraryAlbumID, -1);
}

TEST(StoryboardFile, IdsComeFromTheCounterInTheOrderOfReading)
{
    CQZBaseSBD sbd;
    LoadFile(sbd, FileOf("<panels><transition key='1'/>"
                         "<clip key='0'/><clip key='2'/></panels>"));
    EXPECT_EQ(sbd.m_productionObject->m_id, 1);
    EXPECT_EQ(sbd.m_panels[0]->m_id, 3); // one id is always set aside for a special effect
    EXPECT_EQ(sbd.m_panels[2]->m_id, 4);
    EXPECT_EQ(sbd.m_panels[1]->m_id, 5);
    CQZBaseSBD* owner = nullptr;
    EXPECT_EQ(ClipAt(sbd, 2)->get_ParentProduction(&owner), status::kOk);
    EXPECT_EQ(owner, &sbd);
}

TEST(StoryboardFile, OldFileIsConvertedOnce)
{
    const string old = DataFile("old_storyboard.xml");
    CQZBaseSBD sbd;
    LoadFile(sbd, old);
    const CClipObject* clip = ClipAt(sbd, 0);
    ASSERT_NE(clip, nullptr);
    EXPECT_EQ(clip->m_layers.at(0).first, 1); // flat effects become layers of type 1
    const auto& flat = *clip->m_layers.at(0).second->begin()->second;
    EXPECT_TRUE(flat.IsOldVersion());
    const auto* place = dynamic_cast<CSubObjectImpl*>(flat.m_whole);
    EXPECT_NEAR(place->m_startOffset, 0.984318, 1e-6); // the middle of frame 29
    EXPECT_NEAR(place->m_endOffset, 1.951952, 1e-6);   // the middle of frame 58

    const auto* color = dynamic_cast<CColorObject*>(sbd.m_panels[2]->m_whole);
    ASSERT_NE(color, nullptr);
    const std::pair<long, int> types[] = { { 0, 3 }, { 2, 1 }, { 4, 2 }, { 6, 0 }, { 7, 0 } };
    for (const auto& [key, type] : types)
        EXPECT_EQ(color->m_layers.at(key).first, type) << key;

    const string saved = SavedFile(sbd);
    EXPECT_NE(saved.find(">9.0</version>"), string::npos);
    EXPECT_EQ(StableFile(saved), saved); // times and types stay as they are from here on
}

TEST(StoryboardFile, WhatAProgramDoesNotKnowGoesThroughTheFile)
{
    for (const string& content :
         { string(
               R"(<panels><transition key="1" speed="2"><effect p="é"><a dt:dt="i4">1</a></effect>)"
               R"(<!--c--><x/></transition></panels>)"),
           string(R"(<panels><transition key="-3"><x/></transition></panels>)"),
           string(
               R"(<groups><group key="4" kind="k"><id dt:dt="i4">1</id><start dt:dt="i4">2</start>)"
               R"(<end dt:dt="i4">3</end><name dt:dt="string">n</name>)"
               R"(<description dt:dt="string">d</description><more>x</more></group></groups>)"),
           string(R"(<production><MarkerSections><Section><StartID dt:dt="i4">-1</StartID>)"
                  R"(<EndID dt:dt="i4">9</EndID></Section></MarkerSections></production>)") }) {
        const XmlText saved{ StableFile(FileOf(content)) };
        string text = TextOf(StoryboardIn(saved.doc()));
        std::erase_if(text, [](char c) { return c == '\n'; });
        for (std::size_t blank; (blank = text.find("> ")) != string::npos;)
            text.erase(blank + 1, 1);
        const std::size_t inner = content.find("><") + 1; // without the container
        EXPECT_NE(text.find(content.substr(inner, content.rfind("</") - inner)), string::npos)
            << text;
    }
}

TEST(StoryboardFile, TransitionTakesItsDurationFromTheFile)
{
    CQZBaseSBD sbd;
    LoadFile(sbd, FileOf("<panels><transition key='1'><a/><baseObject><duration>1.5</duration>"
                         "</baseObject><b/></transition><transition key='3'><c/></transition>"
                         "</panels>"));
    EXPECT_EQ(sbd.m_panels[1]->m_duration, 1.5);
    const string saved = SavedFile(sbd);
    EXPECT_LT(saved.find("<a/>"), saved.find("<baseObject>"));
    EXPECT_LT(saved.find("</baseObject>"), saved.find("<b/>"));
    EXPECT_EQ(saved.find("<baseObject>"), saved.rfind("<baseObject>")); // the other had none
    sbd.m_panels[3]->m_duration = 2.0;
    CQZBaseSBD again;
    LoadFile(again, SavedFile(sbd));
    EXPECT_EQ(again.m_panels[3]->m_duration, 2.0);
}

TEST(StoryboardFile, WhatDoesNotFitItsKeyDestroysNothing)
{
    CQZBaseSBD sbd;
    sbd.NewProduction();
    EXPECT_EQ(sbd.AddClipPanel(1), nullptr);
    EXPECT_EQ(sbd.AddTransition(2), nullptr);
    auto clip = std::make_unique<CClipObject>();
    clip->m_fileName = "/a.mpg";
    sbd.m_panels[1].reset(clip.release());              // an application may do so all the same
    sbd.AddColorPanel(4)->SetClipType(eClipFileSource); // says it is something else
    sbd.m_panels[6];                                    // nothing at all
    const string saved = StableFile(SavedFile(sbd));
    EXPECT_NE(saved.find("/a.mpg"), string::npos);
    EXPECT_EQ(saved, SavedFile(sbd));

    const string panels = R"(<clip key="0" type="solid color"/><transition key="1"/>)";
    for (const string stray :
         { R"(<clip key="1"><x/></clip>)", R"(<transition key="0" a="1">t<x/></transition>)",
           R"(<clip type="solid color"><x p="1"/></clip>)", "<transition/>" }) {
        CQZBaseSBD loaded;
        LoadFile(loaded, FileOf("<panels>" + stray + panels + "</panels>"));
        EXPECT_EQ(loaded.m_panels.size(), 2U);
        EXPECT_NE(loaded.m_panels[0]->m_whole, nullptr);
        string file = StableFile(SavedFile(loaded));
        for (std::size_t blank; (blank = file.find(">\n")) != string::npos;)
            file.erase(blank + 1, file.find_first_not_of(" \n", blank + 1) - blank - 1);
        EXPECT_NE(file.find(stray), string::npos) << stray;
    }
    CQZBaseSBD groups;
    LoadFile(groups, FileOf(R"(<groups><group/><group key="4"><name>a</name></group>)"
                            R"(<group key="4"><name>b</name></group></groups>)"));
    EXPECT_EQ(groups.m_groups[4]->m_name, "a");
    EXPECT_NE(StableFile(SavedFile(groups)).find("<name>b</name>"), string::npos);
}

TEST(StoryboardFile, WhatLiesUnderOneKeyLiesTogether)
{
    const string layered = R"(<layer key="3" type="2"><effect/></layer><layer key="1"><effect/>)"
                           R"(</layer><layer key="3" type="5"><effect/><effect/></layer>)";
    const string flat = R"(<effect key="3"/><effect key="1"/><effect key="3"/><effect key="3"/>)";
    for (const string& effects : { layered, flat }) {
        CQZBaseSBD sbd;
        LoadFile(sbd, FileOf("<panels><clip key='0'><parentObject><effects>" + effects +
                             "</effects></parentObject></clip></panels>"));
        CClipObject& clip = *ClipAt(sbd, 0);
        EXPECT_EQ(clip.m_layerOrder, (std::vector<long>{ 3, 1 }));
        EXPECT_EQ(clip.m_layers.at(3).second->size(), 3U);
        EXPECT_EQ(clip.m_layers.at(3).first, effects == flat ? 1 : 2);
        clip.m_layers.erase(3);
        clip.AddEffect(3, tagENM_LAYER_TYPE{ 1 }); // made again
        EXPECT_EQ(clip.m_layerOrder, (std::vector<long>{ 3, 1 }));
        (void)StableFile(SavedFile(sbd));
    }
}

TEST(StoryboardFile, SoundsAndModelsOfOthersGoBackAsTheyStood)
{
    const string sound = R"(<audio type="smartsound" mood="calm"><x/>text</audio>)";
    const string model = R"(<EqualizerModel own="1"><Bands>0</Bands></EqualizerModel>)";
    CQZBaseSBD sbd;
    LoadFile(sbd,
             FileOf("<production><parentObject><audioList>" + sound +
                    "<audio><audioInfo><Equalizer><EqualizerModel><Bands>0</Bands>"
                    "</EqualizerModel>" +
                    model +
                    "</Equalizer></audioInfo></audio></audioList></parentObject></production>"));
    EXPECT_EQ(sbd.m_productionObject->m_audioList.begin()->second, nullptr);
    string file = StableFile(SavedFile(sbd));
    std::erase_if(file, [](char c) { return c == '\n' || c == ' '; });
    string expected = sound + model;
    std::erase(expected, ' ');
    EXPECT_NE(file.find(expected.substr(0, sound.size() - 2)), string::npos) << file;
    EXPECT_NE(file.find(expected.substr(sound.size() - 2)), string::npos) << file;
}

TEST(StoryboardFile, TransitionsAndGroupsAreKeptWhole)
{
    const string base = R"(<baseObject x:a="1" b="2"><!--c--><Id dt:dt="i4">9</Id> <duration )"
                        R"(dt:dt="r8">1.50</duration><more/><flags dt:dt="ui4">7</flags><flags/>)"
                        R"(</baseObject>)";
    const string element = R"(<transition key="1" x:kind="wipe">t)" + base +
                           R"(<x:y/><effect/><baseObject q="1"/></transition>)";
    CQZBaseSBD sbd;
    LoadFile(sbd, R"(<Root xmlns:dt="urn:schemas-microsoft-com:datatypes" xmlns:x="urn:x">)"
                  R"(<Productions><Title0001><production/><panels>)" +
                      element + "</panels></Title0001></Productions></Root>");
    const string kept = StableFile(SavedFile(sbd));
    for (const char* part :
         { R"(x:kind="wipe")", R"(<!--c-->)", R"(<baseObject x:a="1" b="2">)", ">1.50</duration>",
           "<more/>", "<flags/>", "<x:y/>", R"(<baseObject q="1"/>)", R"(<Id dt:dt="i4">3</Id>)" })
        EXPECT_NE(kept.find(part), string::npos) << part << kept;

    auto* transition = dynamic_cast<CTransitionObject*>(sbd.m_panels[1]->m_whole);
    ASSERT_NE(transition, nullptr);
    EXPECT_NE(TextOf(transition->GetContent()).find("wipe"), string::npos);
    transition->m_flags = 8;
    transition->m_speed = 2.5;
    const XmlText note{ "<note/>" };
    EXPECT_EQ(transition->SetMetaData("mine", note.root()), status::kOk);
    const string changed = StableFile(SavedFile(sbd));
    for (const char* part :
         { ">8</flags>", "<flags/>", ">2.5</speed>", "<mine>", ">1.50</duration>", "<!--c-->" })
        EXPECT_NE(changed.find(part), string::npos) << part;

    const XmlText dissolve{ R"(<transition key="5" kind="dissolve"/>)" };
    EXPECT_EQ(transition->SetContent(dissolve.root()), status::kOk);
    CQZBaseSBD again;
    LoadFile(again, SavedFile(sbd));
    EXPECT_EQ(again.m_panels[1]->m_speed, 2.5); // what the program gave, with the new content
    EXPECT_NE(SavedFile(again).find(R"(key="1" kind="dissolve")"), string::npos);
}

TEST(StoryboardFile, EffectDataLeavesTheDocumentThatIsRead)
{
    const XmlText xml{ "<O xmlns:dt='urn:schemas-microsoft-com:datatypes'><effectInfo>"
                       "<effectGUID>{00000000-0000-0000-0000-000000000001}</effectGUID><data>\n"
                       "<e><uuid dt:dt='uuid'>{00000000-0000-0000-0000-0000000000AB}</uuid></e>\n"
                       "<second/></data></effectInfo></O>" };
    CEffectObject effect;
    EXPECT_EQ(effect.LoadXML(xml.root()), status::kOk);
    EXPECT_EQ(TextOf(effect.m_data),
              R"(<e><uuid dt:dt="uuid">{00000000-0000-0000-0000-0000000000AB}</uuid></e>)");
    EXPECT_EQ(effect.m_effectGUID.Data4[7], 0xAB); // the data knows better than "effectGUID"
    const _xmlNode* info = xml.root()->children;
    EXPECT_EQ(vantrel::FindChildElement(vantrel::FindChildElement(info, "data"), "e"), nullptr);
    EXPECT_EQ(TextOf(info->last),
              R"(<effectGUID dt:dt="uuid">{00000000-0000-0000-0000-0000000000AB}</effectGUID>)");
}

TEST(StoryboardFile, DataOfAProgramStaysTheProgramsAndIsCopied)
{
    const XmlText mine{ "<mine xmlns:dt='urn:schemas-microsoft-com:datatypes' dt:dt='x'/>" };
    CEffectObject effect;
    ReadObject(effect, "<O><effectInfo><data><loaded/></data></effectInfo></O>");
    _xmlNode* loaded = effect.m_data;
    EXPECT_EQ(effect.PutData(mine.root(), true), status::kOk);
    EXPECT_NE(WrittenObject(effect).find(R"(<data><mine dt:dt="x"/></data>)"), string::npos);
    effect.PutData(loaded, true); // still there
    EXPECT_NE(WrittenObject(effect).find("<data><loaded/></data>"), string::npos);
    effect.PutData(nullptr, true);
    EXPECT_NE(WrittenObject(effect).find("<data/>"), string::npos);
}

TEST(StoryboardFile, HostileContentLoadsAndSavesWithoutHarm)
{
    for (const char* content :
         { "",
           "<panels><clip key='9223372036854775806'/><transition key='-9223372036854775807'/>"
           "<transition key='9223372036854775807'/>"
           "<clip key='99999999999999999999999'/></panels>"
           "<groups><group key='x'><end>9223372036854775807</end></group></groups>",
           "<panels><clip><markers><marker><id>9223372036854775807</id></marker>"
           "<marker><id>-4</id><time>nan</time></marker></markers></clip></panels>",
           "<version/><panels><clip><parentObject><effects><effect type='motion'>"
           "<subObject><startOffset>-1e308</startOffset><endOffset>1e308</endOffset>"
           "</subObject></effect><effect><subObject><startOffset>nan</startOffset>"
           "<endOffset>-inf</endOffset></subObject></effect></effects></parentObject>"
           "</clip></panels>",
           "<panels><clip><parentObject><effects><layer key='1'><effect/></layer>"
           "<layer key='1'><effect><effectInfo><data><d/></data></effectInfo></effect>"
           "</layer><layer key='9'/></effects></parentObject></clip></panels>",
           "<production><parentObject><audioList><audio><audioInfo><mixLevels>"
           "<level><time>nan</time><value>1</value></level><level><time>inf</time></level>"
           "<level/><level/></mixLevels></audioInfo></audio></audioList></parentObject>"
           "</production>",
           "<panels xmlns:q='urn:q'><q:clip key='0'/><clip q:key='2' key='4'><baseObject>"
           "<metadata><q:m><q:n q:a='1'/></q:m></metadata></baseObject></clip></panels>",
           "<?panels x?><!--production--><panels><![CDATA[clip]]><?clip?>"
           "<clip key='0'><!--baseObject-->text<baseObject><?duration 4?></baseObject></clip>"
           "</panels>" })
        StableFile(FileOf(content));
}

TEST(StoryboardFile, DeepestNestingThatAFileMayHave)
{
    string content = "<panels><clip><parentObject>";
    string end = "</parentObject></clip></panels>";
    for (int i = 0; i < 60; ++i) { // four levels each, of the 256 that the parser takes
        content += "<effects><layer><effect type='motion'><parentObject>";
        end = "</parentObject></effect></layer></effects>" + end;
    }
    StableFile(FileOf(content + end));
}
