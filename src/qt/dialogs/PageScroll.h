// A page of a sheet that can be scrolled where the screen is too small for it. Elsewhere it takes the room that
// the page asks for, and shows no scroll bar. Chart window's thread.
#pragma once

#include <QScrollArea>

namespace zantroq {

class CPageScroll : public QScrollArea
{
public:
    // Takes the page.
    explicit CPageScroll(QWidget* page);

    QSize sizeHint() const override;
};

} // namespace zantroq
