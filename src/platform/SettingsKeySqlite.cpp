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

    std::optional<SettingValue> Read(std::string_view name) override
    {
        return Reading<std::optional<SettingValue>>([&] { return m_file.Read(m_key, name); });
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        return Writing([&] {
            m_file.Write(m_key, name, value);
            return true;
        });
    }
    bool Delete(std::string_view name) override
    {
        return Writing([&] { return m_file.Delete(m_key, name); });
    }
    std::vector<std::pair<std::string, SettingValue>> List() override
    {
        using Values = std::vector<std::pair<std::string, SettingValue>>;
        return Reading<Values>([&] {
            const SettingValues values = m_file.List(m_key);
            return Values(values.begin(), values.end());
        });
    }

private:
    // A window reads some two hundred values at its start. If the file is locked for good only the first of
    // them may wait.
    static constexpr std::chrono::milliseconds Patience{3000};
    static constexpr std::chrono::seconds Sulk{10};

    template<class Result, class Call> Result Reading(Call call)
    {
        const std::lock_guard lock(m_mutex);
        if (std::optional<Result> result = Try<Result>(call))
            return std::move(*result);
        // Whoever found a value missing writes its default next, and the value may be there all the same.
        m_noWriteUntil = Clock::now() + Sulk;
        return {};
    }

    template<class Call> bool Writing(Call call)
    {
        const std::lock_guard lock(m_mutex);
        return Clock::now() >= m_noWriteUntil && Try<bool>(call).value_or(false);
    }

    // Nothing when the file would not have it.
    template<class Result, class Call> std::optional<Result> Try(Call call)
    {
        try {
            m_file.SetPatience(Clock::now() < m_noWaitUntil ? std::chrono::milliseconds{0} : Patience);
            std::optional<Result> result(std::in_place, call());
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
    Clock::time_point m_noWaitUntil{}, m_noWriteUntil{};
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
