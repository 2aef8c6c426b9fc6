#include "storyboard/EQualizerModel.h"

#include "core/Number.h"
#include "xml/MemberTable.h"
#include "xml/XMLHelpers.h"

#include <algorithm>
#include <utility>
#include <vector>

using namespace vantrel;

namespace {

constexpr long kMostBands = 4'096;
constexpr long kFreeBands = 64;     // of which a file need not hold any
constexpr long kUsualLength = 2048; // of a file that doesn't tell
constexpr std::string_view kBandPrefix = "Band_";

std::string BandName(long index)
{
    std::string name(kBandPrefix);
    AppendNumber(name, index);
    return name;
}

/// The elements of the bands below `count`, by index, the first of each.
std::vector<std::pair<long, const xmlNode*>> FindBands(const xmlNode* node, long count)
{
    std::vector<std::pair<long, const xmlNode*>> bands;
    for (const xmlNode* child : ChildElements(node)) {
        const std::string_view name = NameOf(child);
        if (child->ns || !name.starts_with(kBandPrefix))
            continue;
        const long index = ParseLong(name.substr(kBandPrefix.size()));
        if (index >= 0 && index < count && name == BandName(index))
            bands.emplace_back(index, child);
    }
    std::ranges::stable_sort(bands, {}, [](const auto& band) { return band.first; });
    const auto isRepeated = [](const auto& a, const auto& b) { return a.first == b.first; };
    bands.erase(std::unique(bands.begin(), bands.end(), isRepeated), bands.end());
    return bands;
}

} // namespace

EQualizerModel::EQualizerModel(_xmlNode* node)
{
    Init();
    (void)PersistToXML(node, false); // `m_isValid` tells
}

void EQualizerModel::Init()
{
    m_isValid = false;
    m_bands = 0;
    m_fftLength = 16;
    m_frequencies.reset();
    m_values.reset();
}

Status EQualizerModel::PersistToXML(_xmlNode* node, bool save)
{
    if (!node)
        return status::kFailure;
    return save ? Save(node) : Load(node);
}

Status EQualizerModel::Save(_xmlNode* node) const
{
    AddValue<typed::Long>(node, "Bands", m_bands);
    const xmlNode* length = AddValue<typed::Long>(node, "FFTLeng", m_fftLength);
    const long slots = m_values && m_frequencies ? m_bands : 0;
    for (long i = 0; i < slots; ++i) {
        xmlNode* band = AddElement(node, BandName(i).c_str());
        AddValue<typed::Double>(band, "Valu", static_cast<double>(m_values[i]));
        AddValue<typed::Double>(band, "Freq", static_cast<double>(m_frequencies[i]));
    }
    return length ? status::kOk : status::kBadArgument;
}

Status EQualizerModel::Load(_xmlNode* node)
{
    Init();
    const Status counted = XMLHelpers<void>::LoadLongNode(node, "Bands", "", &m_bands);
    if (m_bands == 0) {
        m_isValid = counted == status::kOk;
        return counted;
    }
    const auto bands = FindBands(node, m_bands);
    // A small file that tells of many bands is not worth the memory.
    if (m_bands < 0 || m_bands > std::min(kMostBands, kFreeBands + 16 * std::ssize(bands)))
        return status::kBadArgument;

    m_fftLength = kUsualLength;
    const Status measured = XMLHelpers<void>::LoadLongNode(node, "FFTLeng", "", &m_fftLength);
    m_isValid = measured == status::kOk;
    const auto room = static_cast<std::size_t>(m_bands);
    m_frequencies = std::make_unique<float[]>(room);
    m_values = std::make_unique<float[]>(room);
    long slot = 0;
    for (const auto& [index, band] : bands)
        LoadBand(band, slot++);
    return measured;
}

void EQualizerModel::LoadBand(const _xmlNode* band, long slot)
{
    double numbers[2] = { 0.0, 0.0 };
    constexpr const char* names[2] = { "Valu", "Freq" };
    xmlNode* found[2] = {};
    FindMembers({ const_cast<xmlNode*>(band) }, names, found);
    for (int i = 0; i < 2; ++i) {
        if (found[i])
            (void)typed::Double::Read(ElementText(found[i]), numbers[i]); // takes any text
    }
    const auto [value, frequency] = numbers;
    if (!found[0] || !found[1] || frequency == 0.0)
        m_isValid = false;
    m_values[slot] = typed::NarrowToFloat(value);
    m_frequencies[slot] = typed::NarrowToFloat(frequency);
}
