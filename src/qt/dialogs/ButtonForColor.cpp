#include "qt/dialogs/ButtonForColor.h"

#include <QColorDialog>
#include <QPainter>
#include <QStyleOptionButton>

namespace zantroq {
namespace {

constexpr int FaceMargin = 4; // width of the button's frame around the face, in pixels

} // namespace

CButtonForColor::CButtonForColor(QWidget* parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, &CButtonForColor::AskForColor);
}

void CButtonForColor::SetColor(const QColor& color)
{
    m_color = color;
    // The description for screen readers.
    setAccessibleDescription(color.name());
    setToolTip(color.name());
    update();
}

void CButtonForColor::Choose(const QColor& color)
{
    SetColor(color);
    emit ColorChosen();
}

QSize CButtonForColor::sizeHint() const
{
    const int line = fontMetrics().height();
    return {3 * line, line + 2 * FaceMargin};
}

void CButtonForColor::AskForColor()
{
    auto* const dialog = new QColorDialog(m_color, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QColorDialog::colorSelected, this, &CButtonForColor::Choose);
    dialog->open();
}

void CButtonForColor::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.state |= isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    const QRect face = rect().adjusted(FaceMargin, FaceMargin, -FaceMargin, -FaceMargin);
    QColor color = m_color;
    if (!isEnabled())
        color.setAlphaF(0.35F);
    painter.fillRect(face, color);
    // A face in the button's own color needs an edge to be visible.
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Mid));
    painter.drawRect(face.adjusted(0, 0, -1, -1));
    if (!hasFocus())
        return;
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = rect().adjusted(2, 2, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

} // namespace zantroq
