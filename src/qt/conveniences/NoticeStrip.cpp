#include "qt/conveniences/NoticeStrip.h"

#include "qt/widgets/BarFont.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace zantroq {
namespace {

constexpr int LeastHeight = 28, SidePadding = 10, Gap = 8;

struct sStripColors
{
    QColor Back, Edge, Text;
};

sStripColors ColorsFor(const QPalette& palette)
{
    if (palette.color(QPalette::Window).lightness() < 128)
        return {QColor(0x4a, 0x39, 0x0e), QColor(0x8a, 0x6c, 0x20), QColor(0xff, 0xec, 0xb8)};
    return {QColor(0xff, 0xf3, 0xcf), QColor(0xd2, 0xa8, 0x3c), QColor(0x3b, 0x2c, 0x00)};
}

} // namespace

CNoticeStrip::CNoticeStrip(QWidget* parent)
    : QWidget(parent), m_sentence(new QLabel(this)), m_button(new QPushButton(this))
{
    setFont(BarFont());
    setAccessibleName("Notice");
    m_sentence->setFont(BarFont());
    m_sentence->setWordWrap(true);
    m_sentence->setTextFormat(Qt::PlainText); // a symbol is whatever was typed
    m_button->setFont(BarFont());
    m_button->setFocusPolicy(Qt::TabFocus); // the keyboard stays with the chart
    m_button->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(SidePadding, 2, 3, 2);
    row->setSpacing(Gap);
    row->addWidget(m_sentence, 1);
    row->addWidget(m_button, 0);
    connect(m_button, &QPushButton::clicked, this, [this] { OnPressed(); });
    hide();
}

QString CNoticeStrip::Sentence() const
{
    return isHidden() ? QString() : m_sentence->text();
}

void CNoticeStrip::Tell(const QString& sentence, const QString& button)
{
    if (sentence != m_sentence->text()) {
        m_sentence->setText(sentence);
        setAccessibleDescription(sentence);
    }
    if (button != m_button->text()) {
        m_button->setText(button);
        m_button->setMinimumWidth(m_button->fontMetrics().horizontalAdvance(button) + 2 * SidePadding);
    }
    m_button->setVisible(!button.isEmpty());
    setVisible(!sentence.isEmpty());
}

void CNoticeStrip::PlaceIn(const QRect& room)
{
    const int height = std::max(LeastHeight, layout()->totalHeightForWidth(room.width()));
    setGeometry(room.left(), room.top(), room.width(), height);
    QPalette ink = palette();
    ink.setColor(QPalette::WindowText, ColorsFor(parentWidget()->palette()).Text);
    if (ink != m_sentence->palette())
        m_sentence->setPalette(ink);
    raise();
}

void CNoticeStrip::paintEvent(QPaintEvent*)
{
    const sStripColors colors = ColorsFor(parentWidget()->palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.Edge);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), colors.Back);
}

void CNoticeStrip::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

} // namespace zantroq
