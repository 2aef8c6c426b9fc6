#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/SourceFileObject.h"
#include "storyboard/TransitionObject.h"
#include "support/StoryboardFixture.h"

using namespace vantrel;

namespace {

constexpr const char* kNewBase =
    R"(<baseObject><Id dt:dt="i4">0</Id><panelId dt:dt="i4">-1</panelId>)"
    R"(<duration dt:dt="r8">0</duration><groupId dt:dt="i4">-1</groupId>)"
    R"(<flags dt:dt="ui4">0</flags><thumbnailInPoint dt:dt="r8">0</thumbnailInPoint>)"
    R"(<speed dt:dt="r8">1</speed><metadata><trackstatus><Visible><Audio>)"
    R"(<Native dt:dt="boolean">0</Native><Narration dt:dt="boolean">0</Narration>)"
    R"(<SoundEffect dt:dt="boolean">0</SoundEffect></Audio></Visible></trackstatus></metadata>)"
    R"(</baseObject>)";
constexpr const char* kNewParent = "<parentObject><effects/><audioList/></parentObject>";

/// The names of the elements that an object writes.
std::string PartsOf(CPersistObject& object)
{
    return ChildNames(XmlText(WrittenObject(object)).root());
}

template <class... Objects>
void ExpectNoProductionYet()
{
    const auto expect = [](auto object) {
        CQZBaseSBD sbd;
        CQZBaseSBD* out = nullptr;
        EXPECT_EQ(object->get_ParentProduction(&out), status::kNullPointer);
        EXPECT_EQ(object->put_ParentProduction(&sbd), status::kOk);
        EXPECT_EQ(object->get_ParentProduction(nullptr), status::kNullPointer);
        EXPECT_EQ(object->get_ParentProduction(&out), status::kOk);
        EXPECT_EQ(out, &sbd);
        EXPECT_EQ(object->PersistXML(nullptr, true), status::kBadArgument);
        EXPECT_EQ(object->PersistXML(nullptr, false), status::kBadArgument);
    };
    (expect(std::make_unique<Objects>()), ...);
}

} // namespace

TEST(Panels, NewOnesWriteTheirPartsInOrder)
{
    CColorObject color;
    EXPECT_EQ(WrittenObject(color), std::string(R"(<O><color dt:dt="ui4">0</color>)") +
                                        R"(<isGap dt:dt="boolean">0</isGap>)" + kNewBase +
                                        kNewParent + "</O>");
    CTransitionObject transition;
    EXPECT_EQ(WrittenObject(transition), std::string("<O>") + kNewBase + "</O>");
    CClipObject clip;
    EXPECT_EQ(PartsOf(clip), "baseObject sourceFile parentObject nativeinfo");
    CMotionObject motion;
    EXPECT_TRUE(motion.IsMotion());
    EXPECT_EQ(PartsOf(motion), "sourceFile subObject effectInfo parentObject nativeinfo");
    CAudioObject audio;
    EXPECT_EQ(PartsOf(audio), "audioInfo subObject sourceFile");
    CEffectObject effect;
    EXPECT_FALSE(effect.IsMotion());
    EXPECT_EQ(WrittenObject(effect),
              R"(<O><subObject><type dt:dt="i2">0</type><startOffset dt:dt="r8">0</startOffset>)"
              R"(<endOffset dt:dt="r8">0</endOffset><flags dt:dt="ui4">1</flags>)"
              R"(<mute dt:dt="boolean">0</mute></subObject><effectInfo>)"
              R"(<effectID dt:dt="ui4">18446744073709551615</effectID><layer dt:dt="ui4">0</layer>)"
              R"(<GroupID dt:dt="ui4">0</GroupID>)"
              R"(<effectGUID dt:dt="uuid">{00000000-0000-0000-0000-000000000000}</effectGUID>)"
              R"(<useOffset dt:dt="boolean">0</useOffset><isPanZoom dt:dt="boolean">0</isPanZoom>)"
              R"(<data/></effectInfo></O>)");
}

TEST(Panels, EveryCompleteObjectKnowsItsProduction)
{
    ExpectNoProductionYet<CColorObject, CClipObject, CTransitionObject, CSourceFileObject,
                          CEffectObject, CMotionObject, CAudioObject>();
}

TEST(BaseObject, IdIsNotTheFiles)
{
    CColorObject color;
    color.put_ID(3);
    ReadObject(color, "<O><baseObject><Id>17</Id><duration>4</duration></baseObject></O>");
    EXPECT_EQ(color.CBaseObjectImpl::m_id, 3);
    EXPECT_EQ(color.m_loadedDuration, 4.0);
    EXPECT_EQ(color.m_speed, 1.0);
}

