// A button that paints its whole face in the color it holds; pressing it opens the desktop's color dialog on
// that color. Chart window's thread.
#pragma once

#include <QAbstractButton>
#include <QColor>

namespace zantroq {

class CButtonForColor : public QAbstractButton
{
    Q_OBJECT

public:
    explicit CButtonForColor(QWidget* parent = nullptr);

    QColor Color() const { return m_color; }
    void SetColor(const QColor& color); // reports nothing
    void Choose(const QColor& color);   // as if the color dialog had been closed with OK on it

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void ColorChosen();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void AskForColor();

    QColor m_color = Qt::black;
};

} // namespace zantroq
