// The program's top-level window: the chart control, and above it a strip that announces simulated markets.
// Window's thread.
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
    // Sizes the window so that the chart window has this client size, visible or not.
    void SetClientSize(const QSize& size);
    // Shows the strip, also in pictures of the chart. The chart keeps its size if the window can grow.
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
