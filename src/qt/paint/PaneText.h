// The text of the panes: one font in one size. Each text is measured and rasterised once as the coverage of
// its pixels; painting it in a color is then a blend. Chart window's thread.
#pragma once

#include "paint/TextMeasure.h"

#include <QFont>
#include <QString>

#include <string>
#include <string_view>
#include <unordered_map>

namespace zantroq {

class CPaneText : public ITextMasks
{
public:
    // Without a family, the usual sans-serif fonts are tried in order.
    explicit CPaneText(const QString& family = {});

    // `scale` is in device pixels per pane pixel. A new scale empties the cache.
    void SetScale(double scale);
    const QFont& Font() const { return m_font; }
    // Texts in the store, at most 256.
    std::size_t Kept() const { return m_masks.size(); }
    int Advance(std::string_view text) override;
    int Ascent() const override { return m_ascent; }
    int LineHeight() const override { return m_lineHeight; }
    const sTextMask& Mask(std::string_view text) override;

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
