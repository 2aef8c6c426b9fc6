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
                            { "100 MB", 100'000'000, 7 } };

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
    if (std::sscanf(text.c_str(), "%lf %lf %lf", &result.seconds, &result.processor,
                    &result.kilobytes) != 3) {
        std::fprintf(stderr, "file_bench: a measurement gave no figures\n");
        std::exit(1);
    }
    return result;
}

int RunChild(char** arguments)
{
    const Measurement result =
        Measure(static_cast<Work>(std::atoi(arguments[2])), arguments[3], arguments[4]);
    std::printf("%.9f %.9f %.0f\n", result.seconds, result.processor, result.kilobytes);
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

/// One line of the table; `unit` is what the figure is multiplied by for showing.
void PrintRow(const Size& size, const string& what, const char* unitName, double unit, double ours,
              double floor, double aim)
{
    std::printf("%-8s%-16s%10.2f %s%10.2f %s%8.2f%7.2f\n", size.name, what.c_str(), ours * unit,
                unitName, floor * unit, unitName, ours / floor, aim);
    std::fflush(stdout);
}

/// Measures both sides in turn.
void MeasurePair(const Size& size, const Pair& pair, const string& file, const string& out)
{
    std::vector<Measurement> ours;
    std::vector<Measurement> floor;
    for (int round = 0; round < size.rounds; ++round) {
        std::filesystem::remove(out);
        ours.push_back(MeasureInChild(pair.work, file, out));
        std::filesystem::remove(out);
        floor.push_back(MeasureInChild(pair.floor, file, out));
    }
    const auto print = [&](const char* what, double Measurement::*figure, const char* unitName,
                           double unit, double aim) {
        PrintRow(size, string(pair.name) + what, unitName, unit, Median(ours, figure),
                 Median(floor, figure), aim);
    };
    print("", &Measurement::seconds, "ms", 1e3, pair.aim);
    print(", processor", &Measurement::processor, "ms", 1e3, pair.aim);
    print(", memory", &Measurement::kilobytes, "MB", 1.0 / 1024, kMemoryAim);
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

    std::printf("%-8s%-16s%13s%13s%8s%7s\n", "Size", "", "ours", "floor", "ratio", "aim");
    for (const Size& size : kSizes) {
        std::ofstream(file, std::ios::binary) << GenerateProject(size.bytes, "project");
        CheckSaves(file, out);
        for (const Pair& pair : kPairs)
            MeasurePair(size, pair, file, out);
    }
    return 0;
}
