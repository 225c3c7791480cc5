// The status bar: three parts in one line of 20 pixels, the two on the right narrow ones. A text that does
// not fit ends in dots and is whole in the part's tooltip. Chart window's thread.
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

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    std::array<QString, 3> m_texts;
};

} // namespace zantroq
