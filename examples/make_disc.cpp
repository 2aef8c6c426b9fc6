// Builds a title in memory, saves it in a project file and loads that again.

#include <Vantrel.h>

#include <cstdio>
#include <cstring>
#include <string>

using namespace vantrel;

namespace {

// Layer types are the application's; this one has its captions on type 1.
constexpr long kCaptionLayer = 5;
constexpr tagENM_LAYER_TYPE kCaptionType{ 1 };

/// What the plug-in of an effect understands; the library carries it as it is.
constexpr char kCaption[] = "<effect><name>Caption</name><plugin_data>"
                            "<html><body>The ferry at dawn</body></html>"
                            "</plugin_data></effect>";

/// A panel that shows `seconds` of a file, from `inPoint` on.
CClipObject* AddClip(CQZBaseSBD& storyboard, long key, const char* file, double inPoint,
                     double seconds)
{
    CClipObject* clip = storyboard.AddClipPanel(key);
    clip->m_fileName = file;
    clip->m_inPoint = inPoint;
    clip->m_outPoint = inPoint + seconds;
    clip->m_duration = seconds;
    return clip;
}

/// Two clips with a transition between them: clips have even keys, transitions odd ones.
void BuildTimeLine(CQZBaseSBD& storyboard, xmlNode* caption)
{
    CClipObject* ferry = AddClip(storyboard, 0, "Footage/ferry.mpg", 2.0, 12.0);
    storyboard.AddTransition(1)->m_duration = 1.0;
    AddClip(storyboard, 2, "Footage/road.mpg", 0.0, 8.0);

    CEffectObject* effect = ferry->AddEffect(kCaptionLayer, kCaptionType);
    effect->m_startOffset = 0.5;
    effect->m_endOffset = 4.0;
    effect->PutData(caption, false);

    CProductionObject* production = nullptr;
    if (storyboard.GetProductionObj(&production) != status::kOk)
        return;
    CAudioObject* music = production->AddAudio();
    music->m_fileName = "Sound/accordion.wav";
    music->m_endOffset = getSbdDuration(&storyboard);
    music->m_fadeOut = 3.0;
}

/// A project with one title, saved as `path`. Whatever lends itself to the project outlives the save.
Status Save(const char* path)
{
    const vantrel::XmlDocPtr caption(
        xmlReadMemory(kCaption, int(std::strlen(kCaption)), nullptr, nullptr, XML_PARSE_NONET));
    CDSProjectData project;
    project.put_Label("Three Weeks North");

    CDSTitle title;
    title.FinalConstruct();
    title.put_Label("The Road North");
    title.CreateProduction();
    CQZBaseSBD* storyboard = nullptr;
    title.GetProduction(&storyboard);
    BuildTimeLine(*storyboard, xmlDocGetRootElement(caption.get()));

    const Status added = project.AddTitle(0, &title); // 0 appends
    return Failed(added) ? added : CDSFileService().SaveProjectAtomic(path, &project);
}

/// Loads the project at `path` and tells what its first title plays.
Status Tell(const char* path)
{
    CDSProjectData project;
    const Status loaded = CDSFileService().LoadProject(path, &project);
    CDSTitle* title = nullptr;
    CQZBaseSBD* storyboard = nullptr;
    if (Failed(loaded) || Failed(project.GetTitle(1, &title)) || !title ||
        Failed(title->GetProduction(&storyboard)))
        return status::kFailure;

    std::string label;
    std::string video;
    std::string audio;
    title->get_Label(&label);
    getSbdBkgndVideo(storyboard, &video);
    getSbdBkgndAudio(storyboard, &audio);
    std::printf("%s: %g seconds, from %s on, to %s\n", label.c_str(), getSbdDuration(storyboard),
                video.c_str(), audio.c_str());
    return status::kOk;
}

} // namespace

int main(int argc, char** argv)
{
    return argc != 2 || Failed(Save(argv[1])) || Failed(Tell(argv[1])) ? 1 : 0;
}
