#include "core/Number.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale>
#include <random>
#include <sstream>
#include <string>
#include <vector>

using namespace vantrel;

namespace {

/// Texts that a hostile or a merely old file may hold, glued together from telling pieces.
std::string HostileNumber(std::mt19937& random)
{
    static const std::vector<std::string> pieces = [] {
        std::istringstream list("0|1|9223372036854775807|18446744073709551616|-|+| |\t|0x|0X|f|A|.|"
                                "e|E5|308|inf|nan|NaN(1)|x|,|p3||");
        std::vector<std::string> split;
        for (std::string piece; std::getline(list, piece, '|');)
            split.push_back(piece);
        return split;
    }();
    std::uniform_int_distribution<std::size_t> pick(0, pieces.size() - 1);
    std::string text;
    for (int i = 0; i < 5; ++i)
        text += pieces[pick(random)];
    return text;
}

std::string BitsOf(double value)
{
    return std::isnan(value) ? "nan" : std::to_string(std::signbit(value)) + NumberText(value);
}

/// A locale that writes 0,25 and groups thousands, as a host's may.
class GermanNumbers : public std::numpunct<char>
{
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

} // namespace

TEST(Number, ReadsWhatTheCLibraryReads)
{
    std::mt19937 random(20260101);
    for (int round = 0; round < 20000; ++round) {
        const std::string text = HostileNumber(random);
        SCOPED_TRACE("\"" + text + "\"");
        ASSERT_EQ(ParseLong(text), std::atol(text.c_str()));
        ASSERT_EQ(BitsOf(ParseDouble(text)), BitsOf(std::atof(text.c_str())));
        unsigned long ours = 7, theirs = 7;
        const bool found = ParseHex(text, &ours);
        ASSERT_EQ(found, std::sscanf(text.c_str(), "%lX", &theirs) == 1);
        ASSERT_EQ(ours, theirs);
    }
}

TEST(Number, WritesWhatADefaultStreamWrites)
{
    std::mt19937_64 random(20260102);
    const auto check = [](double value) {
        std::ostringstream stream;
        stream.imbue(std::locale::classic());
        stream << value;
        ASSERT_EQ(NumberText(value), stream.str());
    };
    for (const double value :
         { 0.0, -0.0, 0.1, 1.0, 100000.0, 1e6, 1234567.5, 29.97, 1e-5, 5e-324 })
        check(value);
    for (int round = 0; round < 20000; ++round) {
        const std::uint64_t bits = random();
        double value;
        std::memcpy(&value, &bits, sizeof value);
        check(value);
    }
}

TEST(Number, KeepsUnsignedValuesAboveTheSignedRange)
{
    for (const unsigned long value : { 0UL, 1UL << 63, ~0UL, ~0UL - 4 }) {
        EXPECT_EQ(ParseULong(NumberText(value)), value);
        EXPECT_EQ(ParseULong(NumberText(static_cast<long>(value))), value); // written as signed
    }
    EXPECT_EQ(ParseULong("99999999999999999999"), ~0UL);
}

TEST(Number, IsTheSameInEveryLocale)
{
    const std::locale former =
        std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
    const std::string formerC = std::setlocale(LC_ALL, nullptr);
    for (const char* name : { "de_DE.UTF-8", "de_DE", "fr_FR.UTF-8" })
        std::setlocale(LC_ALL, name); // where the machine has one

    EXPECT_EQ(NumberText(0.25), "0.25");
    EXPECT_EQ(NumberText(1234567L), "1234567");
    EXPECT_EQ(ParseDouble("0.25"), 0.25);
    EXPECT_EQ(ParseDouble("0x1.8p1"), 3.0);
    EXPECT_EQ(ParseDouble("1e999"), std::numeric_limits<double>::infinity());

    std::locale::global(former);
    std::setlocale(LC_ALL, formerC.c_str());
}
