#include "FileWork.h"

#include "PlainTree.h"
#include "disc/DSProjectData.h"
#include "project/DSFileService.h"

#include <libxml/parser.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <memory>

using std::string;
using namespace vantrel;

namespace bench {

namespace {

void Require(bool done, const char* what, const string& file)
{
    if (done)
        return;
    std::fprintf(stderr, "file_bench: can't %s \"%s\"\n", what, file.c_str());
    std::exit(1);
}

/// A value of this process's memory in kB, as the kernel names it.
double MemoryNow(const string& name)
{
    std::ifstream status("/proc/self/status");
    for (string line; std::getline(status, line);) {
        if (line.starts_with(name + ":"))
            return std::atof(line.c_str() + name.size() + 1);
    }
    return 0.0;
}

/// Forgets what the preparations left behind: free memory goes back to the system, and the peak is
/// counted anew.
double StartMemory()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5";
    return MemoryNow("VmRSS");
}

/// Puts together what lies freed in small pieces, as the heap does at the next larger request or
/// release. Whether that falls into the work itself depends on what the work releases last.
void TidyHeap()
{
    constexpr std::size_t larger = 4096; // than the pieces that the heap keeps apart
    void* volatile block = std::malloc(larger);
    std::free(block);
}

template <class Function>
Measurement Watch(Function work)
{
    const auto seconds = [](std::clock_t ticks) {
        return static_cast<double>(ticks) / CLOCKS_PER_SEC;
    };
    const double before = StartMemory();
    const auto start = std::chrono::steady_clock::now();
    const std::clock_t processorStart = std::clock();
    work();
    const std::clock_t processor = std::clock() - processorStart;
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    TidyHeap();
    const std::clock_t tidied = std::clock() - processorStart;
    return { taken.count(), seconds(processor), seconds(tidied), MemoryNow("VmHWM") - before };
}

/// The project's destruction is no part of it.
Measurement MeasureLoad(const string& file)
{
    std::unique_ptr<CDSProjectData> project;
    return Watch([&] {
        project = std::make_unique<CDSProjectData>();
        Require(CDSFileService().LoadProject(file.c_str(), project.get()) == status::kOk, "load",
                file);
    });
}

Measurement MeasureLoadFloor(const string& file)
{
    return Watch([&] {
        xmlDoc* doc = xmlReadFile(file.c_str(), nullptr, 0);
        Require(doc, "parse", file);
        xmlFreeDoc(doc);
    });
}

Measurement MeasureSave(const string& file, const string& out)
{
    CDSProjectData project;
    CDSFileService service;
    Require(service.LoadProject(file.c_str(), &project) == status::kOk, "load", file);
    return Watch([&] { Require(service.SaveProject(out, &project) == status::kOk, "save", out); });
}

Measurement MeasureSaveFloor(const string& file, const string& out)
{
    xmlDoc* read = xmlReadFile(file.c_str(), nullptr, 0);
    Require(read, "parse", file);
    const PlainTree tree(read);
    xmlFreeDoc(read);
    return Watch([&] {
        xmlDoc* doc = tree.Build();
        Require(xmlSaveFormatFileEnc(out.c_str(), doc, "UTF-8", 1) > 0, "save", out);
        xmlFreeDoc(doc);
    });
}

} // namespace

Measurement Measure(Work work, const string& file, const string& out)
{
    xmlInitParser();
    switch (work) {
    case Work::kLoad:
        return MeasureLoad(file);
    case Work::kLoadFloor:
        return MeasureLoadFloor(file);
    case Work::kSave:
        return MeasureSave(file, out);
    case Work::kSaveFloor:
        return MeasureSaveFloor(file, out);
    }
    return {};
}

} // namespace bench
