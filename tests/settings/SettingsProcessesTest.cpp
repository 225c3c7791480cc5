// Several processes and threads on one file, and processes that are killed.
#include "RunProcess.h"
#include "TemporaryFolder.h"
#include "platform/settings/SettingsFile.h"
#include "settings/SettingsLoader.h"

#include <gtest/gtest.h>
#include <thread>

namespace zantroq {
namespace {

using test::CTemporaryFolder;

} // namespace

TEST(SettingsProcesses, NoWriteIsLostBetweenProcessesThatCreateTheFileTogether)
{
    const CTemporaryFolder folder;
    const std::string path = folder.File("new/settings.db");
    constexpr int Processes = 4, Writes = 100;
    std::vector<pid_t> children;
    for (int p = 0; p < Processes; ++p)
        children.push_back(test::StartChild([&, p] {
            const auto key = OpenSettingsKey(path, "K");
            int failed = 0;
            for (int i = 0; i < Writes; ++i)
                failed += !key->Write("p" + std::to_string(p) + "." + std::to_string(i),
                                      static_cast<std::uint32_t>(i));
            return failed;
        }));
    for (const pid_t child : children)
        EXPECT_EQ(test::WaitFor(child), 0);
    EXPECT_EQ(CSettingsFile(path).List("K").size(), std::size_t(Processes * Writes));
}

// Reads and writes of the same values while the file is created: none may fail because of the others.
TEST(SettingsProcesses, WindowsThatStartTogetherOnAFreshFileLeaveAllDefaults)
{
    std::size_t expected = 0;
    {
        const auto memory = MakeMemorySettingsKey();
        LoadChartSettings(*memory, "20260102");
        expected = memory->List().size();
    }
    const CTemporaryFolder folder;
    const std::string path = folder.File("new/settings.db");
    std::vector<pid_t> children;
    for (int p = 0; p < 4; ++p)
        children.push_back(test::StartChild([&] {
            const auto key = OpenSettingsKey(path, ChartSettingsKey);
            LoadChartSettings(*key, "20260102");
            return key->List().size() == expected ? 0 : 1;
        }));
    for (const pid_t child : children)
        EXPECT_EQ(test::WaitFor(child), 0);
}

TEST(SettingsProcesses, EveryFinishedWriteOfAKilledProcessIsThere)
{
    const CTemporaryFolder folder;
    const std::string path = folder.File("settings.db");
    std::uint32_t expectedAtLeast = 0;
    for (int round = 0; round < 5; ++round) {
        int pipe[2];
        ASSERT_EQ(::pipe(pipe), 0);
        const pid_t child = test::StartChild([&] {
            const auto key = OpenSettingsKey(path, "K");
            for (std::uint32_t i = expectedAtLeast + 1;; ++i) {
                // Two values in one transaction must never be seen apart.
                if (!key->Write("last", i) || ::write(pipe[1], &i, sizeof i) != sizeof i)
                    return 1;
                CSettingsFile(path).WriteAll({{"K", {{"left", i}, {"right", i}}}});
            }
        });
        ::close(pipe[1]);
        for (int i = 0; i < 40; ++i) {
            std::uint32_t written = 0;
            ASSERT_EQ(::read(pipe[0], &written, sizeof written), ssize_t(sizeof written));
            expectedAtLeast = written;
        }
        ::kill(child, SIGKILL);
        for (std::uint32_t written = 0; ::read(pipe[0], &written, sizeof written) == ssize_t(sizeof written);)
            expectedAtLeast = written;
        ::close(pipe[0]);
        EXPECT_EQ(test::WaitFor(child), 1000 + SIGKILL);

        CSettingsFile file(path);
        const auto last = file.Read("K", "last");
        ASSERT_TRUE(last);
        EXPECT_GE(std::get<std::uint32_t>(*last), expectedAtLeast);
        expectedAtLeast = std::get<std::uint32_t>(*last);
        EXPECT_EQ(file.Read("K", "left"), file.Read("K", "right"));
    }
}

TEST(SettingsProcesses, ThreadsMayShareAKey)
{
    const CTemporaryFolder folder;
    const auto key = OpenSettingsKey(folder.File("settings.db"), "K");
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&, t] {
            for (int i = 0; i < 50; ++i) {
                const std::string name = std::to_string(t) + "." + std::to_string(i);
                EXPECT_TRUE(key->Write(name, static_cast<std::uint32_t>(i)));
                EXPECT_EQ(key->Read(name), SettingValue(static_cast<std::uint32_t>(i)));
            }
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(key->List().size(), 200u);
}

} // namespace zantroq
