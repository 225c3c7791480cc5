#include "qt/widgets/ContextMenuPopup.h"

#include <QTimer>

namespace zantroq {

void CContextMenuPopup::Open(const sContextMenu& model, int x, int y)
{
    auto* menu = new QMenu;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // On a dark desktop a menu would hardly be visible over a dark chart.
    QPalette palette = menu->palette();
    if (palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness()) {
        palette.setColor(QPalette::Base, palette.color(QPalette::Window).lighter(115));
        menu->setPalette(palette);
    }
    m_picked = 0;
    Fill(*menu, model.Items);
    if (Extend)
        Extend(*menu);
    // The menu hides before it reports the chosen item, so the answer waits for the next turn of the event
    // loop.
    connect(menu, &QMenu::aboutToHide, this,
            [this] { QTimer::singleShot(0, this, [this] { OnPicked(m_picked); }); });
    menu->popup(ToGlobal(model.Pane, x, y));
}

void CContextMenuPopup::Fill(QMenu& menu, const std::vector<sMenuItem>& items)
{
    for (const sMenuItem& item : items) {
        if (item.Separator) {
            menu.addSeparator();
            continue;
        }
        if (!item.Items.empty()) {
            Fill(*menu.addMenu(QString::fromStdString(item.Text)), item.Items);
            continue;
        }
        QAction* action = menu.addAction(QString::fromStdString(item.Text));
        action->setEnabled(item.Enabled);
        connect(action, &QAction::triggered, this, [this, command = item.Command] { m_picked = command; });
    }
}

} // namespace zantroq
