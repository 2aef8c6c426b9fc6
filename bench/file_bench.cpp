// Measures load, save and memory against what libxml2 alone needs for the same files.
//
// Every measurement has a process of its own, since the heap's history would falsify the rest; the
// two sides of a ratio alternate, and medians are compared. For files of many like items, the "floor"
// of the time of one item is its time in the smaller file.

#include "FileWork.h"
#include "Process.h"
#include "ProjectGenerator.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

using std::string;
using namespace bench;

namespace {

/// A file that is measured.
struct Case
{
    const char* name;
    std::size_t count; ///< bytes, or items in the file
    const char* item;  ///< what is counted, when the time of each must not grow; null for bytes
    int rounds;
    bool isLong; ///< left out of a quick run
    string (*generate)(std::size_t count);
};

constexpr const char* kProject = "project"; // a save stamps the file's name
constexpr const char* kTemplate = "menu.pvtx";

string FullProject(std::size_t size)
{
    return GenerateProject(size, kProject);
}

string OrdinaryMenus(std::size_t count)
{
    return GenerateMenus(count, { .buttons = 10 }, kProject);
}

string NativeMenus(std::size_t count)
{
    return GenerateMenus(count, { .buttons = 10, .background = kTemplate }, kProject);
}

string OneTitle(std::size_t count)
{
    return GenerateClips(count, kProject);
}

// Cases of one item stand together, the smaller first.
constexpr Case kCases[] = {
    { "126 KB", 126'000, nullptr, 51, false, FullProject },
    { "10 MB", 10'000'000, nullptr, 9, false, FullProject },
    { "100 MB", 100'000'000, nullptr, 3, true, FullProject },
    { "200 clips", 200, "clip", 15, false, OneTitle },
    { "2,000 clips", 2'000, "clip", 5, false, OneTitle },
    { "1,000 menus", 1'000, "menu", 7, false, OrdinaryMenus },
    { "10,000 menus", 10'000, "menu", 3, true, OrdinaryMenus },
    { "100 native", 100, "native menu", 31, false, NativeMenus },
    { "1,000 native", 1'000, "native menu", 9, false, NativeMenus },
};

constexpr const char* kMeasure = "--measure"; // tells a child what it is for

/// A folder that goes away with all it holds.
class ScratchFolder
{
public:
    ScratchFolder()
    {
        string form = std::filesystem::temp_directory_path() / "vantrel-bench-XXXXXX";
        if (!::mkdtemp(form.data())) {
            std::perror("file_bench: scratch folder");
            std::exit(1);
        }
        m_path = form;
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    string File(const char* name) const { return m_path / name; }

private:
    std::filesystem::path m_path;
};

string ContentOf(const string& path)
{
    std::ifstream file(path, std::ios::binary);
    return string(std::istreambuf_iterator<char>(file), {});
}

void WriteText(const string& path, const string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of one figure over several measurements.
double Median(const std::vector<Measurement>& measurements, double Measurement::*figure)
{
    std::vector<double> values;
    for (const Measurement& one : measurements)
        values.push_back(one.*figure);
    return Median(values);
}

Measurement MeasureInChild(Work work, const string& file, const string& out)
{
    const string text =
        OutputOfSelf({ kMeasure, std::to_string(static_cast<int>(work)), file, out });
    Measurement result;
    if (std::sscanf(text.c_str(), "%lf %lf %lf %lf", &result.seconds, &result.processor,
                    &result.tidied, &result.kilobytes) != 4) {
        std::fprintf(stderr, "file_bench: a measurement gave no figures\n");
        std::exit(1);
    }
    return result;
}

int RunChild(char** arguments)
{
    const Measurement result =
        Measure(static_cast<Work>(std::atoi(arguments[2])), arguments[3], arguments[4]);
    std::printf("%.9f %.9f %.9f %.0f\n", result.seconds, result.processor, result.tidied,
                result.kilobytes);
    return 0;
}

/// A measured work and its floor.
struct Pair
{
    const char* name;
    Work work;
    Work floor;
    double aim;
};
constexpr Pair kPairs[] = { { "load", Work::kLoad, Work::kLoadFloor, 1.25 },
                            { "save", Work::kSave, Work::kSaveFloor, 1.2 } };
constexpr double kMemoryAim = 1.2;

constexpr double kGrowthAim = 1.1;

/// The processor's time of a work for one item, in the first file of such items.
using ItemTimes = std::map<string, double>;

/// One line of the table; `unit` is what the figure is multiplied by for showing.
void PrintRow(const char* name, const string& what, const char* unitName, double unit, double ours,
              double floor, double aim)
{
    std::printf("%-14s%-20s%10.2f %s%10.2f %s%8.2f%7.2f\n", name, what.c_str(), ours * unit,
                unitName, floor * unit, unitName, ours / floor, aim);
    std::fflush(stdout);
}

/// Shows the time for one item beside that in the smaller file of such items.
void PrintGrowth(const Case& one, const char* work, double seconds, ItemTimes& times)
{
    const string what = string(work) + ", a " + one.item;
    const double time = seconds / static_cast<double>(one.count);
    const auto [smaller, isFirst] = times.try_emplace(what, time);
    if (!isFirst)
        PrintRow(one.name, what, "us", 1e6, time, smaller->second, kGrowthAim);
}

/// Measures both sides in turn.
void MeasurePair(const Case& one, const Pair& pair, const string& file, const string& out,
                 ItemTimes& times)
{
    std::vector<Measurement> ours;
    std::vector<Measurement> floor;
    for (int round = 0; round < one.rounds; ++round) {
        std::filesystem::remove(out);
        ours.push_back(MeasureInChild(pair.work, file, out));
        std::filesystem::remove(out);
        floor.push_back(MeasureInChild(pair.floor, file, out));
    }
    const auto print = [&](const char* what, double Measurement::*figure, const char* unitName,
                           double unit, double aim) {
        PrintRow(one.name, string(pair.name) + what, unitName, unit, Median(ours, figure),
                 Median(floor, figure), aim);
    };
    print("", &Measurement::seconds, "ms", 1e3, pair.aim);
    print(", processor", &Measurement::processor, "ms", 1e3, pair.aim);
    print(", heap tidied", &Measurement::tidied, "ms", 1e3, pair.aim);
    print(", memory", &Measurement::kilobytes, "MB", 1.0 / 1024, kMemoryAim);
    if (one.item)
        PrintGrowth(one, pair.name, Median(ours, &Measurement::processor), times);
}

/// Both ways of saving must give the file that was loaded, or the figures compare nothing.
void CheckSaves(const string& file, const string& out)
{
    for (const Work work : { Work::kSave, Work::kSaveFloor }) {
        (void)MeasureInChild(work, file, out);
        if (ContentOf(out) != ContentOf(file)) {
            std::fprintf(stderr, "file_bench: a saved file differs from the one loaded\n");
            std::exit(1);
        }
    }
}

bool IsChosen(const Case& one, const string& choice)
{
    return choice == "--quick" ? !one.isLong : string(one.name).find(choice) != string::npos;
}

/// All files, those of a quick run, or those whose name contains `choice`.
void MeasureCases(const string& choice)
{
    const ScratchFolder scratch;
    // Templates are looked for in the folder "Content" of the project.
    for (const char* folder : { "Content", "saved" })
        std::filesystem::create_directory(scratch.File(folder));
    const string file = scratch.File("Content/project.xml");
    const string out = scratch.File("saved/project.xml");
    WriteText(scratch.File("Content/") + kTemplate, GenerateTemplate());

    std::printf("%-14s%-20s%13s%13s%8s%7s\n", "File", "", "ours", "floor", "ratio", "aim");
    ItemTimes times;
    for (const Case& one : kCases) {
        if (!IsChosen(one, choice))
            continue;
        WriteText(file, one.generate(one.count));
        CheckSaves(file, out);
        for (const Pair& pair : kPairs)
            MeasurePair(one, pair, file, out, times);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 5 && string(argv[1]) == kMeasure)
        return RunChild(argv);

    const string choice = argc > 1 ? argv[1] : "";
    if (argc > 2 || choice == "--help") {
        std::fprintf(stderr, "Usage: file_bench [--quick | FILE]\n"
                             "A quick run leaves the largest files out. FILE is part of a name in\n"
                             "the table, for a run with such files alone.\n");
        return 2;
    }
    MeasureCases(choice);
    return 0;
}
