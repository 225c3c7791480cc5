#include "qt/widgets/CommandBar.h"

#include "qt/widgets/BarFont.h"
#include "qt/widgets/CommandIcons.h"

#include <QAction>
#include <QEvent>
#include <QPainter>
#include <QToolButton>

namespace zantroq {
namespace {

constexpr int ButtonSize = 25, ButtonTop = 2, SeparatorWidth = 7, IconSize = 18;
constexpr int ToolbarMargin = 2; // to the right of the last button

int GapWidth(const sToolbarCommand& row)
{
    return row.Gap == GapBefore::Separator ? SeparatorWidth : 0;
}

class CSeparator : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override;
};

void CSeparator::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(width() / 2, 3, 1, height() - 6, BarLineColor(palette()));
}

} // namespace

int CCommandBar::ToolbarWidth()
{
    int width = ToolbarMargin;
    for (const sToolbarCommand& row : ToolbarCommands)
        width += GapWidth(row) + ButtonSize;
    return width;
}

CCommandBar::CCommandBar(QWidget* parent) : QWidget(parent)
{
    setAccessibleName("Tools");
    int left = 0;
    for (const sToolbarCommand& row : ToolbarCommands) {
        if (const int gap = GapWidth(row); gap > 0)
            (new CSeparator(this))->setGeometry(left, ButtonTop, gap, ButtonSize);
        left += GapWidth(row);
        AddButton(row, left);
        left += ButtonSize;
    }
    DrawIcons();
}

void CCommandBar::AddButton(const sToolbarCommand& row, int left)
{
    const QString name = row.Name;
    auto* action = new QAction(name, this);
    action->setToolTip(name.trimmed());
    action->setCheckable(row.Kind == ButtonKind::Check);
    connect(action, &QAction::triggered, this, [this, command = row.Command, action] {
        if (action->isCheckable())
            action->setChecked(IsChecked(command));
        OnCommand(command);
    });
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize({IconSize, IconSize});
    button->setAccessibleName(name.trimmed());
    button->setGeometry(left, ButtonTop, ButtonSize, ButtonSize);
    m_actions[row.Command] = action;
}

void CCommandBar::DrawIcons()
{
    for (const sToolbarCommand& row : ToolbarCommands)
        m_actions[row.Command]->setIcon(NamedIcon(row.Icon, palette()));
}

void CCommandBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        DrawIcons();
    QWidget::changeEvent(event);
}

void CCommandBar::Enable(int command, bool enabled)
{
    if (enabled)
        m_disabled.erase(command);
    else
        m_disabled.insert(command);
    if (QAction* action = Action(command))
        action->setEnabled(enabled);
}

void CCommandBar::Check(int command, bool checked)
{
    if (checked)
        m_checked.insert(command);
    else
        m_checked.erase(command);
    if (QAction* action = Action(command))
        action->setChecked(checked);
}

bool CCommandBar::IsChecked(int command) const
{
    return m_checked.count(command) != 0;
}

QAction* CCommandBar::Action(int command) const
{
    const auto found = m_actions.find(command);
    return found == m_actions.end() ? nullptr : found->second;
}

} // namespace zantroq
