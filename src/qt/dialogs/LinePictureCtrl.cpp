#include "qt/dialogs/LinePictureCtrl.h"

#include <QPainter>

namespace zantroq {

CLinePictureCtrl::CLinePictureCtrl(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void CLinePictureCtrl::SetLine(const QColor& color, int width)
{
    m_color = color;
    m_width = width;
    setAccessibleDescription(QString("%1, %2 pixels wide").arg(color.name()).arg(width));
    update();
}

QSize CLinePictureCtrl::sizeHint() const
{
    const int line = fontMetrics().height();
    return {6 * line, 2 * line};
}

void CLinePictureCtrl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setClipRect(rect().adjusted(1, 1, -1, -1));
    if (m_width <= 0)
        return;
    const int margin = fontMetrics().height() / 2;
    painter.fillRect(QRectF(margin, (height() - m_width) / 2.0, width() - 2 * margin, m_width), m_color);
}

} // namespace zantroq
