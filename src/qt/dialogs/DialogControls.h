// The controls of a form by number. A widget has its number in the dynamic property "control"; an edit with
// arrows has the number of its arrows in "spinControl" and is thus two controls. Widgets without a number are
// ignored. Chart window's thread.
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

// All controls below a widget. Throws std::logic_error if two have the same number.
Controls FindControls(QWidget& root);

// The state of a control for a snapshot. A control counts as visible if it were visible with its form shown.
sControlState DescribeControl(const sControl& control, const QWidget& root);

// Sets the value as a person would. Returns an empty text, or a clause that says why the control does not
// accept it. The control must be visible and enabled.
std::string SetControl(const sControl& control, const std::string& value);

// The text without the mnemonic's mark.
QString PlainLabel(const QString& text);

} // namespace zantroq
