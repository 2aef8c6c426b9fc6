#pragma once

#include "Choices.h"
#include "ElementWriter.h"

#include <initializer_list>

namespace bench {

/// Writes what an effect says of itself: the XML that objects keep as it is.
class EffectWriter
{
public:
    EffectWriter(ElementWriter& out, Choices& choices) : m_out(out), m_choices(choices) {}

    /// The "effect" of a text on a menu.
    void WriteText();
    /// The "effect" of words over a clip.
    void WriteCaption();
    /// The "effect" of a picture that moves, with keys in between.
    void WriteMove(const char* uuid);

private:
    void OpenEffect(const char* uuid);
    void WriteTrack(const char* name, int caps, std::initializer_list<const char*> lists,
                    unsigned keys);
    void WriteVector(const char* name);
    void WriteFacts();
    void WriteRichText();

    ElementWriter& m_out;
    Choices& m_choices;
};

/// What texts and captions bear.
inline constexpr const char* kTextUuid = "{5E2F7C18-90AB-4D3E-B7C4-61F20A9D8E03}";

} // namespace bench
