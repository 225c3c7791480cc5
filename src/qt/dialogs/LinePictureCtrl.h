// A sample line in a color and a width, on the background of input fields. Chart window's thread.
#pragma once

#include <QColor>
#include <QWidget>

namespace zantroq {

class CLinePictureCtrl : public QWidget
{
    Q_OBJECT

public:
    explicit CLinePictureCtrl(QWidget* parent = nullptr);

    void SetLine(const QColor& color, int width); // the width in pixels
    QColor Color() const { return m_color; }
    int LineWidth() const { return m_width; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color = Qt::black;
    int m_width = 1;
};

} // namespace zantroq
