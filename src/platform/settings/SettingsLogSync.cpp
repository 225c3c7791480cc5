#include "platform/settings/SettingsLogSync.h"

#include "platform/SyncToDisk.h"
#include "platform/settings/SettingsFileProbe.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace zantroq {

CSettingsLogSync::CSettingsLogSync(std::string file) : m_file(std::move(file)) {}

CSettingsLogSync::~CSettingsLogSync()
{
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void CSettingsLogSync::OnWritten()
{
    const std::lock_guard lock(m_mutex);
    m_pending = true;
    if (m_running)
        return;
    // The thread of an earlier write has left its loop and ends without taking the mutex again.
    if (m_thread.joinable())
        m_thread.join();
    try {
        m_thread = std::thread([this] { Run(); });
        m_running = true;
    } catch (const std::system_error&) { // without a thread the writer waits for the disk
        m_pending = false;
        Sync();
    }
}

void CSettingsLogSync::Run()
{
    std::unique_lock lock(m_mutex);
    while (m_pending) {
        m_wake.wait_for(lock, Delay, [this] { return m_ending; });
        m_pending = false;
        lock.unlock();
        Sync();
        lock.lock();
    }
    m_running = false;
}

// Opens the log, not the database file: closing any descriptor of the database file would drop the locks that
// SQLite holds on it in this process. A process that moves pages from the log to the database file syncs both.
void CSettingsLogSync::Sync() const
{
    const std::string followed = FollowedPath(m_file);
    SyncFile(followed + "-wal");
    SyncFolder(std::filesystem::path(followed).parent_path().string());
}

} // namespace zantroq
