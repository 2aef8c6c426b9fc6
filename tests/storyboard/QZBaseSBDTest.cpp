#include "storyboard/QZBaseSBD.h"

#include "storyboard/AudioObject.h"
#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "storyboard/EffectObject.h"
#include "storyboard/MotionObject.h"
#include "storyboard/TransitionObject.h"
#include "support/StoryboardFixture.h"

using namespace vantrel;

TEST(QZBaseSBD, EmptyStoryboardWritesItsFiveElements)
{
    CQZBaseSBD sbd;
    sbd.put_Version("");
    EXPECT_EQ(WrittenObject(sbd), R"(<O><version dt:dt="string">9.0</version>)"
                                  R"(<isVOB dt:dt="boolean">0</isVOB>)"
                                  "<production/><panels/><groups/></O>");
}

TEST(QZBaseSBD, ReadOfNothingMakesAProductionAndKeepsDefaults)
{
    CQZBaseSBD sbd;
    CProductionObject* production = nullptr;
    EXPECT_EQ(sbd.GetProductionObj(&production), status::kNullPointer);
    ReadObject(sbd, "<O/>");
    EXPECT_EQ(sbd.GetProductionObj(&production), status::kOk);
    EXPECT_EQ(production->GetSBD(), &sbd);
    EXPECT_EQ(sbd.m_version, "9.0");
}

TEST(QZBaseSBD, NullArgumentsChangeNothing)
{
    CQZBaseSBD sbd;
    sbd.NewProduction();
    sbd.m_workingPath = "/videos";
    EXPECT_EQ(sbd.LoadProductionFromXML(nullptr), status::kBadArgument);
    EXPECT_EQ(sbd.SaveProductionToXML(nullptr), status::kBadArgument);
    EXPECT_EQ(sbd.PersistXML(nullptr, true), status::kBadArgument);
    EXPECT_EQ(sbd.GetProductionObj(nullptr), status::kBadArgument);
    EXPECT_EQ(sbd.get_Version(nullptr), status::kBadArgument);
    EXPECT_EQ(sbd.GetPanelBaseObject(0, nullptr), status::kBadArgument);
    EXPECT_EQ(sbd.m_workingPath, "/videos");
    EXPECT_EQ(sbd.m_nextID, 1);
}

TEST(QZBaseSBD, CloseResetsCountersAndKeepsObjects)
{
    CQZBaseSBD sbd;
    sbd.NewProduction();
    sbd.AddClipPanel(0);
    sbd.m_workingPath = "/videos";
    SavedFile(sbd);
    EXPECT_EQ(sbd.m_workingPath, "/videos");
    EXPECT_EQ(sbd.CloseProduction(), status::kOk);
    EXPECT_EQ(sbd.m_workingPath, "");
    EXPECT_EQ(sbd.m_nextID, 0);
    EXPECT_EQ(sbd.m_panels.size(), 1U);

    EXPECT_EQ(sbd.NewProduction(), status::kOk);
    EXPECT_TRUE(sbd.m_panels.empty());
    EXPECT_EQ(sbd.m_productionObject->m_id, 1);
    EXPECT_EQ(sbd.FinalRelease(), status::kOk);
    EXPECT_EQ(sbd.m_productionObject, nullptr);
}

TEST(QZBaseSBD, PanelCountIsThatOfPanelsOrGroups)
{
    CQZBaseSBD sbd;
    EXPECT_EQ(sbd.CalculatePanelNumber(), 0);
    sbd.AddClipPanel(0);
    sbd.AddTransition(1);
    sbd.AddColorPanel(2);
    EXPECT_EQ(sbd.CalculatePanelNumber(), 3);
    CBaseObjectImpl* panel = nullptr;
    EXPECT_EQ(sbd.GetPanelBaseObject(3, &panel), status::kNothingDone);
    EXPECT_EQ(panel, nullptr);
    sbd.AddGroup(7)->SetGroupInfo(1, 0, 10, "", "");
    sbd.m_groups[8]; // no group
    EXPECT_EQ(sbd.CalculatePanelNumber(), 10);
    EXPECT_EQ(sbd.RemovePanel(1), status::kOk);
    EXPECT_EQ(sbd.RemovePanel(1), status::kNothingDone);
}

TEST(QZBaseSBD, UnknownOrMissingTypeIsAFile)
{
    CQZBaseSBD sbd;
    ReadObject(sbd, "<O><panels><clip key='0' type='file source'/><clip key='2' type='?'/>"
                    "<clip key='4'/><clip type='solid color'/></panels></O>");
    EXPECT_EQ(sbd.m_panels.size(), 3U); // the last has no key, and takes none
    EXPECT_EQ(sbd.m_panels[0]->GetClipType(), eClipFileSource);
    EXPECT_EQ(sbd.m_panels[2]->GetClipType(), eClipFileSource);
    EXPECT_EQ(sbd.m_panels[4]->GetClipType(), eClipFileSource);
}

TEST(QZBaseSBD, MadeInMemoryIsAsRead)
{
    CQZBaseSBD sbd;
    sbd.NewProduction();
    CClipObject* clip = sbd.AddClipPanel(0);
    clip->m_duration = 4.0;
    CEffectObject* effect = clip->AddEffect(3, tagENM_LAYER_TYPE{ 2 });
    CMotionObject* motion = clip->AddMotion(3, tagENM_LAYER_TYPE{ 0 });
    CAudioObject* audio = motion->AddAudio();
    EXPECT_EQ(clip->m_layers.at(3).first, 2); // the layer that is there keeps its type
    EXPECT_EQ(clip->m_layerOrder, std::vector<long>{ 3 });
    EXPECT_EQ(clip->m_maxLayerKey, 3);
    EXPECT_EQ(effect->CSubObjectImpl::m_id, 3);
    EXPECT_EQ(effect->m_effectID, 3);
    EXPECT_EQ(motion->m_effectID, 4);
    EXPECT_EQ(audio->CSubObjectImpl::m_id, 5);
    EXPECT_EQ(audio->m_parent, static_cast<CParentObjectImpl*>(motion));
    CQZBaseSBD* owner = nullptr;
    EXPECT_EQ(audio->get_ParentProduction(&owner), status::kOk);
    EXPECT_EQ(owner, &sbd);

    CQZBaseSBD read;
    LoadFile(read, SavedFile(sbd));
    CQZBaseSBD again;
    LoadFile(again, SavedFile(read));
    EXPECT_EQ(SavedFile(again), SavedFile(read));
    EXPECT_EQ(read.ComputeDuration(), 4.0);
}

TEST(QZBaseSBD, ParentWithoutAStoryboardNumbersItsChildrenItself)
{
    CMotionObject motion;
    EXPECT_EQ(motion.AddAudio()->CSubObjectImpl::m_id, 0);
    ReadObject(motion, "<O><parentObject><audioList><audio/><audio/></audioList>"
                       "<effects><layer key='2'><effect/><effect type='motion'/></layer></effects>"
                       "</parentObject></O>");
    EXPECT_EQ(motion.m_audioList.size(), 2U); // a read replaces what was there
    EXPECT_EQ(motion.m_layers.at(2).second->size(), 2U);
    motion.AddEffect(2, tagENM_LAYER_TYPE{ 0 });
    EXPECT_EQ(motion.m_layers.at(2).second->size(), 3U);
}

TEST(QZBaseSBD, IdsGoOnBehindTheLargest)
{
    CQZBaseSBD sbd;
    sbd.m_nextID = 9223372036854775807L;
    EXPECT_EQ(sbd.NextID(), 1);
    EXPECT_EQ(sbd.NextID(), 2);
}
