// Makes a disc of one title: two clips with a transition between them, a fade on the first, and a
// sound under the whole.

#include <Vantrel.h>

#include <cstdio>

namespace {

/// The fade's own data. An effect only points at it, so it must outlive the save.
class FadeData
{
public:
    FadeData()
    {
        XMLHelpers<void>::CreateDocument(&m_doc);
        XMLHelpers<void>::SaveNode(xmlDocGetRootElement(m_doc), "effect", "", "", "", &m_effect);
        XMLHelpers<void>::SaveStringNode(m_effect, "name", "", "Fade");
        XMLHelpers<void>::SaveDoubleNode(m_effect, "opacity", "", 0.5);
    }
    FadeData(const FadeData&) = delete;
    FadeData& operator=(const FadeData&) = delete;
    ~FadeData() { xmlFreeDoc(m_doc); }

    _xmlNode* node() const { return m_effect; }

private:
    _xmlDoc* m_doc = nullptr;
    _xmlNode* m_effect = nullptr;
};

CClipObject* AddClip(CQZBaseSBD& storyboard, long key, const char* file, double seconds)
{
    CClipObject* clip = storyboard.AddClipPanel(key);
    clip->m_fileName = file;
    clip->m_duration = clip->m_outPoint = seconds;
    return clip;
}

void FillStoryboard(CQZBaseSBD& storyboard, const FadeData& fade)
{
    CClipObject* clip = AddClip(storyboard, 0, "/video/harbour.mpg", 12.0);
    storyboard.AddTransition(1)->m_duration = 1.5; // odd keys lie between the clips
    AddClip(storyboard, 2, "/video/island.mpg", 20.0);

    CEffectObject* effect = clip->AddEffect(0, tagENM_LAYER_TYPE{ 1 });
    effect->m_endOffset = 2.0;
    effect->PutData(fade.node(), true);

    setSbdBkgndAudio(&storyboard, "/music/waltz.mp3");
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
        return 1;
    const FadeData fade;
    CDSTitle title; // stays ours, so it must go after the project
    CDSProjectData project;
    CQZBaseSBD* storyboard = nullptr;
    title.FinalConstruct();
    title.CreateProduction();
    title.GetProduction(&storyboard);
    FillStoryboard(*storyboard, fade);
    title.put_Label("Crossing");
    project.put_Label("Islands");
    project.AddTitle(0, &title);

    std::printf("%g seconds\n", getSbdDuration(storyboard));
    return Failed(CDSFileService().SaveProject(argv[1], &project)) ? 1 : 0;
}
