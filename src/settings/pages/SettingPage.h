// The interface of the pages of the settings sheet. A page copies its settings into its controls at the
// start, reacts to the user, checks its input on OK, and copies its settings out of an accepted sheet. It
// never accesses the chart. Chart window's thread.
#pragma once

#include "platform/Form.h"
#include "platform/WindowServices.h"
#include "settings/ChartSettings.h"

#include <optional>
#include <string>

namespace zantroq {

inline constexpr const char* ErrorCaption = "Error";
inline constexpr const char* InvalidSettingCaption = "Invalid Setting";

// The reason why a page does not let the sheet close.
struct sRefusal
{
    std::string Text;
    std::string Caption = ErrorCaption;
    int Control = 0; // the field that the text refers to
};

class ISettingPage : public IFormEvents
{
public:
    virtual const char* Title() const = 0;
    // Fills the controls. Must be called once, before all other functions.
    virtual void Start(const sChartSettings& settings) = 0;
    // Handles OK: returns a refusal if the page's input is invalid.
    virtual std::optional<sRefusal> Accept() = 0;
    // Copies the page's settings into the record and leaves other settings unchanged. Call after a successful
    // Accept.
    virtual void CopyTo(sChartSettings& settings) const = 0;
};

// Changes a stored switch only if it was turned: 'on' may be stored as any number but 0.
void SetFlag(std::int32_t& flag, bool on);

// A whole number in an edit that accepts any text. A field that the user did not change keeps its value, even
// if its text would convert to another number.
class CNumberField
{
public:
    explicit CNumberField(int control) : m_control(control) {}
    void Show(IForm& form, std::int32_t value);
    // The value of the text, converted like atoi and limited to what can be stored.
    std::int32_t Read(const IForm& form) const;
    std::int32_t Shown() const { return m_value; }

private:
    int m_control;
    std::int32_t m_value = 0;
    std::string m_shown;
};

} // namespace zantroq
