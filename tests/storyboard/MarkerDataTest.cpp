#include "storyboard/MarkerData.h"

#include "storyboard/ClipObject.h"
#include "storyboard/ColorObject.h"
#include "support/StoryboardFixture.h"

using namespace vantrel;

namespace {

constexpr eMarkerType kType3{ 3 };
constexpr tagENM_MARKER_STATE kState1{ 1 };

/// Restores the counter of marker ids, which lives as long as the process.
class MarkerIds : public testing::Test
{
protected:
    ~MarkerIds() override { CMarkerDataImpl::ms_lBaseID = m_former; }

    long m_former = std::exchange(CMarkerDataImpl::ms_lBaseID, 300);
    CMarkerDataImpl m_list;
};

} // namespace

TEST_F(MarkerIds, AreGeneratedForWhatIsNotAboveZero)
{
    EXPECT_EQ(m_list.MarkerAddToList(1.0, kType3, 0, kState1)->id, 301);
    EXPECT_EQ(m_list.MarkerAddToList(1.0, kType3, -8, kState1)->id, 302);
    EXPECT_EQ(m_list.MarkerAddToList(1.0, kType3, 7, kState1)->id, 7);
    EXPECT_EQ(CMarkerDataImpl::ms_lBaseID, 302);
    CMarkerDataImpl::ms_lBaseID = 9223372036854775807L;
    EXPECT_EQ(CMarkerDataImpl::GenerateID(), 301);
}

TEST_F(MarkerIds, FirstOfAnIdCounts)
{
    EXPECT_EQ(m_list.LookupIndex(7), -1);
    EXPECT_EQ(m_list.MarkerAdd(1.0, kType3, 7, kState1), status::kOk);
    m_list.MarkerAddToList(2.0, kType3, 7, kState1);
    EXPECT_EQ(m_list.MarkerAdd(3.0, kType3, 7, kState1), status::kNothingDone);
    EXPECT_EQ(m_list.MarkerAdd(3.0, kType3, 0, kState1), status::kOk);
    tagMarker copy;
    EXPECT_EQ(m_list.MarkerGetByID(7, &copy), status::kOk);
    EXPECT_EQ(copy.time, 1.0);
    EXPECT_EQ(m_list.FindItemByID(7)->time, 1.0);
    EXPECT_EQ(m_list.SetTime(7, 4.0), status::kOk);
    EXPECT_EQ(m_list.SetState(7, tagENM_MARKER_STATE{ 2 }), status::kOk);
    EXPECT_EQ(m_list.MarkerRemove(7), status::kOk);
    EXPECT_EQ(m_list.FindItemByID(7)->time, 2.0);
    EXPECT_EQ(m_list.LookupIndex(7), 0);

    EXPECT_EQ(m_list.MarkerRemove(8), status::kNothingDone);
    EXPECT_EQ(m_list.MarkerGetByID(8, &copy), status::kBadArgument);
    EXPECT_EQ(m_list.SetType(8, kType3), status::kBadArgument);
    EXPECT_EQ(m_list.FindItemByID(8), nullptr);
}

TEST_F(MarkerIds, WorkingListHoldsOneTypeUntilMembershipChanges)
{
    for (const unsigned type : { 0U, 3U, 5U, 6U, 3U })
        m_list.MarkerAddToList(type, eMarkerType{ type }, static_cast<long>(type) + 1, kState1);
    EXPECT_EQ(m_list.GenerateList(3), 2);
    EXPECT_EQ(m_list.m_list.front()->id, 4);
    EXPECT_EQ(m_list.GenerateList(6), 2); // stands for the types 0 and 5
    EXPECT_EQ(m_list.m_list.back()->id, 6);
    EXPECT_EQ(m_list.SetType(4, eMarkerType{ 5 }), status::kOk);
    EXPECT_EQ(m_list.GenerateList(6), 2); // remembered
    m_list.MarkerRemove(1);
    EXPECT_EQ(m_list.GenerateList(6), 2); // built again: one went, one came
    EXPECT_EQ(m_list.GenerateList(-1), 0);
    EXPECT_EQ(m_list.m_listKey, 6);
    EXPECT_EQ(m_list.Clear(), status::kOk);
    EXPECT_EQ(m_list.GenerateList(6), 0);
    EXPECT_TRUE(m_list.m_markers.empty());
}

TEST_F(MarkerIds, TimingIsThatOfThePanel)
{
    CClipObject clip;
    clip.m_inPoint = 2.0;
    clip.m_outPoint = 5.0;
    CColorObject color;
    color.m_duration = 4.0;
    double in = -7.0, out = -7.0;
    EXPECT_TRUE(m_list.GetInOutPoints(in, out));
    EXPECT_EQ(in + out, -14.0);
    EXPECT_TRUE(color.GetInOutPoints(in, out));
    EXPECT_EQ(std::pair(in, out), std::pair(0.0, 4.0));
    EXPECT_TRUE(clip.GetInOutPoints(in, out));
    EXPECT_EQ(std::pair(in, out), std::pair(2.0, 5.0));

    EXPECT_TRUE(clip.IsTimingDirty());
    EXPECT_EQ(clip.m_listKey, 999);
    EXPECT_FALSE(clip.IsTimingDirty());
    clip.m_outPoint = 4.0;
    EXPECT_TRUE(clip.IsTimingDirty());
    clip.ClearAll();
    EXPECT_TRUE(clip.IsTimingDirty());
    EXPECT_EQ(clip.GetEditingFrameRate(), 29.97);
}

TEST_F(MarkerIds, ReadingRaisesTheCounterAndReplacesTheList)
{
    constexpr const char* text =
        R"(<O><markers><marker><id dt:dt="i4">412</id><type dt:dt="ui4">3</type>)"
        R"(<time dt:dt="r8">1.5</time><state dt:dt="i4">-1</state></marker></markers></O>)";
    const XmlText xml{ std::string(text).insert(
        2, " xmlns:dt='urn:schemas-microsoft-com:datatypes'") };
    m_list.MarkerAddToList(1.0, kType3, 5, kState1);
    EXPECT_EQ(m_list.LoadMarkersXML(xml.root()), status::kOk);
    EXPECT_EQ(m_list.m_markers.size(), 1U);
    EXPECT_EQ(CMarkerDataImpl::GenerateID(), 413);
    const EmptyXml out{ "O" };
    EXPECT_EQ(m_list.SaveMarkersXML(out.root()), status::kOk);
    EXPECT_EQ(TextOf(out.root()), text);

    const EmptyXml none{ "O" };
    EXPECT_EQ(m_list.LoadMarkersXML(none.root()), status::kOk); // nothing there: nothing changes
    EXPECT_EQ(m_list.m_markers.size(), 1U);
    m_list.ClearAll();
    EXPECT_EQ(m_list.SaveMarkersXML(none.root()), status::kNothingDone);
    EXPECT_EQ(TextOf(none.root()), "<O/>");
}
