#include "support/XmlFixture.h"
#include "transform/VCPTransformImpl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

using std::string;
using vantrel::kAllKeyframes;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;
constexpr auto E = KVC_KEYFRAME_END_OFFSET;

string Saved(const CVCPTransformImpl& transform)
{
    const EmptyXml xml("d");
    EXPECT_EQ(transform.SaveXML(xml.root()), status::kOk);
    return TextOf(xml.root());
}

string VectorText(const char* name, const char* x, const char* y, const char* z)
{
    return string("<") + name + R"( Name=""><x dt:dt="r4">)" + x + R"(</x><y dt:dt="r4">)" + y +
           R"(</y><z dt:dt="r4">)" + z + "</z></" + name + ">";
}

string KeyText(const char* time, const char* caps, const string& value)
{
    return string(R"(<KeyFrame><Time dt:dt="r8">)") + time + R"(</Time><Caps dt:dt="ui4">)" + caps +
           "</Caps>" + value + "</KeyFrame>";
}

/// x of a translation key.
float KeyX(const CVCPTransformImpl& transform, double time, KVC_KEYFRAME_TYPE type)
{
    float x = NAN;
    EXPECT_EQ(
        transform.Get3DKeyframe(TRANSFORM_TRANSLATION, time, type, &x, nullptr, nullptr, nullptr),
        status::kOk);
    return x;
}

int KeyCount(const CVCPTransformImpl& transform, unsigned long mask = TRANSFORM_TRANSLATION)
{
    int count = -1;
    transform.GetKeyCount(mask, &count);
    return count;
}

/// A path of end keys; the second may not be adjusted.
constexpr const char* kPath = R"(<path><Translation><EndOffsetElements>
    <KeyFrame><Time>1</Time><Caps>3</Caps><Vector><x>7</x></Vector></KeyFrame>
    <KeyFrame><Time>2</Time><Vector><x>8</x></Vector></KeyFrame></EndOffsetElements></Translation>
    <PathID>77</PathID><Speed>1.5</Speed></path>)";

} // namespace

TEST(TransformXml, SavesEachChildInOrder)
{
    CVCPTransformImpl transform;
    transform.Adjust3DKeyframes(TRANSFORM_SCALING, 0.5F, 0, 0);
    transform.Adjust3DKeyframes(TRANSFORM_HANDLES, -1, 0, 0);
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-300L));
    transform.SetIsEditable(false);
    transform.SetCaps(~0UL, 0x11);
    EXPECT_EQ(
        Saved(transform),
        "<d><Handles><StartOffsetElements>" +
            KeyText("0", "458752", VectorText("Vector", "-1", "0", "0")) +
            "</StartOffsetElements></Handles><Scaling><StartOffsetElements>" +
            KeyText("0", "1792", VectorText("Vector", "1.5", "1", "1")) +
            "</StartOffsetElements></Scaling><Opacity><StartOffsetElements>" +
            KeyText("0", "4096", R"(<Value dt:dt="ui4">0</Value>)") +
            R"(</StartOffsetElements></Opacity><IsSelectable dt:dt="boolean">1</IsSelectable>)"
            R"(<IsEditable dt:dt="boolean">0</IsEditable><Caps dt:dt="ui4">17</Caps>)" +
            VectorText("HandlesDelta", "-1", "0", "0") +
            VectorText("TranslationDelta", "0", "0", "0") +
            VectorText("RotationDelta", "0", "0", "0") +
            VectorText("ScalingDelta", "0.5", "0", "0") +
            R"(<OpacityDelta dt:dt="ui4">18446744073709551316</OpacityDelta></d>)");
}

TEST(TransformXml, ReadsBackWhatItWrote)
{
    CVCPTransformImpl transform;
    for (const KVC_KEYFRAME_TYPE type : vantrel::kKeyframeTypes) {
        for (const unsigned long mask :
             { TRANSFORM_TRANSLATION, TRANSFORM_ROTATION, TRANSFORM_SCALING, TRANSFORM_HANDLES })
            transform.Set3DKeyframe(mask, int(type) / 7.0, type, 1.0F / 3, -2, 1e20F, mask);
        transform.SetOpacityKey(int(type) / 3.0, type, 200, 0x1000);
        transform.LoadPath(type, XmlText(kPath).root());
    }
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-300L));
    const EmptyXml xml("d");
    transform.SaveXML(xml.root());
    const string text = TextOf(xml.root());
    for (const char* name : { "<StartPathID", "<EndPathID", "<PercentPathID", "<Speed" })
        EXPECT_THAT(text, testing::HasSubstr(name));

    CVCPTransformImpl second;
    EXPECT_EQ(second.LoadXML(xml.root()), status::kOk);
    EXPECT_EQ(Saved(second), text);
    EXPECT_EQ(second.LoadXML(xml.root()), status::kOk); // keys that are there stay as they are
    EXPECT_EQ(Saved(second), text);
    EXPECT_EQ(second.ReplaceXML(xml.root()), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), text);
}

