#include "qt/dialogs/MessageBox.h"

#include "qt/widgets/CommandIcons.h"

#include <QAbstractButton>
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

// Words alone: a desktop without an icon theme would put discs before them.
void ShowPlainButtons(QMessageBox& box)
{
    for (QAbstractButton* button : box.buttons())
        button->setIcon(QIcon());
}

} // namespace

BoxAnswer CMessageBox::Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                           BoxIcon icon)
{
    QMessageBox box(m_parent.window());
    ShowPicture(box, icon);
    // Without a caption the title stays blank; the desktop would put the program's name there.
    box.setWindowTitle(caption.empty() ? QString(" ") : QString::fromStdString(caption));
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
    ShowPlainButtons(box);
    return box.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

} // namespace zantroq
