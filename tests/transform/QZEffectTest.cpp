#include "transform/QZEffect.h"

#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/SourceFileObject.h"
#include "support/XmlFixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

using std::string;
using testing::HasSubstr;
using namespace vantrel;

namespace {

using Getter = Status (CQZEffect::*)(float*, float*, float*) const;

string Pose(const CQZEffect& handle, Getter get)
{
    float x = 7, y = 7;
    const Status result = (handle.*get)(&x, &y, nullptr);
    return Failed(result) ? "failed" : std::to_string(int(x)) + " " + std::to_string(int(y));
}

} // namespace

TEST(EffectHandle, WithoutTargetTouchesNothing)
{
    CQZEffect handle;
    double number = 7;
    EXPECT_FALSE(handle.exists());
    EXPECT_EQ(handle.Create(), status::kOk);
    EXPECT_EQ(handle.setXMLData(nullptr), status::kUnexpected);
    EXPECT_EQ(Pose(handle, &CQZEffect::getScaling), "failed");
    EXPECT_EQ(handle.GetSourceAspect(&number), status::kNullPointer);
    EXPECT_EQ(handle.setTranslation(NAN, 0, 0), status::kOk);
    EXPECT_EQ(handle.getInPoint(&number), status::kOk);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(handle.getXMLPlugInData(), nullptr);
    EXPECT_EQ(handle.getGroupID(), -1);
}

TEST(EffectHandle, SetsThePoseInACopyOfLentData)
{
    const XmlText xml{ R"(<d><plugin_data><html/><Caps>3</Caps><Rotation><StartOffsetElements>
        <KeyFrame><Time>0</Time><Caps>32</Caps><Vector><x>9</x></Vector></KeyFrame>
        </StartOffsetElements></Rotation></plugin_data></d>)" };
    const string before = TextOf(xml.root());
    CEffectObject effect;
    CQZEffect handle;
    EXPECT_EQ(handle.Attach(&effect), status::kOk);
    EXPECT_EQ(Pose(handle, &CQZEffect::getScaling), "7 7"); // no data: outputs stay
    EXPECT_EQ(handle.setScaling(2, 3, 4), status::kNotAvailable);
    effect.PutData(xml.root(), true);
    EXPECT_EQ(Pose(handle, &CQZEffect::getRotation), "9 0");
    EXPECT_EQ(Pose(handle, &CQZEffect::getScaling), "1 1");
    EXPECT_EQ(Pose(handle, &CQZEffect::getHandle), "failed");

    EXPECT_EQ(handle.setRotation(1, INFINITY, 3), status::kBadArgument);
    EXPECT_EQ(handle.setRotation(1, 2, 3), status::kOk);
    EXPECT_EQ(handle.setHandle(4, 5, 6), status::kOk);
    EXPECT_EQ(TextOf(xml.root()), before);
    EXPECT_EQ(Pose(handle, &CQZEffect::getRotation), "1 2");
    EXPECT_EQ(Pose(handle, &CQZEffect::getHandle), "4 5");
    const string text = TextOf(handle.getXMLPlugInData());
    EXPECT_THAT(text, HasSubstr(R"(<Caps dt:dt="ui4">32</Caps><Vector Name=""><x dt:dt="r4">1<)"));
    EXPECT_THAT(text, HasSubstr(R"(<Caps dt:dt="ui4">458752</Caps>)")); // a new key allows all axes
    EXPECT_THAT(text, testing::StartsWith("<plugin_data><html/>"));

    EXPECT_EQ(handle.setXMLPlugInData(XmlText("<other>&lt;</other>").root()), status::kOk);
    EXPECT_EQ(handle.setXMLData(handle.getXMLData()),
              status::kOk); // its own: copied before it goes
    EXPECT_EQ(TextOf(handle.getXMLData()), "<d><plugin_data>&lt;</plugin_data></d>");
}

TEST(EffectHandle, ReachesThePartsOfTheCompleteObject)
{
    CMotionObject motion;
    CQZEffect handle;
    handle.Attach(&motion);
    EXPECT_EQ(handle.setStartOffset(1) + handle.setEndOffset(2) + handle.setInPoint(3) +
                  handle.setOutPoint(4) + handle.setSourceRotation(5) + handle.setSource("a.mpg") +
                  handle.setAlphaMask("mask.png"),
              status::kOk);
    EXPECT_EQ(handle.setEndOffset(NAN), status::kBadArgument);
    EXPECT_THAT((std::vector<double>{ motion.m_startOffset, motion.m_endOffset, motion.m_inPoint,
                                      motion.m_outPoint, double(motion.m_rotation) }),
                testing::ElementsAre(1, 2, 3, 4, 5));
    EXPECT_EQ(motion.m_fileName + motion.m_alphaFile->m_fileName, "a.mpgmask.png");
    double read[4] = {};
    EXPECT_EQ(handle.getStartOffset(&read[0]) + handle.getEndOffset(&read[1]) +
                  handle.getInPoint(&read[2]) + handle.getOutPoint(&read[3]),
              status::kOk);
    EXPECT_THAT(read, testing::ElementsAre(1, 2, 3, 4));
    string path;
    EXPECT_EQ(handle.getSource(&path), status::kOk);
    EXPECT_EQ(path, "a.mpg");

    CEffectObject effect; // has a place and no source
    handle.Attach(&effect);
    EXPECT_EQ(handle.getStartOffset(nullptr), status::kNullPointer);
    EXPECT_EQ(handle.getSource(&path), status::kNothingDone);
    EXPECT_EQ(handle.setOutPoint(1), status::kNothingDone);
}
