// A message box that a script answers: queued answers in order, then no, or ok where there is no "no". Chart
// window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <deque>

namespace zantroq {

class CReplayMessageBox : public IMessageBox
{
public:
    void Queue(BoxAnswer answer) { m_answers.push_back(answer); }
    // A queued answer that the box does not offer counts as the nearest: ok as yes, cancel as no, anything as
    // ok where ok is all.
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                  BoxIcon icon) override;

private:
    std::deque<BoxAnswer> m_answers;
};

} // namespace zantroq
