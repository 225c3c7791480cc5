// A key in the user's settings file: CSettingsFile with its failures silenced.
#include "platform/SettingsFile.h"
#include "platform/SettingsPath.h"

#include <chrono>
#include <mutex>

namespace zantroq {
namespace {

using Clock = std::chrono::steady_clock;

class CSettingsKeySqlite final : public ISettingsKey
{
public:
    CSettingsKeySqlite(std::string file, std::string key)
        : m_key(std::move(key)), m_file(std::move(file), Patience)
    {
    }

    CSettingRead Read(std::string_view name) override
    {
        const auto value = Try([&] { return m_file.Read(m_key, name); });
        if (!value)
            return CSettingRead::Unreadable();
        return *value ? CSettingRead(**value) : CSettingRead::Missing();
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        return Try([&] { return m_file.Write(m_key, name, value), true; }).has_value();
    }
    bool Delete(std::string_view name) override
    {
        return Try([&] { return m_file.Delete(m_key, name); }).value_or(false);
    }
    std::vector<std::pair<std::string, SettingValue>> List() override
    {
        const SettingValues values = Try([&] { return m_file.List(m_key); }).value_or(SettingValues());
        return {values.begin(), values.end()};
    }

private:
    // A window reads some two hundred values at its start. If the file is locked for good only the first of
    // them may wait.
    static constexpr std::chrono::milliseconds Patience{3000};
    static constexpr std::chrono::seconds Sulk{10};

    // Nothing when the file would not have it.
    template<class Call> auto Try(Call call) -> std::optional<decltype(call())>
    {
        const std::lock_guard lock(m_mutex);
        try {
            m_file.SetPatience(Clock::now() < m_noWaitUntil ? std::chrono::milliseconds{0} : Patience);
            std::optional<decltype(call())> result(std::in_place, call());
            m_noWaitUntil = {};
            return result;
        } catch (const CSettingsFileError& error) {
            if (error.Problem == SettingsProblem::Locked)
                m_noWaitUntil = Clock::now() + Sulk;
            return std::nullopt;
        }
    }

    const std::string m_key;
    std::mutex m_mutex;
    CSettingsFile m_file;
    Clock::time_point m_noWaitUntil{};
};

} // namespace

std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string keyPath)
{
    return OpenSettingsKey(SettingsFilePath(), std::move(keyPath));
}

std::unique_ptr<ISettingsKey> OpenSettingsKey(std::string filePath, std::string keyPath)
{
    return std::make_unique<CSettingsKeySqlite>(std::move(filePath), std::move(keyPath));
}

} // namespace zantroq
