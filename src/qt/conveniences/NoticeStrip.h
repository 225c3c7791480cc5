// A sentence over the panes with at most one button, in a line or two, as wide as the room that it is given.
// It moves nothing and takes no keyboard focus by itself. Chart window's thread.
#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;

namespace zantroq {

class CNoticeStrip : public QWidget
{
public:
    explicit CNoticeStrip(QWidget* parent);

    std::function<void()> OnPressed = [] {};

    // An empty sentence hides the strip, an empty button the button.
    void Tell(const QString& sentence, const QString& button);
    // Takes its place at the top of a room in the parent's pixels.
    void PlaceIn(const QRect& room);

    QString Sentence() const;
    QPushButton& Button() { return *m_button; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override; // keeps it from the panes below

private:
    QLabel* m_sentence;
    QPushButton* m_button;
};

} // namespace zantroq
