// A settings key for changes that the user makes. Such a change must not be lost because another process
// holds the file locked at that moment: a change that the wrapped key rejects is kept and tried again before
// the next change, at Retry, and in the destructor. Not for defaults: written late, they would overwrite
// values stored meanwhile. Window's thread.
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
    // Makes a change to the wrapped key. Returns false if the key rejected it; it is called again later then.
    using Change = std::function<bool(ISettingsKey& key)>;

    explicit CRetryingKey(ISettingsKey& key) : m_key(key) {} // the key must outlive this one
    ~CRetryingKey() override { CarryOut(); }

    // Makes a change, after the kept changes, or keeps it. It replaces a kept change with the same `subject`.
    // Returns true if the change is stored.
    bool Make(std::string subject, Change change);

    // Makes the kept changes in order, up to the first that is rejected again. Does not wait for other
    // processes, because no user is waiting for the result.
    void Retry();
    bool IsWaiting() const { return !m_waiting.empty(); }

    // Reads return stored values; kept changes are not visible.
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
    std::vector<sWaiting> m_waiting; // in the order in which they were made
};

} // namespace zantroq
