// The status bar: three parts in a line of 20 pixels, the two right parts narrow. A text that does not fit is
// shortened; the tooltip of the part shows all of it. Chart window's thread.
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
    // Shortens a last trade such as "101.25 x 1234567" to fit: with the size as "1.2M", or without the size.
    // A cut number would mislead.
    static QString ShortTrade(const QString& text, const QFont& font, int width);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    std::array<QString, 3> m_texts;
};

} // namespace zantroq
