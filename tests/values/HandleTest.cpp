#include "support/XmlFixture.h"
#include "values/File.h"

#include <algorithm>
#include <ranges>

using std::string;
using std::vector;
using namespace vantrel;

namespace {

template <class Range>
concept BorrowedView = std::ranges::view<Range> && std::ranges::borrowed_range<Range> &&
    std::ranges::input_range<const Range>;
static_assert(BorrowedView<Nodes<Menu>> && std::ranges::forward_range<const Nodes<Menu>>);
static_assert(BorrowedView<Panels> && std::ranges::forward_range<const Panels>);
static_assert(BorrowedView<Commands> && BorrowedView<Carrier::Sounds>);
static_assert(BorrowedView<Layers> && BorrowedView<Effects> && BorrowedView<Layer::Effects>);

/// The labels or names of a range, with commas.
template <class Range>
string Labels(const Range& range)
{
    string labels;
    for (const auto item : range)
        labels += item.label() + ',';
    return labels;
}

class TravelDisc : public testing::Test
{
protected:
    const Result<OwnedProject> m_loaded =
        Load(string(EXAMPLES_FOLDER) + "/travel-disc/Content/travel-disc.xml");
    const Project m_disc = m_loaded->view();
    const Menu m_menu = m_disc.menus().front();
};

TEST(Handle, AnEmptyOneAnswersEverythingWithNothing)
{
    const Project none;
    EXPECT_FALSE(none.titles().front().storyboard().panels().front().source());
    EXPECT_EQ(none.menus().at(3).defaultButton().neighbour(Direction::up).label(), "");
    EXPECT_EQ(none.menus().find("x").buttons().find(7).texts().front().words(), "");
    EXPECT_FALSE(none.commands().front().title().project());
    EXPECT_FALSE(none.encoding() || none.find(1) || none.parentOf(Node()) || none.compression());
    EXPECT_FALSE(none.addTitle("x").makeStoryboard().addClip("x", 0, 1).addMarker(0));
    EXPECT_FALSE(none.addMenu("x").addButton("x").addText("x") || none.addDataFile("x", "y"));
    EXPECT_FALSE(Storyboard().addAudio("x", 0, 1) || Storyboard().addEffect(0, 0));
    EXPECT_TRUE(Storyboard().layers().empty() && Storyboard().effects().empty());
    EXPECT_TRUE(Menu().palette().colours()[15].red == 0 && !Menu().buttonScheme(1));
    EXPECT_EQ(Panel().kind(), PanelKind::none);
    EXPECT_EQ(Command().name(), "");

    for (const Status refused :
         { none.label("x"), Title().tag(TitleTag::normal), Menu().defaultButton(Button()),
           Button().neighbour(Direction::left, Button()), Overlay().size({ 1, 1 }),
           none.remove(Title()), none.move(Menu(), 0), Menu().remove(Text()),
           Storyboard().frameRate(25), Storyboard().remove(Panel()), Effect().place(0, 1) })
        EXPECT_EQ(refused, status::kNullPointer);
    EXPECT_EQ(Effect().data("<a/>"), status::kUnexpected);
}

TEST_F(TravelDisc, IsWalkedInOnePassByRanges)
{
    EXPECT_EQ(Labels(m_disc.titles()), "Opening card,The Road North,Islands & Lighthouses,");
    EXPECT_EQ(Labels(m_menu.buttons()),
              "The Road North,Islands & Lighthouses,Play everything,Chapters,");
    EXPECT_EQ(m_menu.buttons().count(), 4);
    EXPECT_EQ(m_menu.buttons().at(4), Button());

    const auto isFirst = [](Title title) { return title.tag().has(TitleTag::firstPlay); };
    EXPECT_EQ((*std::ranges::find_if(m_disc.titles(), isFirst)).label(), "Opening card");
    auto native = m_disc.menus() | std::views::filter(&Menu::isNative);
    EXPECT_EQ((*native.begin()).label(), "Chapters");
}

TEST_F(TravelDisc, FindsByIdLabelAndPlace)
{
    const Button button = m_menu.buttons().find("Islands & Lighthouses");
    EXPECT_EQ(button.id(), 110);
    EXPECT_EQ(m_disc.find(110), Node(button));
    EXPECT_EQ(m_disc.find(10).as<Title>(), m_disc.titles().front());
    const Text text = button.texts().front();
    EXPECT_EQ(m_disc.find(text.id()).as<Text>(), text);
    EXPECT_FALSE(m_disc.find(text.id()).as<Overlay>() || m_disc.find(9999));
    EXPECT_TRUE(text.button() == button && text.menu() == m_menu && text.project() == m_disc);

    EXPECT_EQ(m_disc.parentOf(text), Node(button));
    EXPECT_EQ(m_disc.parentOf(button), Node(m_menu));
    EXPECT_EQ(m_disc.parentOf(m_menu), Node(m_disc));
    EXPECT_EQ(m_disc.parentOf(m_menu.storyboard()), Node(m_menu));
    EXPECT_FALSE(OwnedProject().parentOf(m_menu) || m_disc.parentOf(m_disc));
}

TEST_F(TravelDisc, TellsWhatLinksAndCommandsMean)
{
    const Button button = m_menu.defaultButton();
    EXPECT_EQ(button.label(), "The Road North");
    EXPECT_EQ(button.neighbour(Direction::down).label(), "Play everything");
    EXPECT_EQ(button.neighbour(Direction::down, Button()), status::kOk);
    EXPECT_EQ(button.link(Direction::down), 0);
    const Button elsewhere = m_disc.menus().at(1).buttons().front();
    EXPECT_EQ(button.neighbour(Direction::up, elsewhere), status::kNotAButton);

    const Command play = button.commands().front(); // names the title by its number
    EXPECT_EQ(play.name(), "PlayTitleFromChapter");
    EXPECT_EQ(play.title().label(), "The Road North");
    EXPECT_EQ(play.chapter(), 1);
    play.set(CommandCode::playTitleFromChapter, 12, 3);
    EXPECT_EQ(play.title().label(), "Islands & Lighthouses"); // by its ID
    play.set(CommandCode::playMenu, m_menu.id(), 110);
    EXPECT_TRUE(!play.title() && play.menu() == m_menu && play.button().id() == 110);
}

TEST_F(TravelDisc, AnswersWhatMayBeMissingAsAnOptional)
{
    const Button button = m_menu.defaultButton();
    ASSERT_TRUE(button.activeRegion() && button.highlightRegion());
    EXPECT_EQ(button.activeRegion(std::nullopt), status::kOk);
    EXPECT_FALSE(button.activeRegion());
    EXPECT_FALSE(m_disc.compression()); // counts for a project on disc alone
    EXPECT_EQ(m_disc.isOnDisc(true), status::kOk);
    EXPECT_EQ(m_disc.compression(), true);
    EXPECT_EQ(m_menu.palette().colour(16), std::nullopt);
    EXPECT_EQ(m_menu.templateMenu().label(), "Brass, main menu");
}

TEST(Bits, HaveNamesAndKeepWhatHasNone)
{
    const Bits<MenuTag> tag = MenuTag::main | MenuTag::transition;
    EXPECT_EQ(Names(tag), (vector<string>{ "Main", "Transition" }));
    EXPECT_TRUE(tag.has(MenuTag::main) && !tag.has(MenuTag::main | MenuTag::chapter));
    EXPECT_EQ(Bits<MenuTag>(64 + 1).without(MenuTag::main).number(), 64U);
    EXPECT_EQ(Name(TVStandard::NTSC), "NTSC");
    EXPECT_EQ(Name(TVStandard{ 77 }), "");
}

} // namespace
