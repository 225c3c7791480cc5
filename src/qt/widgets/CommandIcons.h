// The icons of the toolbar: our own line drawings in SVG, rendered at any size and scale in the colors of the
// palette. Chart window's thread.
#pragma once

#include <QIcon>
#include <QPalette>

namespace zantroq {

// The drawing src/resources/icons/NAME.svg; empty for an unknown name. Call again after a change of the
// palette.
QIcon NamedIcon(const QString& name, const QPalette& palette);

} // namespace zantroq
