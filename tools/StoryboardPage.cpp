#include "Sections.h"

using std::string;

namespace tool {

namespace {

string Span(const Json& start, const Json& end)
{
    return NumberText(start) + " to " + NumberText(end) + " s";
}

string AudioText(const Json& audio)
{
    const auto envelope = audio["envelope"].size();
    return List({ audio["file"], Span(audio["start"], audio["end"]),
                  "volume " + NumberText(audio["volume"]),
                  envelope > 0 ? Count(envelope, "envelope point") : "",
                  audio["equalizers"].empty() ? "" : "equalized", audio["mute"] ? "muted" : "" });
}

string EffectText(const Json& effect)
{
    return List({ effect["name"], effect.contains("file") ? effect["file"] : Json(""),
                  Span(effect["start"], effect["end"]), effect["mute"] ? "muted" : "" });
}

/// What lies on `parent`, a production, panel or motion.
void ShowParts(Page& page, std::size_t depth, const Json& parent)
{
    for (const Json& layer : parent["layers"]) {
        page.Nested(depth, Numbered("Layer", layer["key"].dump()), "type " + layer["type"].dump());
        for (const Json& effect : layer["effects"]) {
            const bool motion = effect["kind"] == "motion";
            page.Nested(depth + 1, Numbered(motion ? "Motion" : "Effect", effect["id"].dump()),
                        EffectText(effect));
            if (motion)
                ShowParts(page, depth + 2, effect);
        }
    }
    for (const Json& audio : parent["audio"])
        page.Nested(depth, Numbered("Audio", audio["id"].dump()), AudioText(audio));
    if (parent.contains("nativeAudio") && !parent["nativeAudio"].is_null())
        page.Nested(depth, "Own audio", AudioText(parent["nativeAudio"]));
}

string MarkerText(const Json& markers)
{
    std::vector<string> texts;
    for (const Json& marker : markers)
        texts.push_back(marker["id"].dump() + " at " + NumberText(marker["time"]) + " s");
    return List(texts);
}

string PanelText(const Json& panel)
{
    const string kind = panel["kind"];
    const bool file = kind == "file";
    return List({ file ? string(panel["file"]) : kind,
                  kind == "colour" ? string(panel["colour"]) : "",
                  Span(panel["start"], panel["end"]),
                  file ? "of the file " + Span(panel["inPoint"], panel["outPoint"]) : "",
                  panel["speed"] == 1.0 ? "" : "speed " + NumberText(panel["speed"]) });
}

string SectionText(const Json& sections)
{
    std::vector<string> texts;
    for (const Json& section : sections)
        texts.push_back(section["start"].dump() + " to " + section["end"].dump());
    return List(texts);
}

} // namespace

void ShowStoryboard(Page& page, const Json& storyboard)
{
    if (storyboard.is_null())
        return;
    const string version = storyboard["version"];
    page.Detail("Storyboard",
                List({ NumberText(storyboard["duration"]) + " s",
                       NumberText(storyboard["frameRate"]) + " frames a second",
                       version.empty() ? "of an early version" : "version " + version }));
    for (const Json& panel : storyboard["panels"]) {
        page.Nested(1, Numbered("Panel", panel["key"].dump()), PanelText(panel));
        if (panel["kind"] == "transition")
            continue;
        ShowParts(page, 2, panel);
        page.Nested(2, "Markers", MarkerText(panel["markers"]));
    }
    ShowParts(page, 1, storyboard);
    page.Nested(1, "Sections", SectionText(storyboard["sections"]));
    for (const Json& group : storyboard["groups"]) {
        page.Nested(1, Numbered("Group", group["key"].dump()),
                    List({ group["name"], group["description"],
                           "panels " + group["start"].dump() + " to " + group["end"].dump() }));
    }
}

} // namespace tool
