// The toolbar's icons: line drawings of our own, kept as SVG and drawn at whatever size and scale is asked
// for, in the colors of the palette. Chart window's thread.
#pragma once

#include <QIcon>
#include <QPalette>

namespace zantroq {

// The drawing src/resources/icons/NAME.svg, empty for another name. After a change of the palette ask again.
QIcon NamedIcon(const QString& name, const QPalette& palette);

} // namespace zantroq
