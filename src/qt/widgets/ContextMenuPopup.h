// Opens the chart window's context menus as popups and reports the chosen item. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QMenu>

#include <functional>

namespace zantroq {

class CContextMenuPopup : public QObject, public IContextMenu
{
public:
    std::function<QPoint(int pane, int x, int y)>
        ToGlobal;                              // converts a pixel of a pane to screen coordinates
    std::function<void(int command)> OnPicked; // 0: closed without a pick
    std::function<void(QMenu& menu)> Extend;   // adds items of the Widgets layer; may be empty

    void Open(const sContextMenu& menu, int x, int y) override;

private:
    void Fill(QMenu& menu, const std::vector<sMenuItem>& items);
    int m_picked = 0;
};

} // namespace zantroq
