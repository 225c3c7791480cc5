// What the pages of the settings sheet have in common. A page copies its settings in when it starts, follows
// what the user does to its controls, checks itself on OK, and copies its settings out of an accepted sheet.
// It never touches the chart. Chart window's thread.
#pragma once

#include "platform/Form.h"
#include "platform/WindowServices.h"
#include "settings/ChartSettings.h"

#include <optional>
#include <string>

namespace zantroq {

inline constexpr const char* ErrorCaption = "Error";
inline constexpr const char* InvalidSettingCaption = "Invalid Setting";

// Why a page does not let the sheet close.
struct sRefusal
{
    std::string Text;
    std::string Caption = ErrorCaption;
    int Control = 0; // the field that the text names
};

class ISettingPage : public IFormEvents
{
public:
    virtual const char* Title() const = 0;
    // Fills the controls. Called once, before any other.
    virtual void Start(const sChartSettings& settings) = 0;
    // The OK handler.
    virtual std::optional<sRefusal> Accept() = 0;
    // Puts the page's own settings into the record and leaves the rest as it is. After Accept.
    virtual void CopyTo(sChartSettings& settings) const = 0;
};

// A stored switch stays as it is, whatever number stands for on, unless it was turned.
void SetFlag(std::int32_t& flag, bool on);

// A whole number behind an edit that takes any text. What the user did not touch keeps its value, also where
// its text would read as another.
class CNumberField
{
public:
    explicit CNumberField(int control) : m_control(control) {}
    void Show(IForm& form, std::int32_t value);
    // What the text means, as text-to-integer conversion reads it, held to what can be stored.
    std::int32_t Read(const IForm& form) const;
    std::int32_t Shown() const { return m_value; }

private:
    int m_control;
    std::int32_t m_value = 0;
    std::string m_shown;
};

} // namespace zantroq
