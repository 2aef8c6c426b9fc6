#pragma once

#include <random>
#include <string>
#include <string_view>

namespace bench {

/// Choices at random that are the same on every machine: raw numbers of the engine, since the
/// distributions of one standard library differ from those of the next.
class Choices
{
public:
    unsigned Below(unsigned end) { return static_cast<unsigned>(m_random() % end); }

    template <class T, std::size_t Count>
    const T& Pick(const T (&choices)[Count])
    {
        return choices[Below(Count)];
    }

    std::string Words(unsigned count)
    {
        std::string text(Pick(kWords));
        while (--count > 0)
            text.append(" ").append(Pick(kWords));
        return text;
    }

    /// Such as "Footage/Harbour rain.mpg".
    std::string Path(std::string_view folder, std::string_view extension)
    {
        return std::string(folder).append("/").append(Words(1 + Below(3))).append(extension);
    }

    /// 0.0, 0.1 and so on, below `end`.
    double Tenths(unsigned end) { return Below(10 * end) / 10.0; }

private:
    static constexpr std::string_view kWords[] = { "Harbour", "morning",   "Café",    "Ljus",
                                                   "ferry",   "\"North\"", "glacier", "& road",
                                                   "Fjord",   "night",     "<uncut>", "lighthouse",
                                                   "Åse",     "summer",    "東京",    "train",
                                                   "village", "rain" };
    std::mt19937 m_random;
};

} // namespace bench
