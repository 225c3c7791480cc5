#include "qt/widgets/CommandBar.h"

#include "qt/widgets/BarFont.h"
#include "qt/widgets/CommandIcons.h"
#include "window/WindowCommands.h"

#include <QAction>
#include <QEvent>
#include <QPainter>
#include <QToolButton>

namespace zantroq {
namespace {

constexpr int ButtonSize = 25, ButtonTop = 2, SeparatorWidth = 7, IconSize = 18;

struct sBarPlace
{
    int Command; // 0: a separator
    const char* Text;
    bool Checkable;
};

constexpr sBarPlace Places[]{
    {CommandSymbolSearch, "Symbol Search", false},
    {0, nullptr, false},
    {CommandDrawChart, "Draw Chart", false},
    {CommandSettings, "Settings", false},
    {0, nullptr, false},
    {CommandPrint, "Print", false},
    {0, nullptr, false},
    {CommandZoomIn, "Zoom In ", false},
    {CommandZoomOut, "Zoom Out", false},
    {CommandGrid, "Grid Settings", true},
    {CommandPriceBar, "Price Bar Show/Hide", true},
};

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

CCommandBar::CCommandBar(QWidget* parent) : QWidget(parent)
{
    setAccessibleName("Tools");
    int left = 0;
    for (const sBarPlace& place : Places) {
        if (place.Command == 0) {
            (new CSeparator(this))->setGeometry(left, ButtonTop, SeparatorWidth, ButtonSize);
            left += SeparatorWidth;
            continue;
        }
        AddButton(place.Command, place.Text, place.Checkable, left);
        left += ButtonSize;
    }
    DrawIcons();
}

void CCommandBar::AddButton(int command, const QString& text, bool checkable, int left)
{
    auto* action = new QAction(text, this);
    action->setToolTip(text.trimmed());
    action->setCheckable(checkable);
    connect(action, &QAction::triggered, this, [this, command, action] {
        if (action->isCheckable())
            action->setChecked(IsChecked(command));
        OnCommand(command);
    });
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize({IconSize, IconSize});
    button->setAccessibleName(text.trimmed());
    button->setGeometry(left, ButtonTop, ButtonSize, ButtonSize);
    m_actions[command] = action;
}

void CCommandBar::DrawIcons()
{
    for (const auto& [command, action] : m_actions)
        action->setIcon(CommandIcon(command, palette()));
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
