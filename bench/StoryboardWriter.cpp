#include "StoryboardWriter.h"

#include "EffectWriter.h"

#include <algorithm>
#include <initializer_list>
#include <numeric>
#include <span>
#include <utility>

using std::string;

namespace bench {

namespace {

constexpr double kTransition = 1.0; // seconds

/// True for the keys of clips that are of one colour; the others show a file.
constexpr bool IsColor(long key)
{
    return key % 8 == 2;
}
constexpr const char* kMoveUuid = "{3C5A0E52-77D1-4B0C-9A3E-5D0B1E8F4A11}";
constexpr const char* kFileSource = "file source";
constexpr const char* kSolidColor = "solid color";

/// A typed element and its usual text.
struct Row
{
    const char* name;
    const char* type;
    const char* text;
};
using Changes = std::initializer_list<std::pair<const char*, string>>;

// clang-format off
constexpr Row kProduction[] = {
    { "LibraryAlbumID", "i4", "-1" },
    { "Duration", "r8", "0" },
    { "uuid", "string", "{F66FD1A7-5276-4671-86E7-213D3C55BFD9}" },
    { "aspectRatio", "r8", "1.77778" },
    { "editFrameRate", "r8", "25" },
    { "bkgType", "ui4", "2" },
    { "bkgTile", "boolean", "0" },
    { "bkgColor", "string", "#1f4e6b" },
    { "gradientRows", "ui4", "0" },
    { "gradientCols", "ui4", "0" },
    { "is3DProduction", "boolean", "0" },
    { "leftEyePrecedence", "boolean", "1" },
    { "layoutMode3D", "ui4", "0" },
};
constexpr Row kBase[] = {
    { "Id", "i4", "0" },
    { "panelId", "i4", "0" },
    { "duration", "r8", "0" },
    { "groupId", "i4", "-1" },
    { "flags", "ui4", "0" },
    { "thumbnailInPoint", "r8", "0.5" },
    { "speed", "r8", "1" },
};
constexpr Row kSource[] = {
    { "fileName", "string", "" },
    { "inPoint", "r8", "0" },
    { "outPoint", "r8", "0" },
    { "fileDuration", "r8", "431.8" },
    { "fileSize", "r8", "2.94e+08" },
    { "dataRate", "r8", "6200" },
    { "volLabel", "string", "" },
    { "cdDrive", "string", "" },
    { "type", "i2", "2" },
    { "repeat", "boolean", "0" },
    { "rotation", "i4", "0" },
    { "stretchToFit", "boolean", "0" },
    { "sceneStart", "r8", "0" },
    { "sceneEnd", "r8", "48" },
    { "scene", "boolean", "1" },
    { "albumID", "i4", "0" },
    { "aspectRatio", "r8", "1.77778" },
    { "interlacedType", "ui4", "1" },
    { "interlacedInfo", "ui4", "0" },
    { "isTivo", "boolean", "0" },
    { "SourceType3D", "ui4", "0" },
    { "isLeftEyePrecedence", "boolean", "1" },
};
constexpr Row kSpan[] = {
    { "type", "i2", "0" },
    { "startOffset", "r8", "0" },
    { "endOffset", "r8", "0" },
    { "flags", "ui4", "1" },
    { "mute", "boolean", "0" },
};
constexpr Row kInfo[] = {
    { "effectID", "ui4", "0" },
    { "layer", "ui4", "0" },
    { "GroupID", "ui4", "0" },
    { "effectGUID", "uuid", "" },
    { "useOffset", "boolean", "0" },
    { "isPanZoom", "boolean", "0" },
};
constexpr Row kSound[] = {
    { "volumeLevel", "r8", "0.8" },
    { "channels", "i4", "2" },
    { "inputChannel", "i4", "-1" },
    { "audioStream", "i4", "0" },
    { "fadeIn", "r8", "1.5" },
    { "fadeOut", "r8", "3" },
    { "fadeInLevel", "r8", "1" },
    { "fadeOutLevel", "r8", "1" },
    { "canRepeat", "boolean", "1" },
    { "audioType", "ui2", "1" },
};
constexpr Row kNoiseFilter[] = {
    { "StartSamplingTime", "r8", "-1" },
    { "SamplingDuration", "r8", "1" },
    { "ProxyFilterFile", "string", "" },
    { "NativeFilterFile", "string", "" },
};
constexpr Row kTracks[] = {
    { "Native", "boolean", "0" },
    { "Narration", "boolean", "0" },
    { "SoundEffect", "boolean", "0" },
};
// clang-format on

void WriteRows(ElementWriter& out, std::span<const Row> rows, Changes changes = {})
{
    for (const Row& row : rows) {
        const auto change = std::ranges::find(changes, std::string_view(row.name),
                                              [](const auto& one) { return one.first; });
        out.Value(row.name, row.type, change == changes.end() ? row.text : change->second);
    }
}

void WriteElement(ElementWriter& out, const char* name, std::span<const Row> rows,
                  Changes changes = {})
{
    out.Open(name);
    WriteRows(out, rows, changes);
    out.Close();
}

void WriteEmpty(ElementWriter& out, const char* name)
{
    out.Open(name);
    out.Close();
}

/// A key of a caller's own and the one that every object has.
void WriteMetaData(ElementWriter& out, const string& words)
{
    out.Open("metadata");
    if (!words.empty()) {
        out.Open("location");
        out.Open("place");
        out.Attribute("country", words);
        out.Close();
        out.Close();
    }
    for (const char* level : { "trackstatus", "Visible" })
        out.Open(level);
    WriteElement(out, "Audio", kTracks);
    for (int levels = 0; levels < 3; ++levels)
        out.Close();
}

void OpenPanel(ElementWriter& out, const char* name, long key, const char* type)
{
    out.Open(name);
    out.Attribute("key", key);
    out.Attribute("type", type);
}

void WriteParent(ElementWriter& out, const ElementWriter& effects, const ElementWriter& audio)
{
    out.Open("parentObject");
    out.Open("effects");
    out.Content(effects);
    out.Close();
    out.Open("audioList");
    out.Content(audio);
    out.Close();
    out.Close();
}

void WriteSpan(ElementWriter& out, double duration)
{
    WriteElement(out, "subObject", kSpan, { { "endOffset", NumberText(duration) } });
}

void WriteGradient(ElementWriter& out, unsigned colors)
{
    out.Open("gradientColors");
    for (unsigned i = 0; i < colors; ++i) {
        out.Open("color");
        out.Value("index", "ui4", i);
        out.Value("RGB", "string", i % 2 == 0 ? "#3c7a9e" : "#f5efe6");
        out.Close();
    }
    out.Close();
}

void WriteEnvelope(ElementWriter& out, double duration)
{
    for (int i = 0; i <= 4; ++i) {
        out.Open("level");
        out.Value("time", "r8", duration * i / 4);
        out.Value("value", "r8", i * 0.25);
        out.Close();
    }
}

void WriteBands(ElementWriter& out)
{
    constexpr long bands = 5;
    out.Open("EqualizerModel");
    out.Value("Bands", "i4", bands);
    out.Value("FFTLeng", "i4", 2048);
    for (long i = 0; i < bands; ++i) {
        const string name = "Band_" + std::to_string(i);
        out.Open(name.c_str());
        out.Value("Valu", "r8", 1.5 - static_cast<double>(i));
        out.Value("Freq", "r8", 60 << 2 * i);
        out.Close();
    }
    out.Close();
}

} // namespace

void StoryboardWriter::WriteTitle(const string& name, unsigned clips)
{
    Durations durations(clips);
    std::ranges::generate(durations, [this] { return 4.0 + m_choices.Below(40) / 2.0; });
    Write(name, durations, true);
}

void StoryboardWriter::WriteMenu(const string& name)
{
    Write(name, { 30.0 }, false);
}

void StoryboardWriter::Write(const string& name, const Durations& durations, bool isRich)
{
    m_out.Open(name.c_str());
    m_out.Value("version", "string", "9.0");
    m_out.Value("isVOB", "boolean", 0);
    WriteProduction(durations, isRich);
    m_out.Open("panels");
    std::vector<ElementWriter> clips; // all numbered before the first transition
    for (const double duration : durations) {
        const long key = 2 * static_cast<long>(clips.size());
        ElementWriter& clip = clips.emplace_back(m_out.Depth());
        if (IsColor(key))
            WriteColorClip(clip, key, duration);
        else
            WriteFileClip(clip, key, duration, isRich);
    }
    for (std::size_t i = 0; i < clips.size(); ++i) {
        if (i > 0)
            WriteTransition(2 * static_cast<long>(i) - 1);
        m_out.Content(clips[i]);
    }
    m_out.Close();
    WriteGroups(isRich ? clips.size() : 0);
    m_out.Close();
}

void StoryboardWriter::WriteProduction(const Durations& durations, bool isRich)
{
    constexpr unsigned side = 3; // of the gradient
    const double duration = std::accumulate(durations.begin(), durations.end(), 0.0) -
                            kTransition * static_cast<double>(durations.size() - 1);
    const string colors = std::to_string(isRich ? side : 0);
    m_out.Open("production");
    WriteRows(m_out, kProduction,
              { { "Duration", NumberText(duration) },
                { "gradientRows", colors },
                { "gradientCols", colors } });
    WriteGradient(m_out, isRich ? side * side : 0);
    WriteMetaData(m_out, isRich ? m_choices.Words(2) : "");
    ElementWriter effects(m_out.Depth() + 2);
    ElementWriter audio(m_out.Depth() + 2);
    if (isRich) {
        WriteEffect(effects, { 9, 2 }, duration, false);
        WriteAudio(audio, duration, true);
    }
    WriteParent(m_out, effects, audio);
    if (isRich) {
        m_out.Open("MarkerSections");
        m_out.Open("Section");
        m_out.Value("StartID", "i4", m_nextMarker);
        m_out.Value("EndID", "i4", m_nextMarker + 1);
        m_out.Close();
        m_out.Close();
    }
    m_out.Close();
}

/// A transition bears the type of the clip before it.
void StoryboardWriter::WriteTransition(long key)
{
    OpenPanel(m_out, "transition", key, IsColor(key - 1) ? kSolidColor : kFileSource);
    WriteBase(m_out, key, kTransition);
    m_out.Close();
}

/// A group bears the type of the last clip.
void StoryboardWriter::WriteGroups(std::size_t clips)
{
    m_out.Open("groups");
    if (clips > 0) {
        const long last = 2 * static_cast<long>(clips) - 2;
        OpenPanel(m_out, "group", 0, IsColor(last) ? kSolidColor : kFileSource);
        m_out.Value("id", "i4", 1);
        m_out.Value("start", "i4", 0);
        m_out.Value("end", "i4", last);
        m_out.Value("name", "string", m_choices.Words(2));
        m_out.Value("description", "string", m_choices.Words(5));
        m_out.Close();
    }
    m_out.Close();
}

void StoryboardWriter::WriteFileClip(ElementWriter& out, long key, double duration, bool isRich)
{
    const string file = m_choices.Path("Footage", ".mpg");
    OpenPanel(out, "clip", key, kFileSource);
    ElementWriter effects(out.Depth() + 2);
    ElementWriter audio(out.Depth() + 2);
    if (isRich) {
        WriteEffects(effects, key, duration);
        if (key % 16 == 0)
            WriteAudio(audio, duration, key % 32 == 0);
    }
    WriteBase(out, key, duration);
    WriteSource(out, file, duration);
    WriteParent(out, effects, audio);
    WriteNative(out, isRich && key % 16 == 0 ? &file : nullptr, duration);
    if (isRich)
        WriteMarkers(out, duration);
    out.Close();
}

void StoryboardWriter::WriteColorClip(ElementWriter& out, long key, double duration)
{
    OpenPanel(out, "clip", key, kSolidColor);
    ElementWriter effects(out.Depth() + 2);
    WriteEffect(effects, { 0, 1 }, duration, true);
    out.Value("color", "ui4", m_choices.Below(0x1000000));
    out.Value("isGap", "boolean", 0);
    WriteBase(out, key, duration);
    WriteParent(out, effects, ElementWriter());
    out.Close();
}

/// The id of a panel comes behind those of what lies on it, which is therefore written before.
void StoryboardWriter::WriteBase(ElementWriter& out, long key, double duration)
{
    out.Open("baseObject");
    WriteRows(out, kBase,
              { { "Id", std::to_string(m_nextID++) },
                { "panelId", std::to_string(key) },
                { "duration", NumberText(duration) } });
    WriteMetaData(out, key % 4 == 0 ? m_choices.Words(2) : "");
    out.Close();
}

void StoryboardWriter::WriteEffects(ElementWriter& out, long key, double duration)
{
    WriteEffect(out, { 0, 3 }, duration, false);
    if (key % 8 == 0)
        WriteMotion(out, { 2, 0 }, duration);
    WriteEffect(out, { 5, 1 }, duration, true);
}

void StoryboardWriter::WriteEffect(ElementWriter& out, Layer layer, double duration, bool isCaption)
{
    const long id = m_nextID++;
    out.Open("layer");
    out.Attribute("key", layer.key);
    out.Attribute("type", layer.type);
    out.Open("effect");
    out.Attribute("type", "effect");
    WriteSpan(out, duration);
    WriteInfo(out, id, layer, isCaption);
    out.Close();
    out.Close();
}

/// A picture that moves, with an effect of its own.
void StoryboardWriter::WriteMotion(ElementWriter& out, Layer layer, double duration)
{
    const long id = m_nextID++;
    out.Open("layer");
    out.Attribute("key", layer.key);
    out.Attribute("type", layer.type);
    out.Open("effect");
    out.Attribute("type", "motion");
    WriteSource(out, m_choices.Path("Pictures", ".png"), duration);
    WriteSpan(out, duration);
    WriteInfo(out, id, layer, false);
    ElementWriter effects(out.Depth() + 2);
    WriteEffect(effects, { 2, 0 }, duration, false);
    WriteParent(out, effects, ElementWriter());
    WriteNative(out, nullptr, duration);
    out.Close();
    out.Close();
}

void StoryboardWriter::WriteInfo(ElementWriter& out, long id, Layer layer, bool isCaption)
{
    const char* uuid = isCaption ? kTextUuid : kMoveUuid;
    out.Open("effectInfo");
    WriteRows(out, kInfo,
              { { "effectID", std::to_string(id) },
                { "layer", std::to_string(layer.key) },
                { "effectGUID", uuid },
                { "isPanZoom", isCaption ? "0" : "1" } });
    out.Open("data");
    EffectWriter effect(out, m_choices);
    if (isCaption)
        effect.WriteCaption();
    else
        effect.WriteMove(uuid);
    out.Close();
    out.Close();
}

void StoryboardWriter::WriteAudio(ElementWriter& out, double duration, bool isRich)
{
    ++m_nextID;
    out.Open("audio");
    out.Attribute("type", "audiofile");
    WriteSound(out, m_choices.Path("Sound", ".wav"), duration, isRich);
    out.Close();
}

/// What a sound on a list and the sound of a clip have in common; a rich one has an envelope and an
/// equalizer.
void StoryboardWriter::WriteSound(ElementWriter& out, const string& file, double duration,
                                  bool isRich)
{
    out.Open("audioInfo");
    WriteRows(out, kSound);
    WriteElement(out, "NoiseFilter", kNoiseFilter);
    out.Line("<!--Audio Envelope Points List-->");
    out.Open("mixLevels");
    if (isRich)
        WriteEnvelope(out, duration);
    out.Close();
    out.Line("<!--Audio Equalizer Settings-->");
    out.Open("Equalizer");
    out.Value("CurrentEqualizer", "i4", isRich ? 5 : -1);
    if (isRich)
        WriteBands(out);
    out.Close();
    out.Close();
    WriteSpan(out, duration);
    WriteSource(out, file, duration);
}

/// `file` is null for a clip whose own sound is not used.
void StoryboardWriter::WriteNative(ElementWriter& out, const string* file, double duration)
{
    out.Open("nativeinfo");
    out.Value("canUseNativeAudio", "boolean", 1);
    if (file) {
        out.Open("nativeAudio");
        WriteSound(out, *file, duration, false);
        out.Close();
    }
    out.Close();
}

void StoryboardWriter::WriteSource(ElementWriter& out, const string& file, double duration)
{
    out.Open("sourceFile");
    WriteRows(out, kSource, { { "fileName", file }, { "outPoint", NumberText(duration) } });
    WriteEmpty(out, "transparency");
    out.Close();
}

void StoryboardWriter::WriteMarkers(ElementWriter& out, double duration)
{
    out.Open("markers");
    for (const double time : { 0.0, duration / 2 }) {
        out.Open("marker");
        out.Value("id", "i4", m_nextMarker++);
        out.Value("type", "ui4", 0);
        out.Value("time", "r8", time);
        out.Value("state", "i4", 1);
        out.Close();
    }
    out.Close();
}

} // namespace bench
