// Times what a menu text costs: reading its runs, questions, edits, and references to a string
// table.

#include "project/DSList.h"
#include "project/ResourceLoader.h"
#include "richtext/VCPTextPlugInHelper.h"
#include "xml/DsXml.h"
#include "xml/XmlFile.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
#include <vector>

using std::string;
using namespace vantrel;

namespace {

constexpr int kStrings = 600; // as in the table of a full theme

/// An effect with a text of so many runs, every other one in a font or a style of its own, each on a
/// line of the file.
XmlDocPtr MakeEffect(long runs)
{
    string text = "<effect><plugin_data><html><body><p align=\"left\">";
    for (long run = 0; run < runs; ++run) {
        text += run % 2 == 0
                    ? "<font face=\"Arial\" fontHeight=\"24\" color=\"#ff8000ff\">some words"
                      "</font>\n"
                    : "<b><i>and more</i></b>\n";
    }
    text += "</p></body></html></plugin_data></effect>";
    return XmlDocPtr{ xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                    0) };
}

/// A theme with a string table, and a document in it.
class Theme
{
public:
    Theme()
    {
        string name = std::filesystem::temp_directory_path() / "vantrel-bench-XXXXXX";
        if (!::mkdtemp(name.data()))
            std::abort();
        m_folder = name;
        m_content = name + "/Content/";
        std::filesystem::create_directories(m_content);
        std::ofstream table(Strings());
        table << "<strings>\n  <stringTable name=\"Menu\">\n";
        for (int i = 0; i < kStrings; ++i)
            table << "    <string name=\"Text" << i << "\">What text " << i << " says</string>\n";
        table << "  </stringTable>\n</strings>\n";
        std::ofstream(Document()) << "<Titles/>";
        table.close();
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // a new file isn't remembered
    }
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;
    ~Theme()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

    string Strings() const { return m_content + "ThemeStrings.xml"; }
    string Document() const { return m_content + "project.xml"; }

private:
    string m_folder;
    string m_content;
};

/// So many nodes that were read from a document of the theme.
std::vector<std::unique_ptr<CDSList>> MakeNodes(const Theme& theme, int count)
{
    const XmlDocPtr doc = ReadXmlFile(theme.Document().c_str());
    std::vector<std::unique_ptr<CDSList>> nodes;
    for (int i = 0; i < count; ++i) {
        nodes.push_back(std::make_unique<CDSList>(eNodeTitles));
        (void)nodes.back()->Read(AsNode(xmlDocGetRootElement(doc.get())));
    }
    return nodes;
}

void CountRuns(benchmark::State& state)
{
    state.counters["run"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                               benchmark::Counter::kIsIterationInvariantRate |
                                                   benchmark::Counter::kInvert);
}

void ReadText(benchmark::State& state)
{
    const XmlDocPtr doc = MakeEffect(state.range(0));
    CVCPTextPlugInHelper helper;
    for (auto _ : state)
        benchmark::DoNotOptimize(helper.LoadXML(xmlDocGetRootElement(doc.get())));
    CountRuns(state);
}
BENCHMARK(ReadText)->Arg(10)->Arg(1000);

void AskWordsAndFont(benchmark::State& state)
{
    const XmlDocPtr doc = MakeEffect(10);
    CVCPTextPlugInHelper helper;
    (void)helper.LoadXML(xmlDocGetRootElement(doc.get()));
    string words;
    string face;
    for (auto _ : state) {
        benchmark::DoNotOptimize(helper.GetTextString(&words));
        benchmark::DoNotOptimize(helper.GetFont(&face));
    }
}
BENCHMARK(AskWordsAndFont);

/// Four edits that change every run, and the reading after each.
void EditRuns(benchmark::State& state)
{
    const XmlDocPtr doc = MakeEffect(state.range(0));
    CVCPTextPlugInHelper helper;
    (void)helper.LoadXML(xmlDocGetRootElement(doc.get()));
    for (auto _ : state) {
        (void)helper.SetStyle(TEXT_STYLE_BOLD);
        (void)helper.SetFont("Mono");
        (void)helper.SetStyle(TEXT_STYLE_NOT_BOLD);
        (void)helper.SetFont("Serif");
    }
    CountRuns(state);
}
BENCHMARK(EditRuns)->Arg(10)->Arg(1000);

/// One body edited 1,000 times in turn: text, style, font, colour, alignment.
void EditThousandTimes(benchmark::State& state)
{
    for (auto _ : state) {
        const XmlDocPtr doc = MakeEffect(10);
        CVCPTextPlugInHelper helper;
        (void)helper.LoadXML(xmlDocGetRootElement(doc.get()));
        for (unsigned long round = 0; round < 200; ++round) {
            const bool odd = round % 2 == 1;
            (void)helper.PutTextString(odd ? "odd" : "even", false);
            (void)helper.SetStyle(odd ? TEXT_STYLE_BOLD : TEXT_STYLE_NOT_BOLD);
            (void)helper.SetFont(odd ? "Mono" : "Serif");
            (void)helper.SetTextColor(round);
            (void)helper.SetJustification(odd ? TEXT_JUSTIFY_CENTER : TEXT_JUSTIFY_RIGHT);
        }
    }
}
BENCHMARK(EditThousandTimes)->Unit(benchmark::kMillisecond);

/// What a reference would cost that reads its table anew.
void ReadStringTable(benchmark::State& state)
{
    const Theme theme;
    for (auto _ : state) {
        CResourceLoader loader;
        const XmlDocPtr doc = ReadXmlFile(theme.Strings().c_str());
        benchmark::DoNotOptimize(loader.LoadStringTable(xmlDocGetRootElement(doc.get())));
    }
}
BENCHMARK(ReadStringTable);

void RepeatReference(benchmark::State& state)
{
    const Theme theme;
    const auto nodes = MakeNodes(theme, 1);
    string out;
    for (auto _ : state)
        benchmark::DoNotOptimize(nodes[0]->ParseResString("stringRef:Menu.Text123", &out));
}
BENCHMARK(RepeatReference);

/// 10,000 texts that were never asked before.
void ResolveTenThousandTexts(benchmark::State& state)
{
    const Theme theme;
    string out;
    for (auto _ : state) {
        state.PauseTiming();
        auto nodes = MakeNodes(theme, 10'000);
        state.ResumeTiming();
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            const string reference = "stringRef:Menu.Text" + std::to_string(i % kStrings);
            benchmark::DoNotOptimize(nodes[i]->ParseResString(reference, &out));
        }
        state.PauseTiming();
        nodes.clear();
        state.ResumeTiming();
    }
}
BENCHMARK(ResolveTenThousandTexts)->Unit(benchmark::kMillisecond);

} // namespace
