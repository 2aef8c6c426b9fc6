#pragma once

#include "Choices.h"
#include "ElementWriter.h"

namespace bench {

/// How much a menu holds.
struct MenuShape
{
    unsigned buttons = 10;
    bool hasElements = false;         ///< texts and overlays, on the menu and on its buttons
    const char* background = nullptr; ///< the template of a native menu; null for an ordinary one
};

/// Writes nodes of the disc's tree and numbers them.
class NodeWriter
{
public:
    explicit NodeWriter(Choices& choices) : m_choices(choices) {}

    /// These two give the ID of what they wrote, by which its storyboard is named.
    long WriteTitle(ElementWriter& out);
    long WriteMenu(ElementWriter& out, const MenuShape& shape);

    void WriteFile(ElementWriter& out);
    void WriteCommand(ElementWriter& out);
    void WriteEncoding(ElementWriter& out);

private:
    void WriteCommands(ElementWriter& out, unsigned count);
    void WriteColours(ElementWriter& out);
    void WriteButton(ElementWriter& out, const MenuShape& shape);
    void WriteText(ElementWriter& out);
    void WriteOverlay(ElementWriter& out);

    Choices& m_choices;
    long m_lastID = 5; ///< the project's fixed children have the IDs up to here
};

} // namespace bench
