#include "qt/MessageBox.h"

#include <QMessageBox>

namespace zantroq {
namespace {

QMessageBox::Icon Icon(BoxIcon icon)
{
    switch (icon) {
    case BoxIcon::Error:
        return QMessageBox::Critical;
    case BoxIcon::Question:
        return QMessageBox::Question;
    default:
        return QMessageBox::NoIcon;
    }
}

} // namespace

BoxAnswer CMessageBox::Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                           BoxIcon icon)
{
    QMessageBox box(m_parent.window());
    box.setIcon(Icon(icon));
    // Without a caption the title stays blank; the desktop would put the program's name there.
    box.setWindowTitle(caption.empty() ? QString(" ") : QString::fromStdString(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    if (buttons == BoxButtons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.exec();
        return BoxAnswer::Ok;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setEscapeButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

} // namespace zantroq
