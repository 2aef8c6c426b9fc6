#include "EffectWriter.h"

#include <string>
#include <string_view>

using std::string;

namespace bench {

namespace {

constexpr std::string_view kFaces[] = { "Lindholm Sans", "Lindholm Serif", "Åkerö" };

// Which parts of a key are set.
constexpr int kTranslation = 7;
constexpr int kRotation = 48;
constexpr int kScaling = 768;
constexpr int kOpacity = 4096;

constexpr const char* kStart = "StartOffsetElements";
constexpr const char* kEnd = "EndOffsetElements";
constexpr const char* kPercentage = "PercentageElements";

} // namespace

void EffectWriter::WriteText()
{
    OpenEffect(kTextUuid);
    m_out.Open("plugin_data");
    WriteTrack("Scaling", kScaling, { kStart }, 1);
    WriteFacts();
    WriteRichText();
    m_out.Close();
    m_out.Close();
}

void EffectWriter::WriteCaption()
{
    OpenEffect(kTextUuid);
    m_out.Value("name", "string", "Caption");
    m_out.Open("plugin_data");
    WriteTrack("Translation", kTranslation, { kStart, kEnd }, 3);
    WriteTrack("Opacity", kOpacity, { kStart, kEnd }, 2);
    WriteFacts();
    WriteRichText();
    m_out.Close();
    m_out.Close();
}

void EffectWriter::WriteMove(const char* uuid)
{
    OpenEffect(uuid);
    m_out.Value("name", "string", "Pan and zoom");
    m_out.Open("plugin_data");
    WriteTrack("Translation", kTranslation, { kStart, kEnd, kPercentage }, 3);
    WriteTrack("Rotation", kRotation, { kStart, kEnd }, 2);
    WriteTrack("Scaling", kScaling, { kStart, kEnd, kPercentage }, 2);
    WriteFacts();
    m_out.Close();
    m_out.Close();
}

void EffectWriter::OpenEffect(const char* uuid)
{
    m_out.Open("effect");
    m_out.Value("uuid", "uuid", uuid);
}

void EffectWriter::WriteTrack(const char* name, int caps, std::initializer_list<const char*> lists,
                              unsigned keys)
{
    m_out.Open(name);
    for (const char* list : lists) {
        m_out.Open(list);
        for (unsigned i = 0; i < keys; ++i) {
            m_out.Open("KeyFrame");
            m_out.Value("Time", "r8", i / 4.0);
            m_out.Value("Caps", "ui4", caps);
            if (caps == kOpacity)
                m_out.Value("Value", "ui4", m_choices.Below(256));
            else
                WriteVector("Vector");
            m_out.Close();
        }
        m_out.Close();
    }
    m_out.Close();
}

void EffectWriter::WriteVector(const char* name)
{
    m_out.Open(name);
    m_out.Attribute("Name", "");
    for (const char* axis : { "x", "y", "z" })
        m_out.Value(axis, "r4", m_choices.Below(200) / 100.0);
    m_out.Close();
}

/// What follows the tracks of a transform.
void EffectWriter::WriteFacts()
{
    m_out.Value("IsSelectable", "boolean", 1);
    m_out.Value("IsEditable", "boolean", 1);
    m_out.Value("Caps", "ui4", 4915);
    for (const char* delta :
         { "HandlesDelta", "TranslationDelta", "RotationDelta", "ScalingDelta" })
        WriteVector(delta);
    m_out.Value("OpacityDelta", "ui4", 0);
}

/// Words in one to three runs. White space counts in them, so they have a single line.
void EffectWriter::WriteRichText()
{
    string body = "<body><p align=\"center\">";
    for (unsigned runs = 1 + m_choices.Below(3); runs > 0; --runs) {
        body.append("<font fontHeight=\"").append(std::to_string(18 + m_choices.Below(30)));
        body.append("\" color=\"#F5EFE6\" face=\"").append(m_choices.Pick(kFaces));
        body.append("\" isBold=\"1\" isItalic=\"0\" isUnderlined=\"0\">");
        body.append(Escaped(m_choices.Words(1 + m_choices.Below(4)))).append("</font>");
    }
    m_out.Open("html");
    m_out.Line(body + "</p></body>");
    m_out.Close();
}

} // namespace bench
