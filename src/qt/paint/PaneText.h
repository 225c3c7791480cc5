// The text of the panes: one font in one size, measured and drawn once and kept. A text is kept as the
// coverage of its pixels, so that it costs a blend in any color. Chart window's thread.
#pragma once

#include <QFont>
#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zantroq {

// One line of text. The mask begins at (Left, Top) from the text's own corner, which is the left end of its
// line box.
struct sTextMask
{
    int Advance = 0; // width of the line box in device pixels
    int Left = 0, Top = 0, Width = 0, Height = 0;
    std::vector<std::uint8_t> Coverage;
};

class CPaneText
{
public:
    // Without a family the desktop's usual sans-serif faces are tried in order.
    explicit CPaneText(const QString& family = {});

    // Device pixels a pane pixel; another scale empties the store.
    void SetScale(double scale);
    const QFont& Font() const { return m_font; }
    int Ascent() const { return m_ascent; }
    int LineHeight() const { return m_lineHeight; } // of the digits and letters with their descents
    int Advance(std::string_view text);
    const sTextMask& Mask(std::string_view text);

private:
    struct sHash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };
    double m_scale = 0;
    QFont m_font;
    int m_ascent = 0, m_lineHeight = 0;
    std::unordered_map<std::string, sTextMask, sHash, std::equal_to<>> m_masks;
};

} // namespace zantroq
