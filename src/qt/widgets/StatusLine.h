// The status bar: three parts in one line of 20 pixels, the two on the right narrow ones. A text that does
// not fit is shortened and is whole in the part's tooltip. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QWidget>

#include <array>

namespace zantroq {

class CStatusLine : public QWidget, public IStatusBar
{
public:
    static constexpr int LineHeight = 20;

    explicit CStatusLine(QWidget* parent);

    void SetPart(int part, const std::string& text) override;
    QString Part(int part) const { return m_texts.at(static_cast<std::size_t>(part)); }
    // Where a part stands in a line of this width.
    static QRect PartRect(int part, int width);
    // A last trade, "101.25 x 1234567", as far as it fits: with its size as "1.2M", or without it. Half a
    // number would mislead.
    static QString ShortTrade(const QString& text, const QFont& font, int width);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    std::array<QString, 3> m_texts;
};

} // namespace zantroq
