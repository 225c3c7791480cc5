#include "qt/widgets/StatusLine.h"

#include "qt/widgets/BarFont.h"

#include <QHelpEvent>
#include <QLocale>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace zantroq {
namespace {

constexpr int Padding = 6;
constexpr int Narrowest = 62; // in percent of the normal letter width
constexpr int Readable = 78;  // in percent; a last trade with narrower letters is shortened instead
constexpr int Smallest = 10;  // font size in pixels

// The two narrow parts first make their letters narrower, then smaller, and only then cut the text.
QFont FittingFont(const QFont& font, const QString& text, int width)
{
    const int wanted = QFontMetrics(font).horizontalAdvance(text);
    if (wanted <= width || width <= 0)
        return font;
    QFont squeezed = font;
    // Some desktops do not make letters as narrow as requested.
    for (int stretch = 100 * width / wanted;
         stretch > Narrowest && QFontMetrics(squeezed).horizontalAdvance(text) > width; stretch -= 3)
        squeezed.setStretch(stretch);
    while (QFontMetrics(squeezed).horizontalAdvance(text) > width && squeezed.pixelSize() > Smallest)
        squeezed.setPixelSize(squeezed.pixelSize() - 1);
    return squeezed;
}

// True if the text fits with letters that are easy to read.
bool Fits(const QFont& font, const QString& text, int width)
{
    return QFontMetrics(font).horizontalAdvance(text) * Readable <= 100 * width;
}

// Grey, with a contrast of more than 4.5 on a light bar and on a dark one.
QColor OldTextColor(const QPalette& palette)
{
    const QColor back = palette.color(QPalette::Window), text = palette.color(QPalette::WindowText);
    const auto mix = [](int from, int to) { return (from * 9 + to * 11) / 20; };
    return QColor(mix(back.red(), text.red()), mix(back.green(), text.green()),
                  mix(back.blue(), text.blue()));
}

QString ShortNumber(double number)
{
    for (const auto& [unit, letter] : {std::pair(1e9, 'B'), std::pair(1e6, 'M'), std::pair(1e3, 'K')})
        if (number >= unit)
            return QLocale::c().toString(number / unit, 'f', number < 10 * unit ? 1 : 0) + letter;
    return QLocale::c().toString(number, 'f', 0);
}

} // namespace

QString CStatusLine::ShortTrade(const QString& text, const QFont& font, int width)
{
    const qsizetype mark = text.lastIndexOf(" x ");
    bool number = false;
    const double size = mark < 0 ? 0 : QLocale::c().toDouble(text.mid(mark + 3), &number);
    if (!number || Fits(font, text, width))
        return text;
    const QString price = text.left(mark);
    const QString shorter = price + " x " + ShortNumber(size);
    return Fits(font, shorter, width) ? shorter : price;
}

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
    if (m_growing && part == 2)
        update();
    else
        update(PartRect(part, width()));
}

void CStatusLine::SetGrowing(bool growing)
{
    m_growing = growing;
    update();
}

void CStatusLine::SetLastTrade(const QString& text)
{
    if (text == m_lastTrade)
        return;
    m_lastTrade = text;
    update();
}

QString CStatusLine::LastTrade() const
{
    return m_growing && !m_lastTrade.isEmpty() && !m_texts[2].isEmpty() ? m_lastTrade : m_texts[2];
}

QRect CStatusLine::Room(int part) const
{
    QRect room = PartRect(part, width());
    if (!m_growing)
        return room;
    const int wanted = fontMetrics().horizontalAdvance(LastTrade()) + Padding + 4;
    const int more =
        std::clamp(wanted - PartRect(2, width()).width(), 0, std::max(0, PartRect(0, width()).width()));
    room.setLeft(room.left() - (part > 0 ? more : 0));
    room.setRight(room.right() - (part < 2 ? more : 0));
    return room;
}

void CStatusLine::SetStale(bool stale)
{
    if (stale == m_stale)
        return;
    m_stale = stale;
    update(Room(2));
}

void CStatusLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    const QColor line = BarLineColor(palette());
    painter.fillRect(0, 0, width(), 1, line);
    for (int part = 0; part < 3; ++part) {
        const bool old = part == 2 && m_stale;
        painter.setPen(old ? OldTextColor(palette()) : palette().color(QPalette::WindowText));
        const QRect room = Room(part);
        if (part > 0)
            painter.fillRect(room.left(), 4, 1, LineHeight - 7, line);
        const int padding = part == 0 ? Padding : Padding / 2;
        const QRect inner = room.adjusted(padding, 1, -padding, 0);
        const QString whole = part == 2 ? LastTrade() : m_texts[static_cast<std::size_t>(part)];
        const QString text = part == 2 && !m_growing ? ShortTrade(whole, font(), inner.width()) : whole;
        const QFont shown = part == 0 ? font() : FittingFont(font(), text, inner.width());
        painter.setFont(shown);
        painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         QFontMetrics(shown).elidedText(text, Qt::ElideRight, inner.width()));
    }
}

bool CStatusLine::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (int part = 0; part < 3; ++part) {
        const QString text = part == 2 ? LastTrade() : m_texts[static_cast<std::size_t>(part)];
        if (Room(part).contains(help->pos()) && !text.isEmpty())
            QToolTip::showText(help->globalPos(),
                               part == 2 && m_stale ? text + " (old: the feed is lost)" : text, this);
    }
    return true;
}

} // namespace zantroq
