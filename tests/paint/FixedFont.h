// A synthetic font: every character is six pane pixels wide, five of them solid and one half covered. Blanks
// cover nothing.
#pragma once

#include "paint/TextMeasure.h"

#include <cmath>

namespace zantroq::test {

class CFixedFont : public ITextMasks
{
public:
    explicit CFixedFont(double scale = 1) : m_scale(scale) {}

    int Advance(std::string_view text) override { return static_cast<int>(text.size()) * Pixels(6); }
    int Ascent() const override { return Pixels(10); }
    int LineHeight() const override { return Pixels(13); }
    const sTextMask& Mask(std::string_view text) override
    {
        m_mask = {Advance(text), 0, 0, Advance(text), LineHeight(), {}};
        for (int y = 0; y < m_mask.Height; ++y)
            for (int x = 0; x < m_mask.Width; ++x)
                m_mask.Coverage.push_back(text[static_cast<std::size_t>(x / Pixels(6))] == ' ' ? 0
                                          : x % Pixels(6) == Pixels(6) - 1                     ? 128
                                                                                               : 255);
        return m_mask;
    }

private:
    int Pixels(int panePixels) const { return static_cast<int>(std::floor(panePixels * m_scale + 0.5)); }

    double m_scale;
    sTextMask m_mask;
};

} // namespace zantroq::test
