#include "settings/pages/SettingPage.h"

#include "platform/parse/LeadingNumber.h"
#include "settings/StoredNumber.h"

#include <algorithm>

namespace zantroq {

void SetFlag(std::int32_t& flag, bool on)
{
    if ((flag != 0) != on)
        flag = on ? 1 : 0;
}

void CNumberField::Show(IForm& form, std::int32_t value)
{
    m_value = value;
    m_shown = std::to_string(value);
    form.SetText(m_control, m_shown);
}

std::int32_t CNumberField::Read(const IForm& form) const
{
    const std::string text = form.Text(m_control);
    return text == m_shown ? m_value : std::clamp(TextToInt(text), LeastStoredInt, GreatestStoredInt);
}

} // namespace zantroq
