#include "disc/DSEncodingParams.h"

#include "disc/DSProjectData.h"
#include "disc/DSTitle.h"
#include "project/DSList.h"
#include "support/NodeFixture.h"

using namespace vantrel;

namespace {

/// A project with one title that has its own encoding set.
class EncodingTest : public testing::Test
{
protected:
    EncodingTest()
    {
        EXPECT_EQ(title.FinalConstruct(), status::kOk);
        project.GetChild(0)->AddChild(&title, true);
    }

    CDSEncodingParams& shared() { return dynamic_cast<CDSEncodingParams&>(*project.GetChild(4)); }
    CDSEncodingParams& own() { return dynamic_cast<CDSEncodingParams&>(*title.GetChild(1)); }
    static long Bitrate(CDSEncodingParams& set)
    {
        long rate = 0;
        EXPECT_EQ(set.get_VideoBitrate(&rate), status::kOk);
        return rate;
    }

    CDSProjectData project;
    CDSTitle title;
};

} // namespace

TEST_F(EncodingTest, ASynchronisedSetFollowsTheProjects)
{
    ASSERT_EQ(own().put_VideoBitrate(100), status::kOk);
    ASSERT_EQ(own().put_SyncToProject(true), status::kOk);
    ASSERT_EQ(shared().put_VideoBitrate(200), status::kOk);
    EXPECT_EQ(Bitrate(own()), 200);
    EXPECT_EQ(own().put_VideoBitrate(200), status::kSynchronised);
    EXPECT_EQ(own().put_VideoFormat(VideoFormat::VC_1), status::kSynchronised);
    EXPECT_EQ(own().put_AspectRatio(AspectRatio::_16x9), status::kSynchronised);
    EXPECT_EQ(own().put_VBREncoding(true), status::kSynchronised);
    EXPECT_NE(WrittenNode(own()).find(R"x(videoBitrate="100")x"), std::string::npos);
}

TEST_F(EncodingTest, SwitchingOffKeepsWhatWasShownButForTheAspectRatio)
{
    ASSERT_EQ(ReadNode(shared(), "<E videoResolution='2' aspectRatio='2' videoFormat='1' "
                                 "audioFormat='1' wideDisplayMode='2' subpictureFormat='2' "
                                 "videoBitrate='1' audioBitrate='2' audioChannels='6' "
                                 "VBREncoding='1' twoPassEncoding='1'/>"),
              status::kOk);
    ASSERT_EQ(own().put_SyncToProject(true), status::kOk);
    ASSERT_EQ(own().put_SyncToProject(false), status::kOk);
    ASSERT_EQ(shared().put_VideoBitrate(200), status::kOk);
    EXPECT_EQ(WrittenNode(own()),
              R"x(<N VBREncoding="1" aspectRatio="1 (4x3)" audioBitrate="2" audioChannels="6" )x"
              R"x(audioFormat="1 (LPCM)" subpictureFormat="2 (RLE_8Bit)" syncToProject="0" )x"
              R"x(twoPassEncoding="1" videoBitrate="1" videoFormat="1 (AVC/H.264)" )x"
              R"x(videoResolution="2 (Cropped_D1)" wideDisplayMode="2 (PanAndScan)"/>)x");
}

TEST_F(EncodingTest, WhatHasNothingToFollowAnswersForItself)
{
    CDSEncodingParams loose;
    EXPECT_EQ(loose.put_SyncToProject(true), status::kNothingToFollow);
    EXPECT_EQ(shared().put_SyncToProject(true), status::kNothingToFollow);
    ASSERT_EQ(ReadNode(shared(), "<E syncToProject='1'/>"), status::kOk); // a file can set it
    EXPECT_EQ(&shared().getParams(), &shared());

    CDSList top(eNodeNone), list(eNodeNone), parent(eNodeNone), other(eNodeEncoding);
    CDSList rest[4] = { CDSList(eNodeNone), CDSList(eNodeNone), CDSList(eNodeNone),
                        CDSList(eNodeNone) };
    top.AddChild(&list, false);
    for (int i = 1; i < 4; ++i)
        top.AddChild(&rest[i], false);
    top.AddChild(&other, false); // at the set's position, of its type, but no set
    list.AddChild(&parent, false);
    parent.AddChild(&loose, false);
    ASSERT_EQ(loose.put_SyncToProject(true), status::kOk);
    EXPECT_EQ(&loose.getParams(), &loose);
}

TEST(Encoding, AnOlderNameOfTheVideoFormatIsReadFirst)
{
    CDSEncodingParams set;
    VideoFormat format = VideoFormat::MPEG_2;
    ASSERT_EQ(ReadNode(set, "<Encoding HDVideoFormat='1 (AVC/H.264)'/>"), status::kOk);
    ASSERT_EQ(set.get_VideoFormat(&format), status::kOk);
    EXPECT_EQ(format, VideoFormat::AVC_H_264);
    ASSERT_EQ(ReadNode(set, "<Encoding videoFormat='2' HDVideoFormat='1'/>"), status::kOk);
    ASSERT_EQ(set.get_VideoFormat(&format), status::kOk);
    EXPECT_EQ(format, VideoFormat::VC_1);
    EXPECT_EQ(set.get_VideoFormat(nullptr), status::kNullPointer);
}
