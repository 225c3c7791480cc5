#include "qt/dialogs/QtForm.h"

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

#include <stdexcept>

namespace zantroq {
namespace {

class CQuiet
{
public:
    explicit CQuiet(int& depth) : m_depth(depth) { ++m_depth; }
    ~CQuiet() { --m_depth; }
    CQuiet(const CQuiet&) = delete;
    CQuiet& operator=(const CQuiet&) = delete;

private:
    int& m_depth;
};

QColor ColorOf(ColorValue color)
{
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                  static_cast<int>(color >> 16 & 0xFF));
}

} // namespace

CQtForm::CQtForm(QWidget& root) : m_root(root), m_controls(FindControls(root)) {}

const sControl& CQtForm::At(int id) const
{
    const auto found = m_controls.find(id);
    if (found == m_controls.end())
        throw std::invalid_argument("form " + m_root.objectName().toStdString() + " has no control " +
                                    std::to_string(id));
    return found->second;
}

template<class Widget> Widget& CQtForm::As(int id) const
{
    auto* const widget = qobject_cast<Widget*>(At(id).Widget);
    if (widget == nullptr)
        throw std::invalid_argument("control " + std::to_string(id) + " of form " +
                                    m_root.objectName().toStdString() + " is of another kind");
    return *widget;
}

void CQtForm::Bind(IFormEvents& events)
{
    m_events = &events;
    for (const auto& [id, control] : m_controls)
        BindControl(id, control);
}

void CQtForm::Changed(int id)
{
    if (m_quiet == 0)
        m_events->OnChanged(id);
}

void CQtForm::BindControl(int number, const sControl& control)
{
    const int id = number;
    const auto changed = [this, id] { Changed(id); };
    switch (control.Kind) {
    case ControlKind::Combo:
        connect(&As<QComboBox>(id), &QComboBox::currentIndexChanged, this, changed);
        break;
    case ControlKind::Check:
    case ControlKind::Radio:
        connect(&As<QAbstractButton>(id), &QAbstractButton::clicked, this, changed);
        break;
    case ControlKind::Edit:
        if (auto* const spin = qobject_cast<CSpinEdit*>(control.Widget))
            connect(spin, &CSpinEdit::TextChanged, this, changed);
        else
            connect(&As<QLineEdit>(id), &QLineEdit::textChanged, this, changed);
        break;
    case ControlKind::Button:
        connect(&As<QPushButton>(id), &QPushButton::clicked, this, [this, id] { m_events->OnPressed(id); });
        break;
    case ControlKind::Color:
        connect(&As<CButtonForColor>(id), &CButtonForColor::ColorChosen, this, changed);
        break;
    case ControlKind::List:
        BindList(id, As<CRowList>(id));
        break;
    case ControlKind::Date:
        connect(&As<QDateEdit>(id), &QDateEdit::dateChanged, this, changed);
        break;
    case ControlKind::Time:
        connect(&As<QTimeEdit>(id), &QTimeEdit::timeChanged, this, changed);
        break;
    case ControlKind::Spin: // reported by its edit
    case ControlKind::Static:
        break;
    }
}

void CQtForm::BindList(int id, CRowList& list)
{
    const auto selected = [this, id] {
        if (m_quiet == 0)
            m_events->OnSelectionChanged(id);
    };
    connect(list.selectionModel(), &QItemSelectionModel::selectionChanged, this, selected);
    connect(&list, &CRowList::RowPressed, this, selected);
    connect(&list, &QAbstractItemView::doubleClicked, this,
            [this, id](const QModelIndex& index) { m_events->OnDoubleClicked(id, index.row()); });
    connect(&list, &CRowList::RowDropped, this, [this, id](CRowList* from, int row, int to) {
        if (const int source = NumberOf(from); source >= 0)
            m_events->OnDropped(source, row, id, to);
    });
}

int CQtForm::NumberOf(const QWidget* widget) const
{
    for (const auto& [id, control] : m_controls)
        if (control.Widget == widget)
            return id;
    return -1;
}

std::string CQtForm::Text(int id) const
{
    if (const auto* group = qobject_cast<const QGroupBox*>(At(id).Widget))
        return group->title().toStdString();
    if (const auto* label = qobject_cast<const QLabel*>(At(id).Widget))
        return label->text().toStdString();
    if (const auto* button = qobject_cast<const QAbstractButton*>(At(id).Widget))
        return button->text().toStdString();
    const sControlState state = DescribeControl(At(id), m_root);
    const auto* const text = std::get_if<std::string>(&state.Value);
    return text != nullptr ? *text : "";
}

