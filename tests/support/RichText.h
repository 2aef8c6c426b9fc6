#pragma once

#include "richtext/RunAttributes.h"
#include "support/XmlFixture.h"

#include <string>

/// The words of a summary and all that it says of them, on one line: "'words' style 101 face
/// Arial".
inline std::string Summary(const TextAttributes& text)
{
    constexpr const char* digits = "0123456789abcdef";
    std::string line = "'" + text.m_text + "' style ";
    for (const int shift : { 8, 4, 0 })
        line += digits[text.m_style >> shift & 0xF];
    const auto add = [&](const char* what, const std::string& value) {
        if (!value.empty())
            line.append(" ").append(what).append(" ").append(value);
    };
    add("height", text.m_fontHeightString);
    add("colour", text.m_textColorString);
    add("face", text.m_face);
    add("align", text.m_align);
    add("flags", std::string(text.m_isBold ? "b" : "") + (text.m_isItalic ? "i" : "") +
                     (text.m_isUnderlined ? "u" : ""));
    return line;
}

inline std::string Summary(const _xmlNode* body)
{
    TextAttributes attributes;
    EXPECT_EQ(vantrel::SummariseRuns(body, &attributes), vantrel::status::kOk);
    return Summary(attributes);
}
