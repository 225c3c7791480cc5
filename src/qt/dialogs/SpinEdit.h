// An edit with arrows: two controls in one widget. The edit accepts any text unless it is strict; the arrows
// change the whole number at its beginning within a range. Chart window's thread.
#pragma once

#include <QAbstractSpinBox>

namespace zantroq {

class CSpinEdit : public QAbstractSpinBox
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(bool strict READ Strict WRITE SetStrict)

public:
    explicit CSpinEdit(QWidget* parent = nullptr);

    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }
    bool Strict() const { return m_strict; }
    void SetMinimum(int minimum) { m_minimum = minimum; }
    void SetMaximum(int maximum) { m_maximum = maximum; }
    // If strict, only a whole number in the range can be typed.
    void SetStrict(bool strict) { m_strict = strict; }

    QString Text() const;
    void SetText(const QString& text); // reports nothing
    bool
    TypeText(const QString&
                 text); // types like a person; returns false and changes nothing if the text cannot be typed
    void SelectAll() { selectAll(); }

    void stepBy(int steps) override;
    QValidator::State validate(QString& text, int& position) const override;
    void fixup(QString& text) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void TextChanged();

protected:
    StepEnabled stepEnabled() const override;

private:
    int Value() const; // number at the beginning of the text, 0 if there is none

    int m_minimum = 1, m_maximum = 999;
    bool m_strict = false;
};

} // namespace zantroq
