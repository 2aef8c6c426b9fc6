// Measures the small operations that a load and a save are made of, each beside what it stands for.

#include "core/Number.h"
#include "disc/DSTitle.h"
#include "project/ElementLookup.h"
#include "xml/DsXml.h"
#include "xml/XmlPtr.h"
#include "xml/XmlValue.h"

#include <benchmark/benchmark.h>

#include <iterator>
#include <sstream>
#include <string>

using std::string;
using namespace vantrel;

namespace {

constexpr double kReals[] = { 0.25, 29.97, 1.18934e+06, -7.5, 0.0 };
const string kRealTexts[] = { "0.25", "29.97", "1.18934e+06", "-7.5", "0" };
constexpr long kIntegers[] = { 0, 7, 224000, -1, 4590208 };
const string kIntegerTexts[] = { "0", "7", "224000", "-1", "4590208" };

/// Goes round the elements of an array.
template <class T, std::size_t Count>
class Round
{
public:
    explicit Round(const T (&values)[Count]) : m_values(values) {}
    const T& Next() { return m_values[m_next++ % Count]; }

private:
    const T (&m_values)[Count];
    std::size_t m_next = 0;
};

template <class T, std::size_t Count>
void WriteNumber(benchmark::State& state, const T (&values)[Count])
{
    Round round(values);
    for (auto _ : state)
        benchmark::DoNotOptimize(NumberText(round.Next()));
}

template <class T, std::size_t Count>
void WriteNumberByStream(benchmark::State& state, const T (&values)[Count])
{
    Round round(values);
    for (auto _ : state) {
        std::ostringstream stream;
        stream << round.Next();
        benchmark::DoNotOptimize(stream.str());
    }
}

template <class T, std::size_t Count>
void ReadNumberByStream(benchmark::State& state, const string (&texts)[Count])
{
    Round round(texts);
    for (auto _ : state) {
        std::istringstream stream(round.Next());
        T value{};
        stream >> value;
        benchmark::DoNotOptimize(value);
    }
}

template <auto Parse, std::size_t Count>
void ReadNumber(benchmark::State& state, const string (&texts)[Count])
{
    Round round(texts);
    for (auto _ : state)
        benchmark::DoNotOptimize(Parse(round.Next()));
}

// clang-format off
void WriteReal(benchmark::State& state)            { WriteNumber(state, kReals); }
void WriteRealByStream(benchmark::State& state)    { WriteNumberByStream(state, kReals); }
void WriteInteger(benchmark::State& state)         { WriteNumber(state, kIntegers); }
void WriteIntegerByStream(benchmark::State& state) { WriteNumberByStream(state, kIntegers); }
void ReadReal(benchmark::State& state)             { ReadNumber<ParseDouble>(state, kRealTexts); }
void ReadRealByStream(benchmark::State& state)     { ReadNumberByStream<double>(state, kRealTexts); }
void ReadInteger(benchmark::State& state)          { ReadNumber<ParseLong>(state, kIntegerTexts); }
void ReadIntegerByStream(benchmark::State& state)  { ReadNumberByStream<long>(state, kIntegerTexts); }
// clang-format on

BENCHMARK(WriteReal);
BENCHMARK(WriteRealByStream);
BENCHMARK(WriteInteger);
BENCHMARK(WriteIntegerByStream);
BENCHMARK(ReadReal);
BENCHMARK(ReadRealByStream);
BENCHMARK(ReadInteger);
BENCHMARK(ReadIntegerByStream);

/// Names as a load meets them: the last is none of the table's.
const string kElements[] = { "Title", "Commands", "PlayTitleFromChapter", "Encoding", "effect" };

void FindEntryByName(benchmark::State& state)
{
    Round round(kElements);
    for (auto _ : state)
        benchmark::DoNotOptimize(FindElement(round.Next()));
}
BENCHMARK(FindEntryByName);

void FindEntryByType(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(FindEntry(eNodeCommand));
}
BENCHMARK(FindEntryByType);

constexpr const char* kTitle =
    "<Title ID='7' discIndex='2' flags='1' label='Three Weeks North' stillWaitSecs='5'"
    " tag='1 (Norma)' vobDuration='1324' vobSize='1.18934e+06'/>";

XmlDocPtr Parse(const string& text)
{
    return XmlDocPtr{ xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                    0) };
}

/// A class that the table's short way is not for, as an application may derive it.
class DerivedTitle : public CDSTitle
{};

template <class Title>
void ReadAttributes(benchmark::State& state)
{
    const XmlDocPtr doc = Parse(kTitle);
    IXMLDOMNode* element = AsNode(xmlDocGetRootElement(doc.get()));
    Title title;
    for (auto _ : state)
        benchmark::DoNotOptimize(title.Read(element));
}
BENCHMARK_TEMPLATE(ReadAttributes, CDSTitle)->Name("ReadAttributes");
BENCHMARK_TEMPLATE(ReadAttributes, DerivedTitle)->Name("ReadAttributesByMap");

template <class Title>
void WriteAttributes(benchmark::State& state)
{
    const XmlDocPtr source = Parse(kTitle);
    Title title;
    (void)title.Read(AsNode(xmlDocGetRootElement(source.get())));
    const XmlDocPtr doc{ xmlNewDoc(XmlChars("1.0")) };
    doc->dict = xmlDictCreate(); // as a save has it
    for (auto _ : state) {
        const XmlNodePtr element{ xmlNewDocNode(doc.get(), nullptr, XmlChars("Title"), nullptr) };
        benchmark::DoNotOptimize(title.Write(AsNode(element.get()), 0));
    }
}
BENCHMARK_TEMPLATE(WriteAttributes, CDSTitle)->Name("WriteAttributes");
BENCHMARK_TEMPLATE(WriteAttributes, DerivedTitle)->Name("WriteAttributesByMap");

/// The same child of the last of many titles, asked for by an expression of either kind.
void FindChild(benchmark::State& state, const char* expression)
{
    string text = "<Titles>";
    for (long i = 0; i < state.range(0); ++i)
        text += "<Title><Commands/><Encoding/></Title>";
    const XmlDocPtr doc = Parse(text + "</Titles>");
    IXMLDOMElement* title = AsElement(xmlGetLastChild(xmlDocGetRootElement(doc.get())));
    string query = expression;
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            title->selectSingleNode(reinterpret_cast<unsigned char*>(query.data())));
    }
}

void FindChildByName(benchmark::State& state)
{
    FindChild(state, "Encoding");
}
BENCHMARK(FindChildByName)->Arg(10)->Arg(1000);

void FindChildByXPath(benchmark::State& state)
{
    FindChild(state, "Encoding[1]");
}
BENCHMARK(FindChildByXPath)->Arg(10)->Arg(1000);

} // namespace