void CQtForm::SetText(int id, const std::string& text)
{
    const CQuiet quiet(m_quiet);
    QWidget* const widget = At(id).Widget;
    const QString shown = QString::fromStdString(text);
    if (auto* spin = qobject_cast<CSpinEdit*>(widget))
        spin->SetText(shown);
    else if (auto* edit = qobject_cast<QLineEdit*>(widget))
        edit->setText(shown);
    else if (auto* label = qobject_cast<QLabel*>(widget))
        label->setText(shown);
    else if (auto* group = qobject_cast<QGroupBox*>(widget))
        group->setTitle(shown);
    else if (auto* button = qobject_cast<QAbstractButton*>(widget))
        button->setText(shown);
    else
        SetControl(At(id), text); // a date or a time; any other text is ignored
}

void CQtForm::SetItems(int id, const std::vector<std::string>& items)
{
    const CQuiet quiet(m_quiet);
    QComboBox& combo = As<QComboBox>(id);
    combo.clear();
    for (const std::string& item : items)
        combo.addItem(QString::fromStdString(item));
    combo.setCurrentIndex(-1);
}

int CQtForm::Index(int id) const
{
    return As<QComboBox>(id).currentIndex();
}

void CQtForm::SetIndex(int id, int index)
{
    const CQuiet quiet(m_quiet);
    As<QComboBox>(id).setCurrentIndex(index);
}

bool CQtForm::Checked(int id) const
{
    return As<QAbstractButton>(id).isChecked();
}

void CQtForm::SetChecked(int id, bool checked)
{
    const CQuiet quiet(m_quiet);
    auto& button = As<QAbstractButton>(id);
    // The checked button of an exclusive group cannot be unchecked otherwise.
    const bool exclusive = button.autoExclusive();
    if (!checked)
        button.setAutoExclusive(false);
    button.setChecked(checked);
    button.setAutoExclusive(exclusive);
}

ColorValue CQtForm::Color(int id) const
{
    const QColor color = As<CButtonForColor>(id).Color();
    return static_cast<ColorValue>(color.red() | color.green() << 8 | color.blue() << 16);
}

void CQtForm::SetColor(int id, ColorValue color)
{
    As<CButtonForColor>(id).SetColor(ColorOf(color));
}

void CQtForm::SetColumns(int id, const std::vector<sFormColumn>& columns)
{
    const CQuiet quiet(m_quiet);
    As<CRowList>(id).SetColumns(columns);
}

void CQtForm::SetRows(int id, std::vector<FormRow> rows)
{
    const CQuiet quiet(m_quiet);
    As<CRowList>(id).Model().SetRows(std::move(rows));
}

void CQtForm::InsertRow(int id, int before, FormRow row)
{
    const CQuiet quiet(m_quiet);
    As<CRowList>(id).Model().InsertRow(before, std::move(row));
}

int CQtForm::RowCount(int id) const
{
    return As<CRowList>(id).Model().rowCount();
}

const FormRow& CQtForm::Row(int id, int row) const
{
    return As<CRowList>(id).Model().Rows().at(static_cast<std::size_t>(row));
}

std::vector<int> CQtForm::SelectedRows(int id) const
{
    return As<CRowList>(id).SelectedRows();
}

void CQtForm::SelectRows(int id, const std::vector<int>& rows)
{
    const CQuiet quiet(m_quiet);
    As<CRowList>(id).SelectRows(rows);
}

bool CQtForm::Enabled(int id) const
{
    return At(id).Widget->isEnabledTo(&m_root);
}

void CQtForm::SetEnabled(int id, bool enabled)
{
    At(id).Widget->setEnabled(enabled);
}

bool CQtForm::Visible(int id) const
{
    return !At(id).Widget->isHidden();
}

void CQtForm::SetVisible(int id, bool visible)
{
    At(id).Widget->setVisible(visible);
}

void CQtForm::SetRange(int id, int low, int high)
{
    auto& spin = As<CSpinEdit>(id);
    spin.SetMinimum(low);
    spin.SetMaximum(high);
}

void CQtForm::SetLineSample(int id, ColorValue color, int width)
{
    As<CLinePictureCtrl>(id).SetLine(ColorOf(color), width);
}

void CQtForm::Focus(int id)
{
    QWidget* const widget = At(id).Widget;
    widget->setFocus(Qt::OtherFocusReason);
    if (auto* spin = qobject_cast<CSpinEdit*>(widget))
        spin->SelectAll();
    else if (auto* edit = qobject_cast<QLineEdit*>(widget))
        edit->selectAll();
}

void CQtForm::SetTitle(const std::string& title)
{
    m_root.window()->setWindowTitle(QString::fromStdString(title));
}

void CQtForm::SetSize(int width, int height)
{
    m_root.window()->resize(width, height);
}

void CQtForm::SetWaiting(bool waiting)
{
    m_root.window()->setCursor(waiting ? Qt::WaitCursor : Qt::ArrowCursor);
}

} // namespace zantroq
