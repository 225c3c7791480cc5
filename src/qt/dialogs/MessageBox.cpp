#include "qt/dialogs/MessageBox.h"

#include "conveniences/Questions.h"
#include "qt/widgets/CommandIcons.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

namespace zantroq {
namespace {

constexpr int PictureSize = 32;

void ShowPicture(QMessageBox& box, BoxIcon icon)
{
    if (icon == BoxIcon::None)
        return;
    const QIcon picture = NamedIcon(icon == BoxIcon::Error ? "error" : "question", box.palette());
    box.setIconPixmap(picture.pixmap(QSize(PictureSize, PictureSize), box.devicePixelRatioF()));
}

// The open dialog over the window, so that the box does not appear behind it; otherwise the window.
QWidget& Over(QWidget& inside)
{
    QWidget* const window = inside.window();
    for (QWidget* over = QApplication::activeModalWidget(); over != nullptr; over = over->parentWidget())
        if (over->parentWidget() != nullptr && over->parentWidget()->window() == window)
            return *over;
    return *window;
}

// Shows texts without icons: a desktop without an icon theme would show discs.
void ShowPlainButtons(QMessageBox& box)
{
    for (QAbstractButton* button : box.buttons())
        button->setIcon(QIcon());
}

} // namespace

BoxAnswer CMessageBox::Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                           BoxIcon icon)
{
    QMessageBox box(&Over(m_parent));
    ShowPicture(box, icon);
    // Without a caption the title is blank; the desktop would show the program's name.
    const std::string title = m_conveniences ? BoxTitle(text, caption) : caption;
    box.setWindowTitle(title.empty() ? QString(" ") : QString::fromStdString(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    if (buttons == BoxButtons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        ShowPlainButtons(box);
        box.exec();
        return BoxAnswer::Ok;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    if (m_conveniences && AsksToDelete(text))
        box.setDefaultButton(QMessageBox::No);
    ShowPlainButtons(box);
    return box.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

} // namespace zantroq
