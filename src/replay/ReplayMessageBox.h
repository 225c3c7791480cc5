// A message box that a script answers: first the queued answers in order, then no, or ok if there is no "no".
// Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <deque>

namespace zantroq {

class CReplayMessageBox : public IMessageBox
{
public:
    void Queue(BoxAnswer answer) { m_answers.push_back(answer); }
    // A queued answer that the box does not offer is replaced by the nearest: ok by yes, cancel by no; every
    // answer by ok if ok is the only button.
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                  BoxIcon icon) override;

private:
    std::deque<BoxAnswer> m_answers;
};

} // namespace zantroq
