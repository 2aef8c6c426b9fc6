#include "values/Storyboard.h"

#include "support/XmlFixture.h"
#include "values/File.h"

#include <sstream>

using std::string;
using namespace vantrel;

namespace {

string Tell(Storyboard line)
{
    std::ostringstream out;
    for (const Panel panel : line.panels()) {
        out << panel.key() << ' ' << panel.start() << '-' << panel.end() << ' ' << int(panel.kind())
            << ' ' << panel.file() << '\n';
        for (const Layer layer : panel.layers())
            out << "  layer " << layer.key() << ' ' << layer.type() << '\n';
        for (const Effect effect : panel.effects())
            out << "  " << effect.name() << ' ' << effect.start() << '-' << effect.end() << '\n';
        for (const Marker marker : panel.markers())
            out << "  at " << marker.time() << '\n';
    }
    for (const Audio sound : line.audio())
        out << sound.file() << ' ' << sound.start() << '-' << sound.end() << ' ' << sound.fadeOut()
            << '\n';
    return out.str();
}

constexpr char kTold[] = "0 0-12 1 a.mpg\n"
                         "  layer 7 2\n"
                         "  layer 5 1\n"
                         "  Zoom 0-12\n"
                         "  Caption 0.5-4\n"
                         "  at 1.5\n"
                         "1 11-12 4 \n"
                         "2 11-19 1 b.mpg\n"
                         "4 19-21 2 \n"
                         "c.wav 0-21 3\n";

class Line : public testing::Test
{
protected:
    void SetUp() override
    {
        const Panel clip = m_line.addClip("a.mpg", 2.0, 14.0);
        m_line.addTransition(1.0);
        m_line.addClip("b.mpg", 0.0, 8.0);
        m_line.addColour(0xFF, 2.0);
        const Effect zoom = clip.addMotion(7, 2);
        zoom.data("<effect><name>Zoom</name></effect>");
        zoom.place(0.0, 12.0);
        const Effect caption = clip.addEffect(5, 1);
        caption.data("<effect><name>Caption</name></effect>");
        caption.place(0.5, 4.0);
        clip.addMarker(1.5);
        m_line.addAudio("c.wav", 0.0, m_line.duration()).fadeOut(3.0);
    }

    const OwnedProject m_disc{ "Disc" };
    const Storyboard m_line = m_disc.addTitle("Title").makeStoryboard();
};

TEST_F(Line, HasItsPanelsAtTheirTimesAlsoAfterASave)
{
    const ScratchFolder folder;
    EXPECT_EQ(Tell(m_line), kTold);
    EXPECT_EQ(m_line.duration(), 21.0);
    ASSERT_TRUE(Save(m_disc.view(), folder / "a.xml"));
    const auto loaded = Load(folder / "a.xml");
    EXPECT_EQ(Tell(loaded->titles().front().storyboard()), kTold);
}

TEST_F(Line, ChoosesPanelsWithTheSameTimes)
{
    EXPECT_EQ(m_line.clips().count(), 3);
    EXPECT_EQ(m_line.transitions().front().start(), 11.0);
    EXPECT_EQ(m_line.clips().find(4).start(), 19.0);
    EXPECT_EQ(m_line.panels().find(3), Panel());
}

TEST_F(Line, NamesALayerOnceThatAFileNamesTwice)
{
    const Carrier carrier = m_line.panels().front().carrier();
    carrier.object()->m_layerOrder.insert(carrier.object()->m_layerOrder.begin(), { 5, 99 });
    string keys;
    for (const Layer layer : carrier.layers())
        keys += std::to_string(layer.key()) + ' ';
    EXPECT_EQ(keys, "5 7 ");
}

TEST_F(Line, ReleasesWhatIsTakenOutOfIt)
{
    const Panel clip = m_line.panels().front();
    EXPECT_EQ(m_line.remove(clip.effects().front()), status::kNoSuchObject); // lies on the clip
    EXPECT_EQ(clip.remove(clip.effects().front()), status::kOk);
    EXPECT_EQ(clip.effects().front().name(), "Caption"); // past the layer that is empty now
    EXPECT_EQ(clip.remove(clip.markers().front()), status::kOk);
    EXPECT_EQ(m_line.remove(m_line.audio().front()), status::kOk);
    EXPECT_EQ(m_line.remove(m_line.clips().find(4)), status::kOk);
    EXPECT_EQ(m_line.remove(m_line.transitions().front()), status::kOk);
    EXPECT_EQ(Tell(m_line), "0 0-12 1 a.mpg\n  layer 7 2\n  layer 5 1\n  Caption 0.5-4\n"
                            "2 12-20 1 b.mpg\n");
    const Storyboard other = m_disc.addTitle("Other").makeStoryboard();
    EXPECT_EQ(other.remove(clip), status::kNoSuchObject);
}

TEST_F(Line, RefusesWhatIsNoStretchOfTime)
{
    EXPECT_FALSE(m_line.addClip("x", 3.0, 2.0) || m_line.addColour(0, -1.0));
    EXPECT_FALSE(m_disc.addTitle("x").makeStoryboard().addTransition(1.0)); // between what?
    EXPECT_EQ(m_line.panels().front().effects().front().data("no XML"), status::kBadArgument);
    EXPECT_EQ(Tell(m_line), kTold);
}

} // namespace
