// The font and the line color of the bars around the panes. Sizes are in pixels, so that a window of a given
// size has the same layout whatever the desktop's fonts. Chart window's thread.
#pragma once

#include <QFont>
#include <QPalette>

namespace zantroq {

inline QFont BarFont()
{
    QFont font;
    font.setPixelSize(12);
    return font;
}

// The thin lines between bars.
inline QColor BarLineColor(const QPalette& palette)
{
    const QColor back = palette.color(QPalette::Window), text = palette.color(QPalette::WindowText);
    const auto mix = [](int from, int to) { return (from * 4 + to) / 5; };
    return QColor(mix(back.red(), text.red()), mix(back.green(), text.green()),
                  mix(back.blue(), text.blue()));
}

} // namespace zantroq
