// The toolbar's icons: line drawings of our own, kept as SVG and drawn at whatever size and scale is asked
// for, in the colors of the palette. Chart window's thread.
#pragma once

#include <QIcon>
#include <QPalette>

namespace zantroq {

// The icon of a command, empty for a command without one. Later changes of the palette need a new icon.
QIcon CommandIcon(int command, const QPalette& palette);

// One of the drawings of the resources by its name; empty for another name.
QIcon NamedIcon(const QString& name, const QPalette& palette);

} // namespace zantroq
