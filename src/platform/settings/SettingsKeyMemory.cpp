#include "platform/settings/SettingsKey.h"

#include <map>
#include <mutex>

namespace zantroq {
namespace {

class CSettingsKeyMemory final : public ISettingsKey
{
public:
    CSettingRead Read(std::string_view name) override
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_values.find(name);
        return found == m_values.end() ? CSettingRead::Missing() : found->second;
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        const std::lock_guard lock(m_mutex);
        m_values.insert_or_assign(std::string(name), value);
        return true;
    }
    bool Delete(std::string_view name) override
    {
        const std::lock_guard lock(m_mutex);
        return m_values.erase(std::string(name)) > 0;
    }
    std::vector<std::pair<std::string, SettingValue>> List() override
    {
        const std::lock_guard lock(m_mutex);
        return {m_values.begin(), m_values.end()};
    }

private:
    std::mutex m_mutex;
    std::map<std::string, SettingValue, std::less<>> m_values;
};

} // namespace

std::unique_ptr<ISettingsKey> MakeMemorySettingsKey()
{
    return std::make_unique<CSettingsKeyMemory>();
}

} // namespace zantroq