TEST(Thumbnails, AreReadFromOlderFilesAndNeverWritten)
{
    constexpr std::pair<const char*, const char*> cases[] = {
        { "<thumbnailSize>3</thumbnailSize><thumbnail>41 4243</thumbnail>", "ABC" },
        { "<thumbnailSize>9223372036854775807</thumbnailSize><thumbnail>4142</thumbnail>", "AB" },
        { "<thumbnailSize>1</thumbnailSize><thumbnail>4142</thumbnail>", "A" },
        { "<thumbnailSize>2</thumbnailSize><thumbnail>41xx</thumbnail>", "" },
        { "<thumbnail>4142</thumbnail>", "" },
        { "<thumbnailSize>4</thumbnailSize>", "" },
        { "<thumbnailSize>-4</thumbnailSize><thumbnail>4142</thumbnail>", "" },
    };
    for (const auto& [text, expected] : cases) {
        const std::string elements = text, bytes = expected;
        SCOPED_TRACE(elements);
        CColorObject color;
        CEffectObject effect;
        for (int twice = 0; twice < 2; ++twice) {
            ReadObject(color, "<O><baseObject>" + elements + "</baseObject></O>");
            ReadObject(effect, "<O><effectInfo>" + elements + "</effectInfo></O>");
            EXPECT_EQ(std::string(color.m_thumbnail.get(), std::size_t(color.m_thumbnailSize)),
                      bytes);
            EXPECT_EQ(std::string(effect.m_thumbnail.get(), std::size_t(effect.m_thumbnailSize)),
                      bytes);
        }
        const bool there = !bytes.empty();
        EXPECT_EQ(color.m_thumbnail != nullptr, there);
        EXPECT_EQ(color.SaveThumbnail(1), there ? status::kOk : status::kNothingDone);
        EXPECT_EQ(WrittenObject(color).find("thumbnail>"), std::string::npos);
        EXPECT_EQ(color.LoadThumbnail(0), status::kNothingDone);
        EXPECT_EQ(color.LoadThumbnail(5), status::kOk);
        EXPECT_EQ(color.m_thumbnail, nullptr);
    }
}

TEST(FileNames, AreCleanedOnReading)
{
    constexpr std::pair<const char*, const char*> cases[] = {
        { R"(C:\\media\\a.mpg)", "C:/media/a.mpg" },
        { R"(\\server\share\a.mpg)", "//server/share/a.mpg" },
        { R"(vob:D:\\VIDEO_TS)", "vob:D://VIDEO_TS" },
        { R"(%CONTENT%\\B\\a.mpg)", "/B/a.mpg" },
        { R"(a\\\\b)", "a//b" },
        { R"(\)", "/" },
    };
    for (const auto& [stored, expected] : cases) {
        CSourceFileObject file;
        ReadObject(file, std::string("<O><sourceFile><fileName>") + stored +
                             "</fileName></sourceFile></O>");
        EXPECT_EQ(file.m_fileName, expected);
        EXPECT_NE(WrittenObject(file).find(">" + file.m_fileName + "<"), std::string::npos);
    }
}

TEST(SourceFile, KeepsWhatItReadsAndTakesALongName)
{
    CSourceFileObject file;
    const std::string longName(5000, 'a');
    ReadObject(file, "<O><sourceFile><fileName>" + longName +
                         "</fileName><type>-2</type><SourceType3D>70000</SourceType3D>"
                         "<transparency> <t/></transparency><PanZoomEffect><effectInfo>"
                         "<isPanZoom>1</isPanZoom></effectInfo></PanZoomEffect></sourceFile></O>");
    EXPECT_EQ(file.m_fileName, longName);
    EXPECT_EQ(file.m_type, -2);
    EXPECT_EQ(file.m_sourceType3D, 70000U);
    EXPECT_TRUE(file.m_panZoomEffect->m_isPanZoom);
    EXPECT_NE(WrittenObject(file).find("<transparency><t/></transparency>"), std::string::npos);
    ReadObject(file, "<O><sourceFile/></O>");
    EXPECT_EQ(file.m_fileName, ""); // the one member that a missing element empties
    EXPECT_EQ(file.m_type, -2);
    EXPECT_EQ(file.get_FileName(nullptr), status::kNullPointer);
}

TEST(EffectInfo, FlagsThatAreMissingAreFalse)
{
    CEffectObject effect;
    effect.put_ID(7);
    EXPECT_EQ(effect.CSubObjectImpl::m_id, 7);
    effect.m_useOffset = true;
    effect.m_isPanZoom = true;
    effect.m_layer = 4;
    ReadObject(effect, "<O><effectInfo><effectID>9</effectID></effectInfo></O>");
    EXPECT_FALSE(effect.m_useOffset);
    EXPECT_FALSE(effect.m_isPanZoom);
    EXPECT_EQ(effect.m_layer, 4);
    EXPECT_EQ(effect.m_effectID, 7);
    EXPECT_EQ(effect.put_ObjectType(3), status::kOk);
    EXPECT_EQ(effect.m_objectType, 3);
}
