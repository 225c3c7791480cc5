// What is left of the settings file when the power fails. The system calls of the programs are recorded by a
// preloaded library and played back onto a model of a disk, cut after each call.
#include "RecordedDisk.h"
#include "RunProcess.h"
#include "TemporaryFolder.h"
#include "platform/settings/SettingsFile.h"

#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <thread>

namespace zantroq {
namespace {

struct SettingsPower : testing::Test
{
    test::CTemporaryFolder Folder;
    const std::string Disk = Folder.File("disk");
    const std::string Store = Disk + "/config/zantroq/settings.db";
    const std::string Record = Folder.File("record");

    SettingsPower() { std::filesystem::create_directory(Disk); }

    // Replaces the calling child process with the program.
    int Start(const char* program, const std::vector<std::string>& words) const
    {
        ::setenv("ZANTROQ_SETTINGS", Store.c_str(), 1);
        ::setenv("RECORD_CALLS", Record.c_str(), 1);
        ::setenv("LD_PRELOAD", RECORD_CALLS_LIBRARY, 1);
        ::setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
        std::vector<char*> argv{const_cast<char*>(program)};
        for (const auto& word : words)
            argv.push_back(const_cast<char*>(word.c_str()));
        argv.push_back(nullptr);
        ::execv(program, argv.data());
        return 127;
    }

    // The values that a user finds once the power is back.
    static SettingValues Found(const std::string& file) { return CSettingsFile(file).List("K"); }

    struct sStep
    {
        std::vector<std::string> Words;
        SettingValues After;
    };

    // From the end of its program on, each step is stored completely; before that, completely or not at all.
    void ExpectEveryCutKeepsFinishedSteps(const std::vector<sStep>& steps)
    {
        std::vector<std::size_t> ends;
        for (const sStep& step : steps) {
            ASSERT_EQ(test::WaitFor(test::StartChild([&] { return Start(SETTINGS_PROGRAM, step.Words); })), 0)
                << step.Words[2];
            ends.push_back(test::ReadRecord(Record).size());
        }
        const auto calls = test::ReadRecord(Record);
        ASSERT_GT(calls.size(), 10 * steps.size()) << "the record is not complete";
        const std::string rest = Folder.File("rest");
        test::CRecordedDisk disk;
        std::size_t finished = 0;
        for (std::size_t cut = 0; cut <= calls.size(); ++cut) {
            if (cut > 0)
                disk.Play(calls[cut - 1]);
            while (finished < steps.size() && ends[finished] <= cut)
                ++finished;
            for (const auto loss :
                 {test::PowerLoss::TakesAll, test::PowerLoss::TakesSome, test::PowerLoss::TakesNone}) {
                disk.LosePower(loss, Disk, rest);
                SettingValues found;
                try {
                    found = Found(rest + "/config/zantroq/settings.db");
                } catch (const CSettingsFileError& error) {
                    FAIL() << "cut " << cut << " of " << calls.size() << ": " << error.what();
                }
                const bool before = found == (finished > 0 ? steps[finished - 1].After : SettingValues());
                const bool after = finished < steps.size() && found == steps[finished].After;
                ASSERT_TRUE(before || after) << "cut " << cut << " of " << calls.size() << ", " << finished
                                             << " steps finished, loss " << static_cast<int>(loss);
            }
        }
    }

    std::vector<sStep> AllCommands()
    {
        test::PutFile(Folder.File("in.json"),
                      R"({"K": {"b": {"type": "sz", "value": "two"}, "c": {"type": "dword", "value": 3}}})");
        const std::string one = "one", two = "two";
        return {{{"--key", "K", "set", "a", "one"}, {{"a", one}}},
                {{"--key", "K", "set", "b", "one"}, {{"a", one}, {"b", one}}},
                {{"--key", "K", "import", Folder.File("in.json")}, {{"a", one}, {"b", two}, {"c", 3u}}},
                {{"--key", "K", "delete", "a"}, {{"b", two}, {"c", 3u}}},
                {{"--key", "K", "reset", "--yes"}, {}},
                {{"--key", "K", "set", "a", "two"}, {{"a", two}}}};
    }
};

// Holds the settings file open, as a window does.
class CHolder
{
public:
    explicit CHolder(const std::string& file)
    {
        if (::pipe(m_opened) != 0 || ::pipe(m_end) != 0)
            throw std::runtime_error("no pipe");
        m_process = test::StartChild([&] {
            ::close(m_end[1]);
            CSettingsFile held(file);
            held.List("K");
            char byte = 0;
            return ::write(m_opened[1], &byte, 1) == 1 && ::read(m_end[0], &byte, 1) == 0 ? 0 : 1;
        });
        char byte = 0;
        if (::read(m_opened[0], &byte, 1) != 1)
            throw std::runtime_error("the file could not be held");
    }
    ~CHolder()
    {
        ::close(m_end[1]);
        EXPECT_EQ(test::WaitFor(m_process), 0);
        for (const int descriptor : {m_opened[0], m_opened[1], m_end[0]})
            ::close(descriptor);
    }

private:
    int m_opened[2], m_end[2];
    pid_t m_process = 0;
};

} // namespace

TEST_F(SettingsPower, AFinishedCommandSurvivesALossOfPower)
{
    ExpectEveryCutKeepsFinishedSteps(AllCommands());
}

// Regression: while another process holds the file open, the log remains when a program ends, and a finished
// write stayed in it without being synced.
TEST_F(SettingsPower, AFinishedCommandSurvivesWhileAnotherProcessHoldsTheFile)
{
    const auto steps = AllCommands();
    ASSERT_EQ(test::WaitFor(test::StartChild([&] { return Start(SETTINGS_PROGRAM, steps[0].Words); })), 0);
    const CHolder holder(Store);
    ExpectEveryCutKeepsFinishedSteps(steps);
}

// The window's thread does not wait for the disk; a write reaches the disk without another call.
TEST_F(SettingsPower, AWriteOfAWindowReachesTheDiskWhileTheWindowIsIdle)
{
    ASSERT_EQ(test::WaitFor(test::StartChild([&] {
                  return Start(SETTINGS_PROGRAM, {"--key", "K", "set", "a", "one"});
              })),
              0);
    const pid_t window = test::StartChild([&] { return Start(SETTINGS_WRITER, {"K", "a", "two"}); });
    const std::string rest = Folder.File("rest");
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    SettingValues found;
    do {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        test::CRecordedDisk disk;
        for (const auto& call : test::ReadRecord(Record))
            disk.Play(call);
        disk.LosePower(test::PowerLoss::TakesAll, Disk, rest);
        found = Found(rest + "/config/zantroq/settings.db");
    } while (found != SettingValues{{"a", std::string("two")}} && std::chrono::steady_clock::now() < end);
    EXPECT_EQ(found, (SettingValues{{"a", std::string("two")}}));
    EXPECT_EQ(::kill(window, SIGKILL), 0);
    EXPECT_EQ(test::WaitFor(window), 1000 + SIGKILL);
}

} // namespace zantroq
