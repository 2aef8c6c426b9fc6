#include "core/XmlText.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::string_literals;

struct TextCase
{
    const char* name;
    std::string text;
    std::string mended;
};
class MendText : public testing::TestWithParam<TextCase>
{};

TEST_P(MendText, ReplacesEachOffendingByte)
{
    std::string store;
    EXPECT_EQ(vantrel::XmlText(GetParam().text, store), GetParam().mended);
    EXPECT_EQ(vantrel::IsXmlText(GetParam().text), GetParam().text == GetParam().mended);
}

// "�" is U+FFFD
INSTANTIATE_TEST_SUITE_P(
    Texts, MendText,
    testing::Values(TextCase{ "Fit", "a\tb\n\r \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x92\xBF",
                              "a\tb\n\r é € 💿" },
                    TextCase{ "Empty", "", "" }, TextCase{ "Control", "a\x01z", "a�z" },
                    TextCase{ "Nul", "a\0z"s, "a�z" }, TextCase{ "Latin1", "caf\xE9", "caf�" },
                    TextCase{ "CutShort", "x\xE2\x82", "x��" },
                    TextCase{ "Overlong", "\xC0\xAF", "��" },
                    TextCase{ "OverlongLong", "\xE0\x80\xAF", "���" },
                    TextCase{ "Surrogate", "\xED\xA0\x80", "���" },
                    TextCase{ "NoCharacter", "\xEF\xBF\xBF\xEF\xBF\xBE", "������" },
                    TextCase{ "PastTheLast", "\xF4\x90\x80\x80", "����" },
                    TextCase{ "StrayContinuation", "\x80z", "�z" }),
    [](const auto& row) { return row.param.name; });
