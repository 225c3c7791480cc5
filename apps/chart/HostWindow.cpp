#include "HostWindow.h"

#include "qt/widgets/BarFont.h"
#include "qt/widgets/ChartView.h"

#include <QIcon>
#include <QLabel>

namespace zantroq {
namespace {

constexpr int NoticeHeight = 22, Indent = 8;

} // namespace

CHostWindow::CHostWindow(const sChartCtrlSetup& setup)
    : m_strip(new QLabel(this)), m_control(CChartBody::MakeControl(this, setup).release())
{
    setWindowTitle("Zantroq Chart");
    setWindowIcon(QIcon(":/zantroq/icons/zantroq-chart.svg"));
    m_strip->setFont(BarFont());
    m_strip->setIndent(Indent);
    m_strip->setAccessibleName("Notice");
    m_strip->setStyleSheet("QLabel { background: #8a4b00; color: #ffffff; }");
    m_strip->hide();
    setFocusProxy(m_control);
}

int CHostWindow::StripHeight() const
{
    return m_strip->isHidden() ? 0 : NoticeHeight;
}

void CHostWindow::SetClientSize(const QSize& size)
{
    resize(size.width(), size.height() + StripHeight());
    LayOut();
}

void CHostWindow::ShowNotice(const QString& text)
{
    Chart().SetNotice(text);
    m_notice = text;
    m_strip->setToolTip(text);
    const bool show = !text.isEmpty();
    if (show == !m_strip->isHidden())
        return LayOut();
    const QSize chart = m_control->size();
    m_strip->setVisible(show);
    if (!isMaximized() && !isFullScreen())
        SetClientSize(chart);
    LayOut();
}

void CHostWindow::resizeEvent(QResizeEvent*)
{
    LayOut();
}

void CHostWindow::LayOut()
{
    const int strip = StripHeight();
    m_strip->setGeometry(0, 0, width(), strip);
    m_strip->setText(m_strip->fontMetrics().elidedText(m_notice, Qt::ElideRight, width() - 2 * Indent));
    m_control->move(0, strip);
    Chart().SetClientSize(QSize(width(), height() - strip));
}

} // namespace zantroq
