// A settings key for what the user himself changes. Such a change must not be lost because another process
// holds the file at that moment, so what the key below would not have is kept, and tried again before the
// next change, at Retry, and when this object goes. Defaults do not belong here: written late, they would
// take the place of what is stored by then. Lives on the chart window's thread.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zantroq {

class CRetryingKey final : public ISettingsKey
{
public:
    // Carries a change out on the key below; false when that would not have it, and then it is called again
    // later.
    using Change = std::function<bool(ISettingsKey& key)>;

    explicit CRetryingKey(ISettingsKey& key) : m_key(key) {} // the key must outlive this one
    ~CRetryingKey() override { CarryOut(); }

    // Makes a change now or keeps it, behind those kept already. It takes the place of a kept one of the same
    // subject. The answer is whether it is stored.
    bool Make(std::string subject, Change change);

    // Carries out what is kept, in order, up to the first that is refused again. Waits for no other process:
    // nobody has asked for it just now.
    void Retry();
    bool IsWaiting() const { return !m_waiting.empty(); }

    // Reading tells what is stored, not what is kept.
    CSettingRead Read(std::string_view name) override { return m_key.Read(name); }
    bool Write(std::string_view name, const SettingValue& value) override;
    bool Delete(std::string_view name) override;
    std::vector<std::pair<std::string, SettingValue>> List() override { return m_key.List(); }
    void SetWaiting(bool waiting) override { m_key.SetWaiting(waiting); }

private:
    struct sWaiting
    {
        std::string Subject;
        Change Carry;
    };

    void CarryOut();

    ISettingsKey& m_key;
    std::vector<sWaiting> m_waiting; // in the order of the changes
};

} // namespace zantroq
