#include "settings/RetryingKey.h"

#include <algorithm>

namespace zantroq {

bool CRetryingKey::Make(std::string subject, Change change)
{
    std::erase_if(m_waiting, [&](const sWaiting& waiting) { return waiting.Subject == subject; });
    m_waiting.push_back({std::move(subject), std::move(change)});
    CarryOut();
    return m_waiting.empty();
}

void CRetryingKey::Retry()
{
    m_key.SetWaiting(false);
    CarryOut();
    m_key.SetWaiting(true);
}

void CRetryingKey::CarryOut()
{
    const auto refused =
        std::ranges::find_if(m_waiting, [&](const sWaiting& waiting) { return !waiting.Carry(m_key); });
    m_waiting.erase(m_waiting.begin(), refused);
}

bool CRetryingKey::Write(std::string_view name, const SettingValue& value)
{
    return Make(std::string(name),
                [name = std::string(name), value](ISettingsKey& key) { return key.Write(name, value); });
}

bool CRetryingKey::Delete(std::string_view name)
{
    const bool wasThere = static_cast<bool>(m_key.Read(name));
    const bool done = Make(std::string(name), [name = std::string(name)](ISettingsKey& key) {
        return key.Delete(name) || key.Read(name).Result() == ReadResult::Missing;
    });
    return wasThere && done;
}

} // namespace zantroq
