#include "core/XmlText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

using namespace std::string_literals;

// "�" is U+FFFD
TEST(MendText, ReplacesEachOffendingByte)
{
    const std::pair<std::string, std::string> cases[] = {
        { "a\tb\n\r \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x92\xBF", "a\tb\n\r é € 💿" },
        { "", "" },
        { "a\x01z", "a�z" },
        { "a\0z"s, "a�z" },
        { "caf\xE9", "caf�" },
        { "x\xE2\x82", "x��" },
        { "\xC0\xAF\xE0\x80\xAF", "�����" },      // overlong
        { "\xED\xA0\x80", "���" },                // a surrogate
        { "\xEF\xBF\xBF\xEF\xBF\xBE", "������" }, // no characters
        { "\xF4\x90\x80\x80", "����" },           // past the last
        { "\x80z", "�z" },
    };
    for (const auto& [text, mended] : cases) {
        std::string store;
        EXPECT_EQ(vantrel::XmlText(text, store), mended);
        EXPECT_EQ(store.empty(), text == mended) << mended; // what is fit is not copied
    }
}
