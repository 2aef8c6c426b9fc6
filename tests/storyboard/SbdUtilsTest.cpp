#include "storyboard/SbdUtils.h"

#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/QZBaseSBD.h"
#include "storyboard/TransitionObject.h"
#include "support/StoryboardFixture.h"

#include <cmath>

using namespace vantrel;

namespace {

/// Clips of 10 and 6 seconds with a transition of 2 between them: 14 seconds.
class TimeLine : public testing::Test
{
protected:
    TimeLine()
    {
        m_first->m_duration = 10.0;
        m_between->m_duration = 2.0;
        m_last->m_duration = 6.0;
    }

    CQZBaseSBD m_sbd;
    Status m_made = m_sbd.NewProduction(); // releases panels, so it comes before them
    CClipObject* m_first = m_sbd.AddClipPanel(0);
    CTransitionObject* m_between = m_sbd.AddTransition(1);
    CColorObject* m_last = m_sbd.AddColorPanel(2);
};

} // namespace

TEST_F(TimeLine, DurationIsThatOfTheClipsLessTheTransitions)
{
    EXPECT_EQ(getSbdDuration(&m_sbd), 14.0);
    double duration = 0.0;
    EXPECT_EQ(m_sbd.m_productionObject->get_Duration(&duration), status::kOk);
    EXPECT_EQ(duration, 14.0);
    m_between->m_duration = 100.0;
    EXPECT_EQ(getSbdDuration(&m_sbd), 0.0);
    m_between->m_duration = std::nan("");
    EXPECT_EQ(getSbdDuration(&m_sbd), 0.0);
    EXPECT_EQ(getSbdDuration(nullptr), 0.0);
    EXPECT_EQ(m_sbd.m_productionObject->get_Duration(nullptr), status::kNullPointer);
}

TEST_F(TimeLine, LongestDurationPlaysFilesToTheirEnd)
{
    EXPECT_EQ(getMaxSbdDuration(&m_sbd), 14.0); // the file's duration isn't known
    m_first->m_fileDuration = 62.0;
    m_first->m_inPoint = 2.0;
    m_first->m_speed = 2.0;
    EXPECT_EQ(getMaxSbdDuration(&m_sbd), 34.0);
    m_first->m_speed = 0.0;
    EXPECT_EQ(getMaxSbdDuration(&m_sbd), 14.0);
    EXPECT_EQ(getMaxSbdDuration(nullptr), 0.0);
}

TEST_F(TimeLine, NewDurationIsTakenByTheLastClip)
{
    EXPECT_EQ(setSbdDuration(&m_sbd, 20.0), status::kOk);
    EXPECT_EQ(m_last->m_duration, 12.0);
    EXPECT_EQ(getSbdDuration(&m_sbd), 20.0);
    EXPECT_EQ(setSbdDuration(&m_sbd, 7.0), status::kBadArgument); // the others take 8 alone
    EXPECT_EQ(setSbdDuration(&m_sbd, -1.0), status::kBadArgument);
    EXPECT_EQ(setSbdDuration(&m_sbd, std::nan("")), status::kBadArgument);
    EXPECT_EQ(setSbdDuration(&m_sbd, INFINITY), status::kBadArgument);
    EXPECT_EQ(m_last->m_duration, 12.0);
    for (const double former : { 1e20, double(INFINITY), std::nan("") }) { // as a file may have it
        m_last->m_duration = former;
        EXPECT_EQ(setSbdDuration(&m_sbd, 10.0), status::kOk);
        EXPECT_EQ(m_last->m_duration, 2.0);
    }
    EXPECT_EQ(setSbdDuration(nullptr, 1.0), status::kNullPointer);
    CQZBaseSBD empty;
    EXPECT_EQ(setSbdDuration(&empty, 1.0), status::kNullPointer);
}

TEST_F(TimeLine, BackgroundVideoIsPanelZero)
{
    std::string name = "former";
    m_first->m_inPoint = 3.0;
    m_first->m_fileDuration = 30.0;
    EXPECT_EQ(setSbdBkgndVideo(&m_sbd, R"(C:\\a\b.mpg)", true), status::kOk);
    EXPECT_EQ(getSbdBkgndVideo(&m_sbd, &name), status::kOk);
    EXPECT_EQ(name, "C:/a/b.mpg");
    EXPECT_EQ(m_first->m_inPoint, 0.0);
    EXPECT_EQ(m_first->m_duration, 10.0); // how long another file lasts isn't known

    m_first->m_fileDuration = 45.0;
    EXPECT_EQ(setSbdBkgndVideo(&m_sbd, "C:/a/b.mpg", true), status::kOk);
    EXPECT_EQ(m_first->m_duration, 45.0);
    EXPECT_EQ(setSbdBkgndVideo(&m_sbd, "", false), status::kBadArgument);
    EXPECT_EQ(setSbdBkgndVideo(nullptr, "a", false), status::kNullPointer);
}

