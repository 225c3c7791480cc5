// Files that are refused, with their logs, and files that only look like it.
#include "SettingsFileFixture.h"

#include <sys/stat.h>

namespace zantroq {
namespace {

struct SettingsFileRefusal : test::sSettingsFileFixture
{
};

} // namespace

TEST_F(SettingsFileRefusal, AFileOfNoiseIsLeftAlone)
{
    test::PutFile(Path, "this is no data base, and it is long enough to be looked at as one: " +
                            std::string(5000, '?'));
    ExpectLeftAlone(SettingsProblem::Damaged);
}

TEST_F(SettingsFileRefusal, AFileWithABrokenPageIsLeftAlone)
{
    {
        CSettingsFile file(Path);
        for (int i = 0; i < 500; ++i)
            file.Write("K", "name " + std::to_string(i), std::string(50, 'x'));
    }
    std::string bytes = test::Contents(Path);
    ASSERT_GT(bytes.size(), 4096u * 4);
    bytes.replace(4096 * 2, 4096, std::string(4096, '\x5A'));
    test::PutFile(Path, bytes);
    ExpectLeftAlone(SettingsProblem::Damaged);
}

TEST_F(SettingsFileRefusal, AFileThatWasCutOffIsLeftAlone)
{
    {
        CSettingsFile file(Path);
        for (int i = 0; i < 500; ++i)
            file.Write("K", "name " + std::to_string(i), std::string(50, 'x'));
    }
    test::PutFile(Path, test::Contents(Path).substr(0, 4096 * 2));
    ExpectLeftAlone(SettingsProblem::Damaged);
}

TEST_F(SettingsFileRefusal, AnotherProgramsDataBaseIsLeftAlone)
{
    RunSql("CREATE TABLE setting(a); INSERT INTO setting VALUES(1)");
    ExpectLeftAlone(SettingsProblem::NotSettings);
}

// Regression: opening a file may play back a journal, and closing it moves the log into it; both happened to
// refused files.
TEST_F(SettingsFileRefusal, ABrokenPageKeepsTheLogAsItIs)
{
    MakeFileWithPendingLog();
    std::string bytes = test::Contents(Path);
    ASSERT_GT(bytes.size(), 4096u * 6);
    bytes.replace(4096 * 2, 4096 * 3, std::string(4096 * 3, '\x5A'));
    test::PutFile(Path, bytes);
    ExpectLeftAlone(SettingsProblem::Damaged);
}

TEST_F(SettingsFileRefusal, ABrokenHeaderKeepsTheLogAsItIs)
{
    MakeFileWithPendingLog();
    std::string bytes = test::Contents(Path);
    bytes.replace(0, 16, std::string(16, '\x5A'));
    test::PutFile(Path, bytes);
    ExpectLeftAlone(SettingsProblem::Damaged);
}

TEST_F(SettingsFileRefusal, AFileCutToNothingKeepsTheLogAsItIs)
{
    MakeFileWithPendingLog();
    test::PutFile(Path, "");
    ExpectLeftAlone(SettingsProblem::Damaged);
    std::filesystem::remove(Path + "-wal");
    PutJournal(3);
    ExpectLeftAlone(SettingsProblem::Damaged);
}

TEST_F(SettingsFileRefusal, AnotherProgramsLogIsLeftAlone)
{
    DieAfterSql("PRAGMA journal_mode=WAL; CREATE TABLE t(a); INSERT INTO t VALUES(1)");
    ASSERT_GT(test::Contents(Path + "-wal").size(), 0u);
    ExpectLeftAlone(SettingsProblem::NotSettings);
    RunSql("PRAGMA wal_checkpoint(TRUNCATE); PRAGMA application_id=7");
    DieAfterSql("INSERT INTO t VALUES(2)");
    ASSERT_GT(test::Contents(Path + "-wal").size(), 0u);
    ExpectLeftAlone(SettingsProblem::NotSettings);
}

TEST_F(SettingsFileRefusal, AnotherProgramsHotJournalIsLeftAlone)
{
    RunSql("CREATE TABLE t(a); INSERT INTO t VALUES('old')");
    std::string sql = "PRAGMA cache_size=1; BEGIN IMMEDIATE;";
    for (int i = 0; i < 200; ++i)
        sql += "INSERT INTO t VALUES('" + std::string(400, 'x') + "');";
    DieAfterSql(sql);
    ASSERT_EQ(test::Contents(Path + "-journal").substr(0, 1), "\xd9");
    ExpectLeftAlone(SettingsProblem::NotSettings);
}

TEST_F(SettingsFileRefusal, AFileWhoseMakingWasCutShortIsAnEmptyStore)
{
    test::PutFile(Path, "");
    PutJournal(0);
    CSettingsFile(Path).Write("K", "a", 1u);
    EXPECT_EQ(CSettingsFile(Path).Read("K", "a"), SettingValue(1u));

    std::filesystem::remove(Path);
    RunSql("PRAGMA journal_mode=WAL");
    ASSERT_EQ(test::Contents(Path).size(), 4096u);
    PutJournal(0);
    EXPECT_FALSE(CSettingsFile(Path).Read("K", "a"));
    CSettingsFile(Path).Write("K", "a", 2u);
    EXPECT_EQ(CSettingsFile(Path).Read("K", "a"), SettingValue(2u));
}

TEST_F(SettingsFileRefusal, AnAcceptedLogIsBroughtIntoTheFileOnClosing)
{
    MakeFileWithPendingLog();
    EXPECT_EQ(CSettingsFile(Path).Read("K", "new"), SettingValue(1u));
    EXPECT_FALSE(std::filesystem::exists(Path + "-wal"));
    EXPECT_EQ(CSettingsFile(Path).Read("K", "new"), SettingValue(1u));
}

TEST_F(SettingsFileRefusal, AFileOfALaterFormatIsLeftAlone)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    RunSql("PRAGMA journal_mode=DELETE; PRAGMA user_version=2");
    ExpectLeftAlone(SettingsProblem::NotSettings);
}

TEST_F(SettingsFileRefusal, AFolderOrAPipeIsNoSettingsFile)
{
    std::filesystem::create_directory(Path);
    EXPECT_EQ(ProblemOfReading(), SettingsProblem::Unreadable);
    std::filesystem::remove(Path);
    ASSERT_EQ(::mkfifo(Path.c_str(), 0600), 0);
    EXPECT_EQ(ProblemOfReading(), SettingsProblem::Unreadable);
}

// Regression: both programs waited for ever for a writer of the pipe.
TEST_F(SettingsFileRefusal, APipeInThePlaceOfASideFileIsRefusedAtOnce)
{
    for (const bool withFile : {true, false})
        for (const char* const ending : {"-journal", "-wal", "-shm"}) {
            std::filesystem::remove(Path);
            if (withFile)
                CSettingsFile(Path).Write("K", "a", 1u);
            ASSERT_EQ(::mkfifo((Path + ending).c_str(), 0600), 0);
            CSettingsFile file(Path);
            EXPECT_THROW(file.Write("K", "a", 2u), CSettingsFileError) << ending;
            if (withFile) {
                EXPECT_EQ(ProblemOfReading(), SettingsProblem::Unreadable) << ending;
            }
            std::filesystem::remove(Path + ending);
        }
}

} // namespace zantroq
