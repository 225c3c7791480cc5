#include "qt/dialogs/DialogControls.h"

#include "qt/dialogs/ButtonForColor.h"
#include "qt/dialogs/LinePictureCtrl.h"
#include "qt/dialogs/RowList.h"
#include "qt/dialogs/SpinEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimeEdit>

#include <charconv>
#include <optional>
#include <stdexcept>

namespace zantroq {
namespace {

constexpr const char* DateFormat = "yyyy-MM-dd";
constexpr const char* TimeFormat = "HH:mm:ss";

template<class Widget> Widget& As(const sControl& control)
{
    return *qobject_cast<Widget*>(control.Widget);
}

ControlKind KindOf(const QWidget& widget)
{
    if (qobject_cast<const QComboBox*>(&widget) != nullptr)
        return ControlKind::Combo;
    if (qobject_cast<const QCheckBox*>(&widget) != nullptr)
        return ControlKind::Check;
    if (qobject_cast<const QRadioButton*>(&widget) != nullptr)
        return ControlKind::Radio;
    if (qobject_cast<const CButtonForColor*>(&widget) != nullptr)
        return ControlKind::Color;
    if (qobject_cast<const QPushButton*>(&widget) != nullptr)
        return ControlKind::Button;
    if (qobject_cast<const QDateEdit*>(&widget) != nullptr)
        return ControlKind::Date;
    if (qobject_cast<const QTimeEdit*>(&widget) != nullptr)
        return ControlKind::Time;
    if (qobject_cast<const CSpinEdit*>(&widget) != nullptr ||
        qobject_cast<const QLineEdit*>(&widget) != nullptr)
        return ControlKind::Edit;
    if (qobject_cast<const CRowList*>(&widget) != nullptr)
        return ControlKind::List;
    return ControlKind::Static;
}

void Add(Controls& controls, const QWidget& root, int number, const sControl& control)
{
    if (!controls.emplace(number, control).second)
        throw std::logic_error("control " + std::to_string(number) + " stands twice on the form " +
                               root.objectName().toStdString());
}

// The text of the label that belongs to a widget, as a person reads it.
QString LabelOf(const QWidget& widget, const QWidget& root)
{
    for (const QLabel* label : root.findChildren<QLabel*>())
        if (label->buddy() == &widget)
            return PlainLabel(label->text());
    return widget.accessibleName();
}

bool IsButton(ControlKind kind)
{
    return kind == ControlKind::Check || kind == ControlKind::Radio || kind == ControlKind::Button;
}

std::string StaticText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return PlainLabel(label->text()).toStdString();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget))
        return PlainLabel(group->title()).toStdString();
    return "";
}

std::string EditText(const sControl& control)
{
    if (const auto* edit = qobject_cast<const CSpinEdit*>(control.Widget))
        return edit->Text().toStdString();
    return As<QLineEdit>(control).text().toStdString();
}

std::vector<std::string> ItemsOf(const QComboBox& combo)
{
    std::vector<std::string> items;
    for (int item = 0; item < combo.count(); ++item)
        items.push_back(combo.itemText(item).toStdString());
    return items;
}

void DescribeValue(const sControl& control, sControlState& state)
{
    switch (control.Kind) {
    case ControlKind::Combo:
        state.Value = As<QComboBox>(control).currentText().toStdString();
        state.Items = ItemsOf(As<QComboBox>(control));
        break;
    case ControlKind::Check:
    case ControlKind::Radio:
        state.Value = As<QAbstractButton>(control).isChecked();
        break;
    case ControlKind::Edit:
    case ControlKind::Spin:
        state.Value = EditText(control);
        break;
    case ControlKind::Button:
        break;
    case ControlKind::Color:
        state.Value = As<CButtonForColor>(control).Color().name().toStdString();
        break;
    case ControlKind::List:
        state.Value = As<CRowList>(control).SelectedRows();
        state.Rows = As<CRowList>(control).Model().Rows();
        break;
    case ControlKind::Date:
        state.Value = As<QDateEdit>(control).date().toString(DateFormat).toStdString();
        break;
    case ControlKind::Time:
        state.Value = As<QTimeEdit>(control).time().toString(TimeFormat).toStdString();
        break;
    case ControlKind::Static:
        state.Value = StaticText(*control.Widget);
        break;
    }
}

std::string ChooseEntry(QComboBox& combo, const std::string& value)
{
    const int item = combo.findText(QString::fromStdString(value), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (item < 0)
        return "has no entry \"" + value + "\"";
    combo.setCurrentIndex(item);
    return "";
}

std::string CheckBox(QAbstractButton& button, const std::string& value)
{
    if (value != "on" && value != "off")
        return "takes on or off, not \"" + value + "\"";
    if (button.isChecked() != (value == "on"))
        button.click();
    return "";
}

std::string PressRadio(QAbstractButton& button, const std::string& value)
{
    if (value != "on")
        return "takes on alone, not \"" + value + "\"; choose another radio button to turn it off";
    button.click();
    return "";
}

std::string TypeText(const sControl& control, const std::string& value)
{
    const QString text = QString::fromStdString(value);
    if (auto* spin = qobject_cast<CSpinEdit*>(control.Widget))
        return spin->TypeText(text) ? "" : "does not take the text \"" + value + "\"";
    QLineEdit& edit = As<QLineEdit>(control);
    const QString before = edit.text();
    edit.selectAll();
    edit.insert(text);
    if (edit.text() == text)
        return "";
    edit.setText(before);
    return "does not take the text \"" + value + "\"";
}

std::string TurnSpin(CSpinEdit& spin, const std::string& value)
{
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || end != value.data() + value.size() || number < spin.Minimum() ||
        number > spin.Maximum())
        return "takes a whole number from " + std::to_string(spin.Minimum()) + " to " +
               std::to_string(spin.Maximum()) + ", not \"" + value + "\"";
    spin.TypeText(QString::fromStdString(value));
    return "";
}