TEST(BackgroundVideo, ColourAtPanelZeroGivesWayAndHasNoName)
{
    CQZBaseSBD sbd;
    std::string name = "former";
    CColorObject* colour = sbd.AddColorPanel(0);
    colour->m_duration = 5.0;
    colour->m_groupId = 4;
    colour->m_panelId = 6;
    const CEffectObject* effect = colour->AddEffect(3, tagENM_LAYER_TYPE{ 1 });
    colour->AddAudio();
    colour->MarkerAddToList(2.5, eMarkerType{}, 9, tagENM_MARKER_STATE{});
    EXPECT_EQ(getSbdBkgndVideo(&sbd, &name), status::kOk);
    EXPECT_EQ(getSbdBkgndVideo(nullptr, &name), status::kOk);
    EXPECT_EQ(getSbdBkgndVideo(&sbd, nullptr), status::kNullPointer);
    EXPECT_EQ(name, "former");
    EXPECT_EQ(setSbdBkgndVideo(&sbd, "/a.mpg", false), status::kOk);
    EXPECT_EQ(getSbdBkgndVideo(&sbd, &name), status::kOk);
    EXPECT_EQ(name, "/a.mpg");
    auto* clip = dynamic_cast<CClipObject*>(sbd.m_panels[0]->m_whole);
    ASSERT_NE(clip, nullptr);
    EXPECT_EQ(clip->m_duration, 5.0);
    EXPECT_EQ(clip->m_groupId, 4); // what lay on the colour lies on the clip
    EXPECT_EQ(clip->m_panelId, 6);
    EXPECT_EQ(clip->m_audioList.size(), 1U);
    EXPECT_EQ(clip->LookupIndex(9), 0);
    ASSERT_EQ(clip->m_layerOrder, std::vector<long>{ 3 });
    EXPECT_EQ(effect->m_parent, static_cast<CParentObjectImpl*>(clip));

    clip->m_volLabel = "DISC_4"; // known of this file, and not of the next
    clip->m_isTivo = true;
    clip->m_nativeAudio = std::make_unique<CAudioObject>();
    clip->m_canUseNativeAudio = false;
    clip->m_repeat = true;
    EXPECT_EQ(setSbdBkgndVideo(&sbd, "/b.mpg", false), status::kOk);
    EXPECT_EQ(clip->m_volLabel, "");
    EXPECT_FALSE(clip->m_isTivo);
    EXPECT_EQ(clip->m_nativeAudio, nullptr);
    EXPECT_TRUE(clip->m_canUseNativeAudio);
    EXPECT_TRUE(clip->m_repeat);
}

TEST_F(TimeLine, BackgroundAudioIsTheFirstOfTheProduction)
{
    std::string name = "former";
    auto& list = m_sbd.m_productionObject->m_audioList;
    list[0]; // a sound that is no file comes first
    EXPECT_EQ(getSbdBkgndAudio(&m_sbd, &name), status::kOk);
    EXPECT_EQ(_matchBkgndAudioDuration(&m_sbd), status::kOk);
    EXPECT_EQ(name, "former");
    EXPECT_EQ(setSbdBkgndAudio(&m_sbd, R"(\music\a.mp3)"), status::kOk);
    auto* former = dynamic_cast<CAudioObject*>(list.rbegin()->second->m_whole);
    former->m_inPoint = former->m_outPoint = former->m_fileDuration = 7.0;
    EXPECT_EQ(setSbdBkgndAudio(&m_sbd, "/music/b.mp3"), status::kOk);
    EXPECT_EQ(getSbdBkgndAudio(&m_sbd, &name), status::kOk);
    EXPECT_EQ(name, "/music/b.mp3");
    ASSERT_EQ(list.size(), 2U);
    auto* audio = dynamic_cast<CAudioObject*>(list.rbegin()->second->m_whole);
    EXPECT_EQ(audio->m_endOffset, 14.0);
    EXPECT_EQ(audio->m_inPoint, 0.0);
    EXPECT_EQ(audio->m_outPoint, 0.0);
    EXPECT_EQ(audio->m_fileDuration, 0.0);
    m_last->m_duration = 7.0;
    EXPECT_EQ(_matchBkgndAudioDuration(&m_sbd), status::kOk);
    EXPECT_EQ(audio->m_endOffset, 15.0);
    EXPECT_EQ(setSbdBkgndAudio(&m_sbd, ""), status::kOk);
    EXPECT_EQ(list.size(), 1U);
    EXPECT_EQ(setSbdBkgndAudio(nullptr, "a"), status::kNullPointer);
    EXPECT_EQ(_matchBkgndAudioDuration(nullptr), status::kNullPointer);
}
