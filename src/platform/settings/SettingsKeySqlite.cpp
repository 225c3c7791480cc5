// A key of the user's settings file: CSettingsFile without error reports.
#include "platform/settings/SettingsFile.h"
#include "platform/settings/SettingsLogSync.h"
#include "platform/settings/SettingsPath.h"

#include <chrono>
#include <mutex>

namespace zantroq {
namespace {

using Clock = std::chrono::steady_clock;

class CSettingsKeySqlite final : public ISettingsKey
{
public:
    CSettingsKeySqlite(std::string file, std::string key)
        : m_key(std::move(key)), m_logSync(file), m_file(std::move(file), Patience, Durability::Crash)
    {
    }

    CSettingRead Read(std::string_view name) override
    {
        const auto value = Try(Intent::Read, [&] { return m_file.Read(m_key, name); });
        if (!value)
            return CSettingRead::Unreadable();
        return *value ? CSettingRead(**value) : CSettingRead::Missing();
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        return Try(Intent::Write, [&] { return m_file.Write(m_key, name, value), true; }).has_value();
    }
    bool Delete(std::string_view name) override
    {
        return Try(Intent::Write, [&] { return m_file.Delete(m_key, name); }).value_or(false);
    }
    std::vector<std::pair<std::string, SettingValue>> List() override
    {
        const SettingValues values =
            Try(Intent::Read, [&] { return m_file.List(m_key); }).value_or(SettingValues());
        return {values.begin(), values.end()};
    }
    void SetWaiting(bool waiting) override
    {
        const std::lock_guard lock(m_mutex);
        m_waiting = waiting;
    }

private:
    // A window reads some two hundred values when it starts. If the file stays locked, only the first read
    // may wait.
    static constexpr std::chrono::milliseconds Patience{3000};
    static constexpr std::chrono::seconds Sulk{10};

    enum class Intent
    {
        Read,
        Write
    };

    // Runs `call`; returns nothing if it failed.
    template<class Call> auto Try(Intent intent, Call call) -> std::optional<decltype(call())>
    {
        const std::lock_guard lock(m_mutex);
        auto& noWaitUntil = intent == Intent::Read ? m_noReadWaitUntil : m_noWriteWaitUntil;
        try {
            const bool waits = m_waiting && Clock::now() >= noWaitUntil;
            m_file.SetPatience(waits ? Patience : std::chrono::milliseconds{0});
            std::optional<decltype(call())> result(std::in_place, call());
            m_noReadWaitUntil = {};
            // Reads succeed while another process is writing, so a read says nothing about the next write.
            if (intent == Intent::Write) {
                m_noWriteWaitUntil = {};
                m_logSync.OnWritten();
            }
            return result;
        } catch (const CSettingsFileError& error) {
            if (error.Problem == SettingsProblem::Locked)
                m_noReadWaitUntil = m_noWriteWaitUntil = Clock::now() + Sulk;
            return std::nullopt;
        }
    }

    const std::string m_key;
    std::mutex m_mutex;
    CSettingsLogSync m_logSync; // outlives m_file, whose end may write as well
    CSettingsFile m_file;
    bool m_waiting = true;
    Clock::time_point m_noReadWaitUntil{}, m_noWriteWaitUntil{};
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
