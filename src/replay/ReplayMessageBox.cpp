#include "replay/ReplayMessageBox.h"

namespace zantroq {

BoxAnswer CReplayMessageBox::Ask(const std::string&, const std::string&, BoxButtons buttons, BoxIcon)
{
    BoxAnswer answer = buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
    if (!m_answers.empty()) {
        answer = m_answers.front();
        m_answers.pop_front();
    }
    if (buttons == BoxButtons::Ok)
        return BoxAnswer::Ok;
    return answer == BoxAnswer::Yes || answer == BoxAnswer::Ok ? BoxAnswer::Yes : BoxAnswer::No;
}

} // namespace zantroq
