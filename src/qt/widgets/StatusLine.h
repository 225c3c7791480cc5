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
    // Whether the last trade's part grows with its text, at the cost of the first part, and shows the text of
    // SetLastTrade where that is not empty. Off at the start.
    void SetGrowing(bool growing);
    void SetLastTrade(const QString& text);
    // What the last part shows, and where.
    QString LastTrade() const;
    QRect Room(int part) const;
    // Whether the last trade is known to be old: it is written in grey then.
    void SetStale(bool stale);
    bool Stale() const { return m_stale; }
    // The position of a part in a line of this width.
    static QRect PartRect(int part, int width);
    // Shortens a last trade such as "101.25 x 1234567" to fit: with the size as "1.2M", or without the size.
    // A cut number would mislead.
    static QString ShortTrade(const QString& text, const QFont& font, int width);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    std::array<QString, 3> m_texts;
    QString m_lastTrade;
    bool m_stale = false, m_growing = false;
};

} // namespace zantroq
