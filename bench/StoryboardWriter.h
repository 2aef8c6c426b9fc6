#pragma once

#include "Choices.h"
#include "ElementWriter.h"

#include <string>
#include <vector>

namespace bench {

/// Writes the storyboard of one title or menu, and numbers what lies in it as a reader does: the
/// objects on a clip before the clip, and the transitions behind all clips.
class StoryboardWriter
{
public:
    StoryboardWriter(ElementWriter& out, Choices& choices) : m_out(out), m_choices(choices) {}

    /// Clips of all kinds, with transitions and whatever can lie on them.
    void WriteTitle(const std::string& name, unsigned clips);
    /// One clip without effects. `name` is that of the element.
    void WriteMenu(const std::string& name);

private:
    using Durations = std::vector<double>; ///< of the clips, in seconds

    /// Where an effect lies.
    struct Layer
    {
        int key;
        int type;
    };

    void Write(const std::string& name, const Durations& durations, bool isRich);
    void WriteProduction(const Durations& durations, bool isRich);
    void WriteTransition(long key);
    void WriteGroups(std::size_t clips);

    void WriteFileClip(ElementWriter& out, long key, double duration, bool isRich);
    void WriteColorClip(ElementWriter& out, long key, double duration);
    void WriteBase(ElementWriter& out, long key, double duration);
    void WriteEffects(ElementWriter& out, long key, double duration);

    void WriteEffect(ElementWriter& out, Layer layer, double duration, bool isCaption);
    void WriteMotion(ElementWriter& out, Layer layer, double duration);
    void WriteInfo(ElementWriter& out, long id, Layer layer, bool isCaption);

    void WriteAudio(ElementWriter& out, double duration, bool isRich);
    void WriteSound(ElementWriter& out, const std::string& file, double duration, bool isRich);
    void WriteNative(ElementWriter& out, const std::string* file, double duration);
    void WriteSource(ElementWriter& out, const std::string& file, double duration);
    void WriteMarkers(ElementWriter& out, double duration);

    ElementWriter& m_out;
    Choices& m_choices;
    long m_nextID = 3; ///< behind those of the production and of its special effect
    long m_nextMarker = 301;
};

} // namespace bench
