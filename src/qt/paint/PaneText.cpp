#include "qt/paint/PaneText.h"

#include <QFontMetrics>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zantroq {

namespace {

constexpr double TextPixels = 11;
constexpr std::size_t MostMasks = 256; // some panes' worth; then the store starts again

} // namespace

CPaneText::CPaneText(const QString& family)
{
    if (family.isEmpty())
        m_font.setFamilies({"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans", "Sans Serif"});
    else
        m_font.setFamilies({family});
    m_font.setStyleHint(QFont::SansSerif);
    m_font.setHintingPreference(QFont::PreferFullHinting);
    SetScale(1.0);
}

void CPaneText::SetScale(double scale)
{
    if (scale == m_scale)
        return;
    m_scale = scale;
    m_masks.clear();
    m_font.setPixelSize(std::max(1, static_cast<int>(std::floor(TextPixels * scale + 0.5))));
    const QFontMetrics metrics(m_font);
    m_ascent = metrics.ascent();
    m_lineHeight = metrics.ascent() + metrics.descent();
}

int CPaneText::Advance(std::string_view text)
{
    return Mask(text).Advance;
}

const sTextMask& CPaneText::Mask(std::string_view text)
{
    if (const auto found = m_masks.find(text); found != m_masks.end())
        return found->second;
    if (m_masks.size() >= MostMasks)
        m_masks.clear();
    sTextMask mask;
    const QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    mask.Advance = QFontMetrics(m_font).horizontalAdvance(line);
    // Italic or hinted glyphs may extend slightly beyond the line box.
    const int edge = std::max(2, m_lineHeight / 4);
    QImage picture(std::clamp(mask.Advance, 0, 8192) + 2 * edge, m_lineHeight + 2 * edge,
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setFont(m_font);
    painter.setPen(Qt::white);
    painter.drawText(edge, edge + m_ascent, line);
    painter.end();
    mask.Left = mask.Top = -edge;
    mask.Width = picture.width();
    mask.Height = picture.height();
    mask.Coverage.resize(static_cast<std::size_t>(mask.Width) * static_cast<std::size_t>(mask.Height));
    for (int y = 0; y < mask.Height; ++y) {
        const QRgb* line32 = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < mask.Width; ++x)
            mask.Coverage[static_cast<std::size_t>(y * mask.Width + x)] =
                static_cast<std::uint8_t>(qAlpha(line32[x]));
    }
    return m_masks.emplace(std::string(text), std::move(mask)).first->second;
}

} // namespace zantroq
