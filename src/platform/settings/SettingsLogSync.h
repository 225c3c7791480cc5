// Syncs the log of a settings file to the disk a moment after a write, on a thread of its own, so that the
// thread that writes never waits for the disk.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace zantroq {

// Any thread.
class CSettingsLogSync
{
public:
    // `file` is the settings file. Symbolic links are followed at each sync.
    explicit CSettingsLogSync(std::string file);
    // Syncs what is still pending, then returns.
    ~CSettingsLogSync();
    CSettingsLogSync(const CSettingsLogSync&) = delete;
    CSettingsLogSync& operator=(const CSettingsLogSync&) = delete;

    // Call after a write. The write is synced within half a second plus the time that the disk takes; writes
    // in between share the sync.
    void OnWritten();

private:
    static constexpr std::chrono::milliseconds Delay{500};

    void Run();
    void Sync() const;

    const std::string m_file;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::thread m_thread;
    // All under m_mutex. The thread runs while a write is pending and then ends: an idle window has no thread.
    bool m_pending = false, m_running = false, m_ending = false;
};

} // namespace zantroq
