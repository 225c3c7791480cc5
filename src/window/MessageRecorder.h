// Passes message boxes to the desktop and records each with its answer. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <string>
#include <vector>

namespace zantroq {

struct sAskedBox
{
    std::string Caption, Text;
    BoxAnswer Answer = BoxAnswer::Ok;
};

const char* AnswerName(BoxAnswer answer); // "ok", "cancel", "yes", "no"

class CMessageRecorder : public IMessageBox
{
public:
    explicit CMessageRecorder(IMessageBox& box) : m_box(box) {}
    BoxAnswer Ask(const std::string& text, const std::string& caption, BoxButtons buttons,
                  BoxIcon icon) override;
    const std::vector<sAskedBox>& Boxes() const { return m_boxes; }

private:
    IMessageBox& m_box;
    std::vector<sAskedBox> m_boxes;
};

} // namespace zantroq
