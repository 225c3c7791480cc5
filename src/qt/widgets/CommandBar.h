// The toolbar, and the state of every command by number, including those without a button. A press only
// reports the command; the chart window sets the state of check buttons. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"
#include "window/WindowCommands.h"

#include <QWidget>

#include <functional>
#include <map>
#include <set>

class QAction;

namespace zantroq {

class CCommandBar : public QWidget, public ICommandBar
{
public:
    // Width of all buttons and separators in pixels.
    static int ToolbarWidth();

    explicit CCommandBar(QWidget* parent);

    std::function<void(int command)> OnCommand;

    void Enable(int command, bool enabled) override;
    void Check(int command, bool checked) override;
    bool IsEnabled(int command) const override { return m_disabled.count(command) == 0; }
    bool IsChecked(int command) const override;

    // The action of a button; null for a command without a button.
    QAction* Action(int command) const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void AddButton(const sToolbarCommand& row, int left);
    void DrawIcons();

    std::map<int, QAction*> m_actions;
    std::set<int> m_disabled, m_checked;
};

} // namespace zantroq
