// A preview of two candles, grid, price bar and a label in the chosen colors. Chart window's thread.
#pragma once

#include <QColor>
#include <QWidget>

namespace zantroq {

struct sPreviewColors
{
    QColor Background, Grid, Label, Data, Up, Down, PriceBar;
};

class CCandlePreview : public QWidget
{
    Q_OBJECT

public:
    explicit CCandlePreview(QWidget* parent = nullptr) : QWidget(parent) {}

    void SetColors(const sPreviewColors& colors);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    sPreviewColors m_colors;
};

} // namespace zantroq
