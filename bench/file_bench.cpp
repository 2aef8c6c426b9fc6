// Measures load, save and memory against what libxml2 alone needs for the same files.
//
// Every measurement has a process of its own, since the heap's history would falsify the rest; the
// two sides of a ratio alternate, and medians are compared.

#include "FileWork.h"
#include "Process.h"
#include "ProjectGenerator.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

using std::string;
using namespace bench;

namespace {

struct Size
{
    const char* name;
    std::size_t bytes;
    int rounds;
};
constexpr Size kSizes[] = { { "126 KB", 126'000, 101 },
                            { "10 MB", 10'000'000, 15 },
                            { "100 MB", 100'000'000, 5 } };

constexpr double kLoadAim = 1.25;
constexpr double kSaveAim = 1.2;
constexpr double kMemoryAim = 1.2;

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

/// The median of several measurements, time and memory each for itself.
class Series
{
public:
    void Add(const Measurement& one)
    {
        m_seconds.push_back(one.seconds);
        m_kilobytes.push_back(one.kilobytes);
    }
    double Seconds() const { return Median(m_seconds); }
    double Kilobytes() const { return Median(m_kilobytes); }

private:
    static double Median(std::vector<double> values)
    {
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }

    std::vector<double> m_seconds;
    std::vector<double> m_kilobytes;
};

Measurement MeasureInChild(Work work, const string& file, const string& out)
{
    const string text =
        OutputOfSelf({ kMeasure, std::to_string(static_cast<int>(work)), file, out });
    Measurement result;
    if (std::sscanf(text.c_str(), "%lf %lf", &result.seconds, &result.kilobytes) != 2) {
        std::fprintf(stderr, "file_bench: a measurement gave no figures\n");
        std::exit(1);
    }
    return result;
}

int RunChild(char** arguments)
{
    const Measurement result =
        Measure(static_cast<Work>(std::atoi(arguments[2])), arguments[3], arguments[4]);
    std::printf("%.9f %.0f\n", result.seconds, result.kilobytes);
    return 0;
}

void PrintRow(const char* size, const char* what, const char* unit, double ours, double floor,
              double aim)
{
    std::printf("%-8s%-14s%11.2f %s %11.2f %s %7.2f %6.2f\n", size, what, ours, unit, floor, unit,
                ours / floor, aim);
    std::fflush(stdout);
}

/// Measures `work` and its floor in turn.
void PrintPair(const Size& size, const char* name, Work work, Work floorWork, double aim,
               const string& file, const string& out)
{
    Series ours;
    Series floor;
    for (int round = 0; round < size.rounds; ++round) {
        std::filesystem::remove(out);
        ours.Add(MeasureInChild(work, file, out));
        std::filesystem::remove(out);
        floor.Add(MeasureInChild(floorWork, file, out));
    }
    PrintRow(size.name, name, "ms", 1e3 * ours.Seconds(), 1e3 * floor.Seconds(), aim);
    PrintRow(size.name, (string(name) + " memory").c_str(), "MB", ours.Kilobytes() / 1024,
             floor.Kilobytes() / 1024, kMemoryAim);
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

} // namespace

int main(int argc, char** argv)
{
    if (argc == 5 && string(argv[1]) == kMeasure)
        return RunChild(argv);

    const ScratchFolder scratch;
    const string file = scratch.File("project.xml");
    const string out = scratch.File("saved/project.xml"); // a save stamps the file's name
    std::filesystem::create_directory(scratch.File("saved"));

    std::printf("%-8s%-14s%14s %14s %7s %6s\n", "Size", "", "ours", "floor", "ratio", "aim");
    for (const Size& size : kSizes) {
        std::ofstream(file, std::ios::binary) << GenerateProject(size.bytes, "project");
        CheckSaves(file, out);
        PrintPair(size, "load", Work::kLoad, Work::kLoadFloor, kLoadAim, file, out);
        PrintPair(size, "save", Work::kSave, Work::kSaveFloor, kSaveAim, file, out);
    }
    return 0;
}
