// The controls of a form by number. A widget carries its number in the dynamic property "control"; an edit
// with arrows carries that of its arrows in "spinControl", so that one widget is two controls. Widgets
// without a number take no part. Chart window's thread.
#pragma once

#include "platform/DialogDriver.h"

#include <QWidget>

#include <map>

namespace zantroq {

struct sControl
{
    QWidget* Widget = nullptr;
    ControlKind Kind = ControlKind::Static;
};

using Controls = std::map<int, sControl>;

// All controls below a widget. Two with the same number: std::logic_error.
Controls FindControls(QWidget& root);

// What a snapshot says of a control; a control counts as visible if it would be seen with the form on show.
sControlState DescribeControl(const sControl& control, const QWidget& root);

// Does what a person would do to bring the value into the control. Empty, or one clause that says why the
// control does not take it. The control must be visible and enabled.
std::string SetControl(const sControl& control, const std::string& value);

// The text without the mark of its mnemonic.
QString PlainLabel(const QString& text);

} // namespace zantroq