TEST(TransformXml, MissingChildrenKeepFlagsAndForgetTheRest)
{
    CVCPTransformImpl transform;
    transform.LoadPath(E, XmlText(kPath).root());
    transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, 1, 1, 1);
    transform.SetIsSelectable(false);
    transform.SetCaps(~0UL, 5);
    const XmlText empty{ "<d/>" };
    EXPECT_EQ(transform.LoadXML(empty.root()), status::kOk);
    EXPECT_EQ(KeyCount(transform), 2);
    transform.DeleteAllKeys(TRANSFORM_TRANSLATION, kAllKeyframes);
    EXPECT_THAT(Saved(transform),
                testing::AllOf(testing::HasSubstr(R"(<IsSelectable dt:dt="boolean">0<)"),
                               testing::HasSubstr(R"(<Caps dt:dt="ui4">5<)"),
                               testing::Not(testing::HasSubstr("EndPathID")),
                               testing::Not(testing::HasSubstr("Speed")),
                               testing::HasSubstr(VectorText("TranslationDelta", "0", "0", "0"))));
    EXPECT_EQ(transform.LoadXML(nullptr), status::kOk);
    EXPECT_EQ(transform.SaveXML(nullptr), status::kOk);
}

TEST(TransformXml, HostileNumbersReadAsDefaults)
{
    const XmlText xml{ R"(<d><Translation><StartOffsetElements>
        <KeyFrame><Time>-inf</Time><Vector><x>1e999</x><y>nan</y><z>5</z></Vector></KeyFrame>
        </StartOffsetElements></Translation><Opacity><StartOffsetElements>
        <KeyFrame><Time>0</Time><Caps>4096</Caps><Value>99999999999999999999</Value></KeyFrame>
        <KeyFrame><Time>1</Time><Caps>4096</Caps><Value>-1</Value></KeyFrame>
        </StartOffsetElements></Opacity><Speed>inf</Speed>
        <TranslationDelta><x>nan</x><y>2</y></TranslationDelta></d>)" };
    CVCPTransformImpl transform;
    transform.LoadXML(xml.root());
    transform.SetDuration(-INFINITY);
    transform.FrameMove(0.5, 0);
    D3DXMATRIX world;
    transform.GetWorldMatrix(&world);
    EXPECT_THAT(world.m[3], testing::ElementsAre(0, 0, 5, 1));
    EXPECT_EQ(transform.AdjustOpacityKeyframes(1), status::kOk);
    EXPECT_THAT(Saved(transform),
                testing::AllOf(testing::Not(testing::HasSubstr("Speed")),
                               testing::HasSubstr(VectorText("TranslationDelta", "0", "2", "0"))));
}

TEST(LoadPath, KeepsTheAdjustmentsMadeSoFar)
{
    CVCPTransformImpl transform;
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0, S, 1, 0, 0, 0x1);
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 9, E, 1, 0, 0, 0x1);
    transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, 0.5F, 0, 0);
    for (int i = 0; i < 2; ++i) { // the sum doesn't grow by being applied
        EXPECT_EQ(transform.LoadPath(E, XmlText(kPath).root()), status::kOk);
        EXPECT_EQ(KeyCount(transform), 3);
        EXPECT_EQ(KeyX(transform, 1, E), 7.5F);
        EXPECT_EQ(KeyX(transform, 2, E), 8.0F);
        EXPECT_EQ(KeyX(transform, 0, S), 1.5F);
    }
    unsigned long id = 0;
    transform.GetPathID(E, &id);
    EXPECT_EQ(id, 77U);
    transform.GetPathID(S, &id);
    EXPECT_EQ(id, 0U);
    EXPECT_EQ(KeyCount(transform, TRANSFORM_OPACITY), 1); // an empty track gets its resting key
}

TEST(LoadPath, WithoutPathRemovesTheKeysOfItsType)
{
    CVCPTransformImpl transform;
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0, S, 1, 0, 0, 0x1);
    transform.LoadPath(E, XmlText(kPath).root());
    EXPECT_EQ(transform.LoadPath(E, nullptr), status::kOk);
    EXPECT_EQ(KeyCount(transform), 1);
    EXPECT_THAT(Saved(transform), testing::Not(testing::AnyOf(testing::HasSubstr("EndPathID"),
                                                              testing::HasSubstr("Speed"))));
}
