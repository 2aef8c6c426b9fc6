#include "support/XmlFixture.h"
#include "transform/VCPTransformImpl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

using std::string;
using testing::HasSubstr;
using testing::Not;
using namespace vantrel;

namespace {

constexpr auto S = KVC_KEYFRAME_START_OFFSET;
constexpr auto E = KVC_KEYFRAME_END_OFFSET;

string Saved(const CVCPTransformImpl& transform)
{
    const EmptyXml xml("d");
    EXPECT_EQ(transform.SaveXML(xml.root()), status::kOk);
    return TextOf(xml.root());
}

string VectorText(const char* name, const char* x)
{
    return string("<") + name + R"( Name=""><x dt:dt="r4">)" + x +
           R"(</x><y dt:dt="r4">0</y><z dt:dt="r4">0</z></)" + name + ">";
}

/// x of a translation key.
float KeyX(const CVCPTransformImpl& transform, double time, KVC_KEYFRAME_TYPE type)
{
    float x = NAN;
    (void)transform.Get3DKeyframe(TRANSFORM_TRANSLATION, time, type, &x, nullptr, nullptr, nullptr);
    return x;
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
    transform.Adjust3DKeyframesDelta(TRANSFORM_SCALING, 0.5F, 0, 0);
    transform.Adjust3DKeyframesDelta(TRANSFORM_HANDLES, -1, 0, 0);
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-300L));
    transform.SetIsEditable(false);
    EXPECT_EQ(Saved(transform),
              R"(<d><Opacity><StartOffsetElements><KeyFrame><Time dt:dt="r8">0</Time>)"
              R"(<Caps dt:dt="ui4">4096</Caps><Value dt:dt="ui4">0</Value></KeyFrame>)"
              R"(</StartOffsetElements></Opacity><IsSelectable dt:dt="boolean">1</IsSelectable>)"
              R"(<IsEditable dt:dt="boolean">0</IsEditable><Caps dt:dt="ui4">4915</Caps>)" +
                  VectorText("HandlesDelta", "-1") + VectorText("TranslationDelta", "0") +
                  VectorText("RotationDelta", "0") + VectorText("ScalingDelta", "0.5") +
                  R"(<OpacityDelta dt:dt="ui4">18446744073709551316</OpacityDelta></d>)");
}

TEST(TransformXml, ReadsBackWhatItWrote)
{
    CVCPTransformImpl transform;
    for (const KVC_KEYFRAME_TYPE type : vantrel::kKeyframeTypes) {
        for (const unsigned long mask : { TRANSFORM_TRANSLATION, TRANSFORM_ROTATION })
            transform.Set3DKeyframe(mask, int(type) / 7.0, type, 1.0F / 3, -2, 1e20F, mask);
        transform.LoadPath(type, XmlText(kPath).root());
    }
    transform.AdjustOpacityKeyframes(static_cast<unsigned long>(-300L));
    transform.SetIsSelectable(false);
    transform.SetCaps(~0UL, 5);
    const EmptyXml xml("d");
    transform.SaveXML(xml.root());
    const string text = TextOf(xml.root());
    EXPECT_THAT(text,
                HasSubstr(R"(<StartPathID dt:dt="ui4">77</StartPathID><EndPathID dt:dt="ui4">)"
                          R"(77</EndPathID><PercentPathID dt:dt="ui4">77</PercentPathID>)"
                          R"(<Speed dt:dt="r8">1.5</Speed>)"));

    CVCPTransformImpl second;
    EXPECT_EQ(second.LoadXML(xml.root()), status::kOk);
    EXPECT_EQ(second.LoadXML(xml.root()), status::kOk); // keys that are there stay as they are
    EXPECT_EQ(Saved(second), text);
    bool isSelectable = true, isEditable = false;
    EXPECT_EQ(second.GetIsSelectable(&isSelectable), status::kOk);
    EXPECT_EQ(second.GetIsEditable(&isEditable), status::kOk);
    EXPECT_FALSE(isSelectable);
    EXPECT_TRUE(isEditable);
    EXPECT_EQ(second.ReplaceXML(xml.root()), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), text);
}

TEST(TransformXml, HostileNumbersReadAsDefaults)
{
    const XmlText xml{ R"(<d><Translation><StartOffsetElements>
        <KeyFrame><Time>-inf</Time><Vector><x>1e999</x><y>nan</y><z>5</z></Vector></KeyFrame>
        </StartOffsetElements></Translation><Opacity><StartOffsetElements>
        <KeyFrame><Caps>4096</Caps><Value>99999999999999999999</Value></KeyFrame>
        <KeyFrame><Time>1</Time><Caps>4096</Caps><Value>-1</Value></KeyFrame>
        </StartOffsetElements></Opacity><Speed>inf</Speed>
        <TranslationDelta><x>2</x><y>nan</y></TranslationDelta></d>)" };
    CVCPTransformImpl transform;
    EXPECT_EQ(transform.LoadXML(nullptr), status::kOk);
    transform.LoadXML(xml.root());
    transform.SetDuration(-INFINITY);
    transform.FrameMove(0.5, 0);
    D3DXMATRIX world;
    transform.GetWorldMatrix(&world);
    EXPECT_THAT(world.m[3], testing::ElementsAre(0, 0, 5, 1));
    EXPECT_EQ(transform.AdjustOpacityKeyframes(1), status::kOk);
    EXPECT_THAT(Saved(transform), testing::AllOf(Not(HasSubstr("Speed")),
                                                 HasSubstr(VectorText("TranslationDelta", "2"))));
}

TEST(LoadPath, ReplacesTheKeysOfItsTypeAndKeepsTheAdjustments)
{
    CVCPTransformImpl transform;
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 0, S, 1, 0, 0, 0x1);
    transform.Set3DKeyframe(TRANSFORM_TRANSLATION, 9, E, 1, 0, 0, 0x1);
    transform.Adjust3DKeyframes(TRANSFORM_TRANSLATION, 0.5F, 0, 0);
    for (int i = 0; i < 2; ++i) { // the sum doesn't grow by being applied
        EXPECT_EQ(transform.LoadPath(E, XmlText(kPath).root()), status::kOk);
        EXPECT_EQ(KeyX(transform, 1, E), 7.5F);
        EXPECT_EQ(KeyX(transform, 2, E), 8);
        EXPECT_EQ(KeyX(transform, 9, E), 0); // gone
        EXPECT_EQ(KeyX(transform, 0, S), 1.5F);
    }
    EXPECT_THAT(Saved(transform), HasSubstr(R"(<EndPathID dt:dt="ui4">77</EndPathID><Speed)"));

    EXPECT_EQ(transform.LoadPath(E, nullptr), status::kOk);
    EXPECT_TRUE(transform.GetKeyframes(TRANSFORM_TRANSLATION)->GetMap(E)->empty());
    EXPECT_EQ(KeyX(transform, 0, S), 1.5F);
    EXPECT_THAT(Saved(transform), testing::AllOf(Not(HasSubstr("PathID")), Not(HasSubstr("Speed")),
                                                 HasSubstr(VectorText("TranslationDelta", "0.5"))));
}
