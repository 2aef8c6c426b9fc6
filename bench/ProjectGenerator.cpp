#include "ProjectGenerator.h"

#include "ElementWriter.h"

#include <cstdio>
#include <random>
#include <span>
#include <string>
#include <string_view>

using std::string;
using std::string_view;

namespace bench {

namespace {

constexpr string_view kWords[] = { "Harbour", "morning", "Café",  "Ljus",  "ferry",   "\"North\"",
                                   "glacier", "& road",  "Fjord", "night", "<uncut>", "lighthouse",
                                   "Åse",     "summer",  "東京",  "train", "village", "rain" };
constexpr string_view kFolders[] = { "Pictures", "Extras", "Diary", "Maps", "Music" };
constexpr string_view kExtensions[] = { "png", "pdf", "gpx", "txt", "wav" };

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

/// Writes one file. `Lists` tells what fills it, in file order.
class Generator
{
public:
    Generator(std::size_t size, const string& name) : m_size(size), m_name(name) {}

    string Write()
    {
        ElementWriter out;
        out.Open("Root");
        out.Attribute("xmlns:dt", "urn:schemas-microsoft-com:datatypes");
        WriteProject(out);
        WriteProductions(out);
        out.Close();
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + out.Text();
    }

private:
    using ItemWriter = void (Generator::*)(ElementWriter& out);

    struct List
    {
        const char* element;
        bool isCounted; ///< has "NumItems"
        int percent;    ///< of the file's bytes
        ItemWriter write;
    };
    static std::span<const List> Lists();

    void WriteProject(ElementWriter& out)
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
        out.Attribute("name", m_name);
        out.Attribute("onDiscProject", 0);
        out.Attribute("onDiscSizeKB", 4590208);
        out.Attribute("options", "66 (Archive_TitleVideoSources|Cmd_PlayRemainingTitles)");
        out.Attribute("remainingCaptures", -1);
        for (const List& list : Lists())
            WriteList(out, list);
        WriteEncoding(out);
        out.Close();
    }

    /// The count of the items comes before them in the file, so they are written aside.
    void WriteList(ElementWriter& out, const List& list)
    {
        const std::size_t share = m_size / 100 * static_cast<std::size_t>(list.percent);
        ElementWriter items(out.Depth() + 1);
        std::size_t count = 0;
        for (; items.Text().size() < share; ++count)
            (this->*list.write)(items);
        out.Open(list.element);
        if (list.isCounted)
            out.Attribute("NumItems", count);
        out.Content(items);
        out.Close();
    }

    /// The storyboards of titles and menus.
    void WriteProductions(ElementWriter& out)
    {
        out.Open("Productions");
        out.Close();
    }

    void WriteTitle(ElementWriter& out)
    {
        out.Open("Title");
        out.Attribute("ID", ++m_lastID);
        out.Attribute("discIndex", m_lastID);
        out.Attribute("flags", Below(4));
        out.Attribute("label", Words(1 + Below(6)));
        out.Attribute("stillWaitSecs", Below(30));
        out.Attribute("tag", Below(3) == 0 ? "4 (Transition)" : "1 (Norma)");
        out.Attribute("vobDuration", 10 + Below(7000));
        out.Attribute("vobSize", SixDigits());
        out.Open("Commands");
        for (unsigned count = Below(4); count > 0; --count)
            WriteCommand(out);
        out.Close();
        WriteEncoding(out);
        out.Close();
    }

    void WriteFile(ElementWriter& out)
    {
        const string name = Words(1 + Below(3));
        const string_view extension = Pick(kExtensions);
        out.Open("File");
        out.Attribute("ID", ++m_lastID);
        out.Attribute("destPath", "EXTRAS/FILE" + std::to_string(m_lastID));
        out.Attribute(
            "sourcePath",
            string(Pick(kFolders)).append("/").append(name).append(".").append(extension));
        out.Attribute("tag", Below(5));
        out.Close();
    }

    void WriteCommand(ElementWriter& out)
    {
        const Command& command = Pick(kCommands);
        out.Open(command.element);
        out.Attribute("code", command.code);
        out.Attribute("param1", Below(1000));
        out.Attribute("param2", Below(2));
        out.Close();
    }

    void WriteEncoding(ElementWriter& out)
    {
        out.Open("Encoding");
        out.Attribute("VBREncoding", Below(2));
        out.Attribute("aspectRatio", Below(2) ? "2 (16x9)" : "1 (4x3)");
        out.Attribute("audioBitrate", 224000);
        out.Attribute("audioChannels", Below(2) ? 2 : 6);
        out.Attribute("audioFormat", Below(2) ? "3 (AC-3)" : "1 (LPCM)");
        out.Attribute("subpictureFormat", "1 (RLE)");
        out.Attribute("syncToProject", Below(2));
        out.Attribute("twoPassEncoding", Below(2));
        out.Attribute("videoBitrate", 4000000 + 1000 * Below(4000));
        out.Attribute("videoFormat", "0 (MPEG-2)");
        out.Attribute("videoResolution", "1 (Full_D1)");
        out.Attribute("wideDisplayMode", "1 (Letterbox)");
        out.Close();
    }

    // Raw numbers of the engine: the library's distributions differ from one to the next.
    unsigned Below(unsigned end) { return static_cast<unsigned>(m_random() % end); }

    template <class T, std::size_t Count>
    const T& Pick(const T (&choices)[Count])
    {
        return choices[Below(Count)];
    }

    string Words(unsigned count)
    {
        string text(Pick(kWords));
        while (--count > 0)
            text.append(" ").append(Pick(kWords));
        return text;
    }

    /// A number above a million as six significant digits show it, without a 0 at their end.
    string SixDigits()
    {
        char text[16];
        std::snprintf(text, sizeof text, "%u.%04u%ue+06", 1 + Below(9), Below(10000), 1 + Below(9));
        return text;
    }

    std::size_t m_size;
    const string& m_name;
    std::mt19937 m_random;
    long m_lastID = 5; ///< the project's fixed children have the IDs up to here
};

std::span<const Generator::List> Generator::Lists()
{
    static constexpr List lists[] = {
        { "Titles", true, 70, &Generator::WriteTitle },
        { "Menus", true, 0, nullptr },
        { "DataFiles", true, 25, &Generator::WriteFile },
        { "Commands", false, 5, &Generator::WriteCommand },
    };
    return lists;
}

} // namespace

string GenerateProject(std::size_t size, const string& name)
{
    return Generator(size, name).Write();
}

} // namespace bench
