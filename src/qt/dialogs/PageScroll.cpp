#include "qt/dialogs/PageScroll.h"

namespace zantroq {

CPageScroll::CPageScroll(QWidget* page)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus); // the Tab key goes through the page's controls alone
    setWidget(page);
    // The page has the background of the sheet. setWidget gave it one of its own.
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

QSize CPageScroll::sizeHint() const
{
    return widget()->sizeHint();
}

} // namespace zantroq
