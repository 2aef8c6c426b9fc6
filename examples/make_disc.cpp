// Builds a title in memory, saves it in a project file and loads that again.

#include <Vantrel.h>

#include <iostream>

namespace {

// Layers and what the plug-in of an effect understands are the application's.
constexpr long kCaptionLayer = 5;
constexpr long kCaptionType = 1;
constexpr char kCaption[] = "<effect><name>Caption</name><plugin_data>"
                            "<html><body>The ferry at dawn</body></html>"
                            "</plugin_data></effect>";

/// Two clips with a transition between them, a caption on the first and music below both.
vantrel::OwnedProject MakeDisc()
{
    vantrel::OwnedProject disc("Three Weeks North");
    const auto line = disc.addTitle("The Road North").makeStoryboard();

    const auto ferry = line.addClip("Footage/ferry.mpg", 2.0, 14.0);
    line.addTransition(1.0);
    line.addClip("Footage/road.mpg", 0.0, 8.0);

    const auto caption = ferry.addEffect(kCaptionLayer, kCaptionType);
    caption.place(0.5, 4.0);
    caption.data(kCaption);
    line.addAudio("Sound/accordion.wav", 0.0, line.duration()).fadeOut(3.0);
    return disc;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string path = argc == 2 ? argv[1] : "";
    const auto saved = vantrel::Save(MakeDisc(), path);
    const auto disc = vantrel::Load(path);

    const auto title = disc->titles().front();
    const auto line = title.storyboard();
    std::cout << title.label() << ": " << line.duration() << " seconds, from "
              << line.clips().front().file() << " on, to " << line.audio().front().file() << '\n';
    return saved && disc ? 0 : 1;
}
