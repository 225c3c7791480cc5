#include "window/MessageRecorder.h"

namespace zantroq {

const char* AnswerName(BoxAnswer answer)
{
    switch (answer) {
    case BoxAnswer::Cancel:
        return "cancel";
    case BoxAnswer::Yes:
        return "yes";
    case BoxAnswer::No:
        return "no";
    default:
        return "ok";
    }
}

BoxAnswer CMessageRecorder::Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                                BoxIcon icon)
{
    const BoxAnswer answer = m_box.Ask(text, caption, buttons, icon);
    m_boxes.push_back({caption, text, answer});
    return answer;
}

} // namespace zantroq
