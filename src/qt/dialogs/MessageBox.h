// The desktop's message boxes, over the window of a widget. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

class QWidget;

namespace zantroq {

class CMessageBox : public IMessageBox
{
public:
    explicit CMessageBox(QWidget& parent) : m_parent(parent) {}
    // Every box has a title, and Enter does not delete. Off at the start.
    void SetConveniences(bool on) { m_conveniences = on; }
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                  BoxIcon icon) override;

private:
    QWidget& m_parent;
    bool m_conveniences = false;
};

} // namespace zantroq
