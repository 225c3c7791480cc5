// A button filled with its color; pressing it opens the desktop's color dialog. Chart window's thread.
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
    void SetColor(const QColor& color); // emits no signal
    void Choose(const QColor& color);   // as if the color were chosen in the color dialog

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
