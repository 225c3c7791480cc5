// The look that the bars around the panes share. Sizes are in pixels, so that a window of a given size lays
// out the same whatever fonts the desktop has. Chart window's thread.
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
