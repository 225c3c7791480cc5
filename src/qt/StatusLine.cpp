#include "qt/StatusLine.h"

#include "qt/BarFont.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace zantroq {
namespace {

constexpr int Padding = 6;

} // namespace

CStatusLine::CStatusLine(QWidget* parent) : QWidget(parent)
{
    setFont(BarFont());
    setAccessibleName("Status bar");
}

QRect CStatusLine::PartRect(int part, int width)
{
    const std::array<int, 4> edges{0, width - 158, width - 73, width};
    const auto index = static_cast<std::size_t>(part);
    return QRect(edges.at(index), 0, edges.at(index + 1) - edges.at(index), LineHeight);
}

void CStatusLine::SetPart(int part, const std::string& text)
{
    QString& shown = m_texts.at(static_cast<std::size_t>(part));
    const QString wanted = QString::fromStdString(text);
    if (shown == wanted)
        return;
    shown = wanted;
    setAccessibleDescription(m_texts[0]);
    update(PartRect(part, width()));
}

void CStatusLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QColor line = BarLineColour(palette());
    painter.fillRect(0, 0, width(), 1, line);
    painter.setPen(palette().color(QPalette::WindowText));
    for (int part = 0; part < 3; ++part) {
        const QRect room = PartRect(part, width());
        if (part > 0)
            painter.fillRect(room.left(), 4, 1, LineHeight - 7, line);
        const QRect inner = room.adjusted(Padding, 1, -Padding, 0);
        const QString& text = m_texts[static_cast<std::size_t>(part)];
        painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(text, Qt::ElideRight, inner.width()));
    }
}

bool CStatusLine::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (int part = 0; part < 3; ++part) {
        const QString& text = m_texts[static_cast<std::size_t>(part)];
        if (PartRect(part, width()).contains(help->pos()) && !text.isEmpty())
            QToolTip::showText(help->globalPos(), text, this);
    }
    return true;
}

} // namespace zantroq
