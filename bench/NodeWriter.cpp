#include "NodeWriter.h"

#include "EffectWriter.h"

#include <cstdio>

using std::string;
using std::string_view;

namespace bench {

namespace {

constexpr string_view kFolders[] = { "Pictures", "Extras", "Diary", "Maps", "Music" };
constexpr string_view kExtensions[] = { ".png", ".pdf", ".gpx", ".txt", ".wav" };
constexpr string_view kHandles[] = { "2 (TopMiddle)", "4 (MiddleLeft)", "5 (Center)" };

struct Command
{
    const char* element;
    int code;
};
constexpr Command kCommands[] = { { "PlayTitleFromChapter", 1 }, { "PlayMenu", 2 },
                                  { "StopPlayback", 3 },         { "SetSubpictureStream", 4 },
                                  { "Transition", 5 },           { "PlayClip", 6 },
                                  { "PlayAllTitles", 7 },        { "PlayMenuTitles", 8 },
                                  { "PlayNextTitle", 9 } };

// The parts of a button that a scheme colours, in the byte order of the names of its attributes.
constexpr const char* kSchemeParts[] = { "bkgd", "emp1", "emp2", "patt" };
constexpr const char* kSchemeStates[] = { "ActCnt", "ActCol", "SelCnt", "SelCol" };
constexpr int kColours = 16;

/// A number above a million as six significant digits show it, without a 0 at their end.
string SixDigits(Choices& choices)
{
    char text[16];
    std::snprintf(text, sizeof text, "%u.%04u%ue+06", 1 + choices.Below(9), choices.Below(10000),
                  1 + choices.Below(9));
    return text;
}

/// A place on the screen, between -1 and 1.
string Place(Choices& choices)
{
    return NumberText((static_cast<int>(choices.Below(201)) - 100) / 100.0);
}

} // namespace

long NodeWriter::WriteTitle(ElementWriter& out)
{
    const long id = ++m_lastID;
    out.Open("Title");
    out.Attribute("ID", id);
    out.Attribute("discIndex", id);
    out.Attribute("flags", m_choices.Below(4));
    out.Attribute("label", m_choices.Words(1 + m_choices.Below(6)));
    out.Attribute("stillWaitSecs", m_choices.Below(30));
    out.Attribute("tag", m_choices.Below(3) == 0 ? "4 (Transition)" : "1 (Norma)");
    out.Attribute("vobDuration", 10 + m_choices.Below(7000));
    out.Attribute("vobSize", SixDigits(m_choices));
    WriteCommands(out, m_choices.Below(4));
    WriteEncoding(out);
    out.Close();
    return id;
}

long NodeWriter::WriteMenu(ElementWriter& out, const MenuShape& shape)
{
    const long id = ++m_lastID;
    const long elements = shape.hasElements ? 2 : 0;
    out.Open("Menu");
    out.Attribute("ID", id);
    if (shape.background) {
        out.Attribute("audio", "Sound/harbour.wav");
        out.Attribute("background", shape.background);
    }
    out.Attribute("backgroundID", 0);
    out.Attribute("btnLayout", "0x01500C21");
    out.Attribute("defaultButton", shape.buttons > 0 ? id + elements + 1 : 0);
    if (shape.background)
        out.Attribute("duration", "24.5");
    out.Attribute("flag", "0 ()");
    out.Attribute("label", m_choices.Words(1 + m_choices.Below(4)));
    out.Attribute("native", shape.background ? 1 : 0);
    out.Attribute("tag", "1 (Main)");
    out.Attribute("templateID", 0);
    WriteColours(out);
    WriteCommands(out, m_choices.Below(2));
    WriteEncoding(out);
    out.Open("Elements");
    if (shape.hasElements) {
        WriteText(out);
        WriteOverlay(out);
    }
    for (unsigned i = 0; i < shape.buttons; ++i)
        WriteButton(out, shape);
    out.Close();
    out.Close();
    return id;
}

void NodeWriter::WriteFile(ElementWriter& out)
{
    const long id = ++m_lastID;
    out.Open("File");
    out.Attribute("ID", id);
    out.Attribute("destPath", "EXTRAS/FILE" + std::to_string(id));
    out.Attribute("sourcePath",
                  m_choices.Path(m_choices.Pick(kFolders), m_choices.Pick(kExtensions)));
    out.Attribute("tag", m_choices.Below(5));
    out.Close();
}

void NodeWriter::WriteCommand(ElementWriter& out)
{
    const Command& command = m_choices.Pick(kCommands);
    out.Open(command.element);
    out.Attribute("code", command.code);
    out.Attribute("param1", m_choices.Below(1000));
    out.Attribute("param2", m_choices.Below(2));
    out.Close();
}

void NodeWriter::WriteEncoding(ElementWriter& out)
{
    out.Open("Encoding");
    out.Attribute("VBREncoding", m_choices.Below(2));
    out.Attribute("aspectRatio", m_choices.Below(2) ? "2 (16x9)" : "1 (4x3)");
    out.Attribute("audioBitrate", 224000);
    out.Attribute("audioChannels", m_choices.Below(2) ? 2 : 6);
    out.Attribute("audioFormat", m_choices.Below(2) ? "3 (AC-3)" : "1 (LPCM)");
    out.Attribute("subpictureFormat", "1 (RLE)");
    out.Attribute("syncToProject", m_choices.Below(2));
    out.Attribute("twoPassEncoding", m_choices.Below(2));
    out.Attribute("videoBitrate", 4000000 + 1000 * m_choices.Below(4000));
    out.Attribute("videoFormat", "0 (MPEG-2)");
    out.Attribute("videoResolution", "1 (Full_D1)");
    out.Attribute("wideDisplayMode", "1 (Letterbox)");
    out.Close();
}

void NodeWriter::WriteCommands(ElementWriter& out, unsigned count)
{
    out.Open("Commands");
    for (; count > 0; --count)
        WriteCommand(out);
    out.Close();
}

/// The children of a menu that tell its colours and where its buttons lie.
void NodeWriter::WriteColours(ElementWriter& out)
{
    char text[16];
    out.Open("Palette");
    for (int i = 0; i < kColours; ++i) {
        char name[16];
        std::snprintf(name, sizeof name, "entry%02d", i);
        std::snprintf(text, sizeof text, "0x%06X", m_choices.Below(0x1000000));
        out.Attribute(name, text);
    }
    out.Close();
    for (const char* scheme : { "ButtonScheme1", "ButtonScheme2", "ButtonScheme3" }) {
        out.Open(scheme);
        for (const string part : kSchemeParts) {
            for (const char* state : kSchemeStates)
                out.Attribute((part + state).c_str(), m_choices.Below(kColours));
        }
        out.Close();
    }
    out.Open("SPUColours");
    for (const string part : kSchemeParts) {
        out.Attribute((part + "Cnt").c_str(), m_choices.Below(kColours));
        out.Attribute((part + "Col").c_str(), m_choices.Below(kColours));
    }
    out.Close();
    out.Open("LayoutRect");
    out.Attribute("bottom", "-0.9");
    out.Attribute("left", "-1.2");
    out.Attribute("right", "1.2");
    out.Attribute("top", "0.8");
    out.Close();
}

void NodeWriter::WriteButton(ElementWriter& out, const MenuShape& shape)
{
    const long id = ++m_lastID;
    const string label = m_choices.Words(1 + m_choices.Below(4));
    out.Open("Button");
    out.Attribute("ID", id);
    out.Attribute("anchor", 0);
    out.Attribute("buttonStyle", "Brass frame");
    out.Attribute("buttonTextCache", label);
    out.Attribute("flags", 0);
    out.Attribute("label", label);
    if (shape.background)
        out.Attribute("rotation", 0);
    out.Attribute("scheme", m_choices.Below(4));
    out.Attribute("tag", "32 (Command)");
    out.Attribute("templateID", 0);
    out.Attribute("userdata", 0);
    if (shape.background) {
        out.Attribute("x", Place(m_choices));
        out.Attribute("y", Place(m_choices));
        out.Attribute("zOrder", m_choices.Below(20));
    }
    out.Open("Links");
    for (const char* side : { "left", "lower", "right", "upper" })
        out.Attribute(side, id);
    out.Close();
    out.Open("ActiveRegion");
    for (const char* side : { "bottom", "left", "right", "top" })
        out.Attribute(side, Place(m_choices));
    out.Attribute("valid", 1);
    out.Close();
    WriteCommands(out, 1);
    out.Open("Elements");
    if (shape.hasElements) {
        WriteOverlay(out);
        WriteText(out);
    }
    out.Close();
    out.Close();
}

void NodeWriter::WriteText(ElementWriter& out)
{
    out.Open("Text");
    out.Attribute("ID", ++m_lastID);
    out.Attribute("flags", 0);
    out.Attribute("handle", m_choices.Pick(kHandles));
    out.Attribute("highlight", m_choices.Below(2) ? "3 (Underline)" : "0 (None)");
    out.Attribute("rotation", m_choices.Below(90));
    out.Attribute("tag", "1 (Labe)");
    out.Attribute("templateID", 0);
    out.Attribute("x", Place(m_choices));
    out.Attribute("y", Place(m_choices));
    out.Attribute("zOrder", m_choices.Below(20));
    EffectWriter(out, m_choices).WriteText();
    out.Close();
}

void NodeWriter::WriteOverlay(ElementWriter& out)
{
    const bool isFrame = m_choices.Below(2);
    out.Open("Overlay");
    out.Attribute("ID", ++m_lastID);
    out.Attribute("alphaMask", isFrame ? "Pictures/frame-mask.png" : "");
    out.Attribute("corpRectH", "0.8");
    out.Attribute("corpRectW", "0.9");
    out.Attribute("corpRectX", "0.05");
    out.Attribute("corpRectY", "0.1");
    out.Attribute("cropRotateMode", 0);
    out.Attribute("dynamicScalingFactor", 0);
    out.Attribute("flags", 0);
    out.Attribute("height", "0.27");
    out.Attribute("highlight", isFrame ? "0 (None)" : "1 (Extent)");
    out.Attribute("inPoint", NumberText(m_choices.Tenths(60)));
    out.Attribute("label", m_choices.Words(2));
    out.Attribute("outPoint", NumberText(m_choices.Tenths(60)));
    out.Attribute("privateID", 0);
    out.Attribute("rotateAngle", m_choices.Below(45));
    out.Attribute("rotation", m_choices.Below(45));
    out.Attribute("source", m_choices.Path("Pictures", ".png"));
    out.Attribute("sourceID", 0);
    out.Attribute("sourceType", "1 (File)");
    out.Attribute("stillImage", 1);
    out.Attribute("tag", isFrame ? "2 (Frame)" : "8 (Highlight)");
    out.Attribute("templateID", 0);
    out.Attribute("width", "0.36");
    out.Attribute("x", Place(m_choices));
    out.Attribute("y", Place(m_choices));
    out.Attribute("zOrder", m_choices.Below(20));
    out.Attribute("zoomMask", 0);
    out.Attribute("zoomSource", m_choices.Below(2));
    out.Close();
}

} // namespace bench