std::string ChooseColor(CButtonForColor& button, const std::string& value)
{
    const bool form = value.size() == 7 && value[0] == '#' &&
                      value.find_first_not_of("0123456789abcdefABCDEF", 1) == std::string::npos;
    if (!form)
        return "takes a color as #rrggbb, not \"" + value + "\"";
    button.Choose(QColor(QString::fromStdString(value)));
    return "";
}

std::string SetDate(QDateEdit& edit, const std::string& value)
{
    const QDate date = QDate::fromString(QString::fromStdString(value), DateFormat);
    if (!date.isValid() || date < edit.minimumDate() || date > edit.maximumDate())
        return "takes a date as YYYY-MM-DD, not \"" + value + "\"";
    edit.setDate(date);
    return "";
}

std::string SetTime(QTimeEdit& edit, const std::string& value)
{
    const QTime time = QTime::fromString(QString::fromStdString(value), TimeFormat);
    if (!time.isValid())
        return "takes a time as HH:MM:SS, not \"" + value + "\"";
    edit.setTime(time);
    return "";
}

// Parses "0,2" or "none".
std::optional<std::vector<int>> RowsOf(const std::string& value, int count)
{
    std::vector<int> rows;
    if (value == "none")
        return rows;
    const char* at = value.data();
    const char* const end = at + value.size();
    for (;;) {
        int row = 0;
        const auto [stop, error] = std::from_chars(at, end, row);
        if (error != std::errc() || row < 0 || row >= count)
            return std::nullopt;
        rows.push_back(row);
        if (stop == end)
            return rows;
        if (*stop != ',')
            return std::nullopt;
        at = stop + 1;
    }
}

std::string SelectRows(CRowList& list, const std::string& value)
{
    const int count = list.Model().rowCount();
    const auto rows = RowsOf(value, count);
    if (!rows)
        return "has " + std::to_string(count) + " rows, from 0; \"" + value + "\" does not name rows of it";
    if (rows->size() > 1 && list.selectionMode() == QAbstractItemView::SingleSelection)
        return "takes one row at a time, not \"" + value + "\"";
    list.SelectRows(*rows);
    if (!rows->empty())
        emit list.RowPressed();
    return "";
}

} // namespace

QString PlainLabel(const QString& text)
{
    QString plain;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == '&' && ++at == text.size())
            break;
        plain += text[at];
    }
    return plain;
}

Controls FindControls(QWidget& root)
{
    Controls controls;
    for (QWidget* widget : root.findChildren<QWidget*>()) {
        if (const QVariant number = widget->property("control"); number.isValid())
            Add(controls, root, number.toInt(), {widget, KindOf(*widget)});
        if (const QVariant number = widget->property("spinControl"); number.isValid())
            Add(controls, root, number.toInt(), {widget, ControlKind::Spin});
    }
    return controls;
}

sControlState DescribeControl(const sControl& control, const QWidget& root)
{
    sControlState state;
    state.Kind = control.Kind;
    state.Label = IsButton(control.Kind) ? PlainLabel(As<QAbstractButton>(control).text()).toStdString()
                                         : LabelOf(*control.Widget, root).toStdString();
    state.Enabled = control.Widget->isEnabledTo(&root);
    state.Visible = control.Widget->isVisibleTo(&root);
    DescribeValue(control, state);
    return state;
}

std::string SetControl(const sControl& control, const std::string& value)
{
    switch (control.Kind) {
    case ControlKind::Combo:
        return ChooseEntry(As<QComboBox>(control), value);
    case ControlKind::Check:
        return CheckBox(As<QAbstractButton>(control), value);
    case ControlKind::Radio:
        return PressRadio(As<QAbstractButton>(control), value);
    case ControlKind::Edit:
        return TypeText(control, value);
    case ControlKind::Spin:
        return TurnSpin(As<CSpinEdit>(control), value);
    case ControlKind::Color:
        return ChooseColor(As<CButtonForColor>(control), value);
    case ControlKind::List:
        return SelectRows(As<CRowList>(control), value);
    case ControlKind::Date:
        return SetDate(As<QDateEdit>(control), value);
    case ControlKind::Time:
        return SetTime(As<QTimeEdit>(control), value);
    case ControlKind::Button:
    case ControlKind::Static:
        break;
    }
    return control.Kind == ControlKind::Button ? "is a button and takes no value; press it"
                                               : "takes no value";
}

} // namespace zantroq
