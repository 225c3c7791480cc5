// The symbol box: an edit field with a list of the last symbols. Typed letters become capitals; Enter draws.
// Only actions of the user are reported. Chart window's thread.
#pragma once

#include "platform/WindowServices.h"

#include <QComboBox>

#include <functional>

namespace zantroq {

class CSymbolBox : public QComboBox, public ISymbolBox
{
public:
    explicit CSymbolBox(QWidget* parent);

    std::function<void()> OnChanged; // text or selection
    std::function<void()> OnEnter;
    // Blanks before and after the text count for nothing, a pick from the list draws as Enter does, and Escape
    // is reported. Off at the start.
    void SetConveniences(bool on) { m_conveniences = on; }
    std::function<void()> OnEscape = [] {};
    // Types a text into the box like a user, replacing its contents.
    void TypeText(const QString& text);

    std::string Text() const override;
    void SetText(const std::string& text) override;
    std::vector<std::string> Items() const override;
    void SetItems(const std::vector<std::string>& items) override;
    int Selection() const override { return m_selection; }
    void Select(int item) override;
    void FocusAtEnd() override;

    void showPopup() override;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void OnEdited(const QString& typed);

    bool m_conveniences = false;
    bool m_picking = false; // the list was opened, and no key was pressed in the box since
    int m_selection = -1;   // typing clears it, even if the list contains the text
};

} // namespace zantroq
