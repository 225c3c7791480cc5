// The host's top-level window: the chart control, and above it a strip that says so when the market on show
// is not a genuine one.
#pragma once

#include "control/ChartBody.h"

#include <QWidget>

class QLabel;

namespace zantroq {

class CHostWindow : public QWidget
{
public:
    explicit CHostWindow(const sChartCtrlSetup& setup);

    CChartCtrl& Control() { return *m_control; }
    CChartBody& Chart() { return CChartBody::Of(*m_control); }
    // Sizes the window so that the chart window gets this client size, shown or not.
    void SetClientSize(const QSize& size);
    // Shows the strip; the chart keeps its size where the window can grow. Also in pictures of the chart.
    void ShowNotice(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int StripHeight() const;
    void LayOut();

    QLabel* m_strip;
    QString m_notice;
    CChartCtrl* m_control;
};

} // namespace zantroq
