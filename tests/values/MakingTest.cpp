#include "support/XmlFixture.h"
#include "values/File.h"

#include <sstream>

using std::string;
using namespace vantrel;

namespace {

/// All that the makers make, and what is set on it.
OwnedProject MakeDisc()
{
    OwnedProject disc("Disc");
    disc.options(ProjectOption::normalizeAudioLevels | ProjectOption::playRemainingTitles);
    const Title title = disc.addTitle("Title");
    title.encoding().audioFormat(AudioFormat::DTS);
    title.commands().add(CommandCode::playNextTitle);
    disc.addDataFile("from.txt", "to.txt").tag(3);

    const Menu menu = disc.addMenu("Menu", MenuTag::main | MenuTag::transition);
    menu.palette().colour(3, { .red = 1, .green = 2, .blue = 3 });
    menu.layoutRect({ .left = 1, .top = 4, .right = 3, .bottom = 2 });
    const Button play = menu.addButton("Play");
    const Button more = menu.addButton("More");
    menu.defaultButton(more);
    play.neighbour(Direction::right, more);
    play.scheme(2);
    play.activeRegion(FloatRect{ .left = 0, .top = 1, .right = 1, .bottom = 0 });
    play.commands().add(CommandCode::playTitleFromChapter, title.id(), 1);
    play.addText("Play & <more>").position({ .x = 0.5F, .y = 0.25F });
    play.addOverlay("Pictures/frame.png").size({ .width = 0.5F, .height = 0.125F });
    return disc;
}

/// What a caller can ask of it.
string Tell(Project disc)
{
    std::ostringstream out;
    out << disc.label() << ' ' << Names(disc.options()).size() << '\n';
    for (const Title title : disc.titles())
        out << title.label() << ' ' << Name(title.encoding().audioFormat()) << ' '
            << title.commands().front().name() << '\n';
    for (const DataFile file : disc.dataFiles())
        out << file.source() << ' ' << file.destination() << ' ' << file.tag() << '\n';
    for (const Menu menu : disc.menus()) {
        out << menu.label() << ' ' << Names(menu.tag()).size() << ' '
            << menu.defaultButton().label() << ' ' << int{ menu.palette().colour(3)->blue } << ' '
            << menu.layoutRect().top << '\n';
        for (const Button button : menu.buttons())
            out << button.label() << ' ' << button.neighbour(Direction::right).label() << ' '
                << button.scheme() << ' ' << button.activeRegion().has_value() << ' '
                << button.commands().front().title().label() << ' '
                << button.texts().front().words() << ' ' << button.texts().front().position().x
                << ' ' << button.overlays().front().storedSource() << ' '
                << button.overlays().front().size().height << '\n';
    }
    return out.str();
}

TEST(Making, WhatIsMadeComesBackFromAFile)
{
    const ScratchFolder folder;
    const OwnedProject made = MakeDisc();
    const string told = "Disc 2\n"
                        "Title DTS PlayNextTitle\n"
                        "from.txt to.txt 3\n"
                        "Menu 2 More 3 4\n"
                        "Play More 2 1 Title Play & <more> 0.5 Pictures/frame.png 0.125\n"
                        "More  0 0   0  0\n";
    EXPECT_EQ(Tell(made.view()), told);
    ASSERT_TRUE(Save(made.view(), folder / "a.xml"));
    EXPECT_EQ(Tell(Load(folder / "a.xml")->view()), told);
}

TEST(Making, TakesOutAndMoves)
{
    const OwnedProject disc = MakeDisc();
    const Title first = disc.titles().front();
    const Title second = disc.addTitle("Second");
    EXPECT_EQ(disc.move(second, 0), status::kOk);
    EXPECT_EQ(disc.titles().front(), second);
    EXPECT_EQ(disc.move(second, 2), status::kBadArgument);
    EXPECT_EQ(disc.remove(second), status::kOk);
    EXPECT_EQ(disc.remove(second), status::kNoSuchObject);
    EXPECT_EQ(second.label(), "Second"); // lives as long as the project
    EXPECT_EQ(disc.titles().front(), first);

    const Menu menu = disc.menus().front();
    const Button play = menu.buttons().front();
    const Button more = menu.buttons().at(1);
    EXPECT_EQ(menu.move(more, 0), status::kOk);
    EXPECT_EQ(menu.buttons().front(), more);
    EXPECT_EQ(more.remove(play.texts().front()), status::kNoSuchObject);
    EXPECT_EQ(play.remove(play.texts().front()), status::kOk);
    EXPECT_TRUE(play.texts().empty());
    EXPECT_EQ(menu.remove(more), status::kOk);
    EXPECT_EQ(menu.buttons().count(), 1);
    EXPECT_EQ(play.commands().remove(play.commands().front()), status::kOk);
    EXPECT_TRUE(play.commands().empty());
}

TEST(Making, ARangeMayBeAppendedToWhileItRuns)
{
    const OwnedProject disc = MakeDisc();
    int met = 0;
    for (const Title title : disc.titles()) {
        if (++met < 100)
            disc.addTitle(title.label() + "'");
    }
    EXPECT_EQ(met, 100);
}

} // namespace
