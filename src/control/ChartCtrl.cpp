#include <zantroq/ChartCtrl.h>

#include "control/ChartBody.h"

#include <QEvent>
#include <QPainter>
#include <qdrawutil.h>

#include <utility>

namespace zantroq {
namespace {

constexpr QSize UsualSize(620, 460);

void PaintFrame(QPainter& painter, QRect rect, const QPalette& palette, const sControlFrame& frame)
{
    const int edge = frame.EdgeWidth();
    if (edge > 0)
        qDrawShadePanel(&painter, rect, palette, true, edge);
    rect.adjust(edge, edge, -edge, -edge);
    if (frame.BorderWidth() > 0)
        qDrawPlainRect(&painter, rect, palette.color(QPalette::WindowText), frame.BorderWidth());
}

} // namespace

CChartCtrl::CChartCtrl(QWidget* parent) : CChartCtrl(parent, std::make_unique<CChartBody>(sChartCtrlSetup()))
{
}

CChartCtrl::CChartCtrl(QWidget* parent, std::unique_ptr<CChartBody> body)
    : QWidget(parent), m_body(std::move(body))
{
    m_body->Create(*this);
}

CChartCtrl::~CChartCtrl() = default;

QString CChartCtrl::StockSymbol() const
{
    return m_body->StockSymbol();
}

void CChartCtrl::SetStockSymbol(const QString& symbol)
{
    if (m_body->SetStockSymbol(symbol))
        emit StockSymbolChanged(symbol);
}

bool CChartCtrl::ResizeParentWindow() const
{
    return m_body->ResizeParentWindow();
}

void CChartCtrl::SetResizeParentWindow(bool resize)
{
    if (m_body->SetResizeParentWindow(resize))
        emit ResizeParentWindowChanged(resize);
}

int CChartCtrl::Appearance() const
{
    return m_body->Frame().Appearance;
}

void CChartCtrl::SetAppearance(int appearance)
{
    if (m_body->SetAppearance(appearance))
        emit AppearanceChanged(appearance);
}

int CChartCtrl::BorderStyle() const
{
    return m_body->Frame().BorderStyle;
}

void CChartCtrl::SetBorderStyle(int borderStyle)
{
    if (m_body->SetBorderStyle(borderStyle))
        emit BorderStyleChanged(borderStyle);
}

QSize CChartCtrl::sizeHint() const
{
    return UsualSize;
}

void CChartCtrl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_body->LayOut();
}

void CChartCtrl::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    PaintFrame(painter, rect(), palette(), m_body->Frame());
}

void CChartCtrl::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::EnabledChange && m_body->NoteEnabled(isEnabled()))
        emit EnabledChanged(isEnabled());
}

} // namespace zantroq
