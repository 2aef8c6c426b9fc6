#include "ProjectGenerator.h"

#include "StoryboardWriter.h"

#include <algorithm>
#include <cstdio>

using std::string;

namespace bench {

namespace {

constexpr const char* kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
constexpr std::size_t kClipSize = 30'000; // bytes, about
constexpr std::size_t kFewestClips = 2;   // one of a file, one of a colour
constexpr const char* kDataTypes = "urn:schemas-microsoft-com:datatypes";

/// Collects the nodes of one project, list by list, and the storyboards that belong to them.
class Project
{
public:
    void AddTitle(unsigned clips)
    {
        const long id = m_nodes.WriteTitle(m_titles);
        ++m_titleCount;
        StoryboardWriter(m_titleStoryboards, m_choices).WriteTitle(ElementName("Title", id), clips);
    }

    void AddMenu(const MenuShape& shape)
    {
        const long id = m_nodes.WriteMenu(m_menus, shape);
        ++m_menuCount;
        if (!shape.background)
            StoryboardWriter(m_menuStoryboards, m_choices).WriteMenu(ElementName("Menu", id));
    }

    void AddFile()
    {
        m_nodes.WriteFile(m_files);
        ++m_fileCount;
    }

    void AddCommand() { m_nodes.WriteCommand(m_commands); }

    unsigned Below(unsigned end) { return m_choices.Below(end); }

    /// Of the nodes and storyboards so far, in bytes.
    std::size_t Size() const
    {
        std::size_t size = 0;
        for (const ElementWriter* part : { &m_titles, &m_menus, &m_files, &m_commands,
                                           &m_titleStoryboards, &m_menuStoryboards })
            size += part->Text().size();
        return size;
    }

    string Text(const string& name)
    {
        ElementWriter out;
        out.Open("Root");
        out.Attribute("xmlns:dt", kDataTypes);
        OpenProject(out, name);
        WriteList(out, "Titles", m_titles, &m_titleCount);
        WriteList(out, "Menus", m_menus, &m_menuCount);
        WriteList(out, "DataFiles", m_files, &m_fileCount);
        WriteList(out, "Commands", m_commands, nullptr);
        m_nodes.WriteEncoding(out);
        out.Close();
        out.Open("Productions");
        out.Content(m_titleStoryboards);
        out.Content(m_menuStoryboards);
        out.Close();
        out.Close();
        return kDeclaration + out.Text();
    }

private:
    static string ElementName(const char* kind, long id)
    {
        char name[32];
        std::snprintf(name, sizeof name, "%s%04ld", kind, id);
        return name;
    }

    static void OpenProject(ElementWriter& out, const string& name)
    {
        out.Open("Project");
        out.Attribute("DiscSize", "4 (DVD_47)");
        out.Attribute("ID", 0);
        out.Attribute("TVStandard", "2 (PA)");
        out.Attribute("ThemeSource", "Brass");
        out.Attribute("Version", 900);
        out.Attribute("discFormat", "1 (DVD_Video)");
        out.Attribute("discVideoType", "1 (Normal_2D)");
        out.Attribute("doCompression", 1);
        out.Attribute("fitToDisc", 1);
        out.Attribute("label", "Three Weeks & \"More\"");
        out.Attribute("name", name);
        out.Attribute("onDiscProject", 0);
        out.Attribute("onDiscSizeKB", 4590208);
        out.Attribute("options", "66 (Archive_TitleVideoSources|Cmd_PlayRemainingTitles)");
        out.Attribute("remainingCaptures", -1);
    }

    static void WriteList(ElementWriter& out, const char* name, const ElementWriter& items,
                          const std::size_t* count)
    {
        out.Open(name);
        if (count)
            out.Attribute("NumItems", *count);
        out.Content(items);
        out.Close();
    }

    Choices m_choices;
    NodeWriter m_nodes{ m_choices };
    ElementWriter m_titles{ 3 };
    ElementWriter m_menus{ 3 };
    ElementWriter m_files{ 3 };
    ElementWriter m_commands{ 3 };
    ElementWriter m_titleStoryboards{ 2 };
    ElementWriter m_menuStoryboards{ 2 };
    std::size_t m_titleCount = 0;
    std::size_t m_menuCount = 0;
    std::size_t m_fileCount = 0;
};

} // namespace

string GenerateProject(std::size_t size, const string& name)
{
    Project project;
    // Percent of the file: what a long project consists of. Each share ends where it should, though
    // the one before was exceeded.
    const std::size_t titles = size / 100 * 60;
    while (project.Size() < titles) {
        const std::size_t room = (titles - project.Size()) / kClipSize;
        const std::size_t most = 3 + project.Below(5);
        project.AddTitle(static_cast<unsigned>(std::clamp(room, kFewestClips, most)));
    }
    while (project.Size() < size / 100 * 90)
        project.AddMenu({ .buttons = 2 + project.Below(4), .hasElements = true });
    while (project.Size() < size / 100 * 98)
        project.AddFile();
    while (project.Size() < size)
        project.AddCommand();
    return project.Text(name);
}

string GenerateMenus(std::size_t count, const MenuShape& shape, const string& name)
{
    Project project;
    for (; count > 0; --count)
        project.AddMenu(shape);
    return project.Text(name);
}

string GenerateClips(std::size_t count, const string& name)
{
    Project project;
    project.AddTitle(static_cast<unsigned>(count));
    return project.Text(name);
}

string GenerateTemplate()
{
    ElementWriter storyboard;
    Choices choices;
    StoryboardWriter(storyboard, choices).WriteMenu("Production");
    string text = kDeclaration + storyboard.Text();
    const string root = "<Production";
    text.insert(text.find(root) + root.size(), string(" xmlns:dt=\"") + kDataTypes + "\"");
    return text;
}

} // namespace bench
