#pragma once

#include "core/Export.h"

/// How a menu lays out its buttons, packed into one 64-bit word.
///
/// Bits 0 to 3 layout format, 4 to 9 number of lines, 10 to 15 buttons a line, 16 to 19 style, 20 to
/// 21 line justify, 22 to 23 button justify, 24 to 25 weight; the rest is left alone. A file holds
/// the low 32 bits. A setter cuts its value to the field's width.
class VANTREL_API CDSLayout
{
public:
    /// 0: line justify also places buttons vertically; 1: horizontally; 2 and 3: always one line.
    enum LayoutStyle : unsigned int
    {
    };
    enum LayoutJustify : unsigned int
    {
    };
    enum Weight : unsigned int
    {
    };

    /// The default: format 1, two lines of three buttons, style 0, justifications and weight 1.
    CDSLayout();

    /// Takes the whole word as it is; 0 stands for the default.
    CDSLayout(unsigned long packed);

    /// Format 1 and the six fields, each cut to its width. The number of lines is stored for every
    /// style.
    CDSLayout(unsigned int lines, unsigned int buttonsPerLine, LayoutStyle style,
              LayoutJustify lineJustify, LayoutJustify buttonJustify, Weight weight);

    /// Copies the low 48 bits.
    CDSLayout(const CDSLayout& other);
    CDSLayout& operator=(const CDSLayout& other);

    operator unsigned long() const { return m_packed; }
    /// The word itself, for a caller that fills it in place.
    operator unsigned long*() { return &m_packed; }

    LayoutStyle GetStyle() const;
    /// Styles 2 and 3 set the number of lines to 1.
    void SetStyle(LayoutStyle style);

    int GetNumberOfLines() const;
    /// Stays 1 under styles 2 and 3.
    void SetNumberOfLines(int lines);

    int GetButtonsPerLine() const;
    void SetButtonsPerLine(int buttons);

    LayoutJustify GetLineJustify() const;
    void SetLineJustify(LayoutJustify justify);

    LayoutJustify GetButtonJustify() const;
    void SetButtonJustify(LayoutJustify justify);

    Weight GetWeight() const;
    void SetWeight(Weight weight);

    /// Where the style lets line justify place buttons: 0 for 0, 1 for 2, 2 for the rest; else 2.
    int GetButtonHJustify() const;
    int GetButtonVJustify() const;

private:
    unsigned long m_packed;
};
