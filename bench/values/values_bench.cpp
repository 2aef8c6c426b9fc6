// Measures what handles and ranges cost beside the classes beneath them: listing the menus of a large
// project, both ways.

#include <Vantrel.h>

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr int kMenus = 10'000;

const vantrel::OwnedProject& Disc()
{
    static const vantrel::OwnedProject disc = [] {
        vantrel::OwnedProject made;
        for (int i = 0; i < kMenus; ++i)
            made.addMenu("Menu of this disc, number " + std::to_string(i));
        return made;
    }();
    return disc;
}

void ListMenusByClasses(benchmark::State& state)
{
    CDSProjectData& project = *Disc().object();
    for (auto _ : state) {
        std::size_t length = 0;
        long count = 0;
        project.get_MenuCount(&count);
        for (long i = 1; i <= count; ++i) {
            CDSMenu* menu = nullptr;
            std::string label;
            if (vantrel::Failed(project.GetMenu(i, &menu)) || !menu)
                continue;
            menu->get_Label(&label);
            length += label.size() + static_cast<std::size_t>(menu->GetID());
        }
        benchmark::DoNotOptimize(length);
    }
}
BENCHMARK(ListMenusByClasses)->Unit(benchmark::kMicrosecond);

void ListMenusByHandles(benchmark::State& state)
{
    const vantrel::Project project = Disc().view();
    for (auto _ : state) {
        std::size_t length = 0;
        for (const vantrel::Menu menu : project.menus())
            length += menu.label().size() + static_cast<std::size_t>(menu.id());
        benchmark::DoNotOptimize(length);
    }
}
BENCHMARK(ListMenusByHandles)->Unit(benchmark::kMicrosecond);

} // namespace
