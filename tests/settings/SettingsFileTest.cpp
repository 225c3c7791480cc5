#include "platform/settings/SettingsFile.h"

#include "SettingsFileFixture.h"
#include "platform/settings/SettingsPath.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace zantroq {
namespace {

using test::CTemporaryFolder;
using Bytes = std::vector<std::uint8_t>;

struct SettingsFile : test::sSettingsFileFixture
{
};

} // namespace

TEST_F(SettingsFile, NamesAreExact)
{
    const std::vector<std::string> names{
        "",     " ",  "a",    "a ",  " a",    "A",     "a/b",      "a\\b",
        "100%", "%d", "a\tb", "a\n", "'; --", "\"x\"", "\xff\xfe", std::string("a\0b", 3)};
    {
        CSettingsFile file(Path);
        for (std::size_t i = 0; i < names.size(); ++i)
            file.Write("K", names[i], static_cast<std::uint32_t>(i));
    }
    CSettingsFile file(Path);
    for (std::size_t i = 0; i < names.size(); ++i)
        EXPECT_EQ(file.Read("K", names[i]), SettingValue(static_cast<std::uint32_t>(i))) << names[i];
    EXPECT_EQ(file.List("K").size(), names.size());
    EXPECT_FALSE(file.Read("k", "a"));
}

TEST_F(SettingsFile, ValuesOfAllTypesReadBack)
{
    const std::vector<SettingValue> values{
        std::string(), std::string("a\0b", 3), std::string(100000, 'x'), 0u, 4294967295u,
        Bytes{},       Bytes{0, 255, 0}};
    CSettingsFile file(Path);
    for (const auto& value : values) {
        file.Write("K", "v", value);
        EXPECT_EQ(CSettingsFile(Path).Read("K", "v"), value);
    }
}

TEST_F(SettingsFile, AStoredNumberThatIsNoDwordIsMissing)
{
    CSettingsFile(Path).Write("K", "most", 4294967295u);
    RunSql("INSERT INTO setting VALUES('K', 'large', 4, 4294967296), ('K', 'negative', 4, -1), "
           "('K', 'text', 4, '7'), ('K', 'binary', 4, x'37'), ('K', 'broken', 4, 7.5), ('K', 'least', 4, 0)");
    CSettingsFile file(Path);
    EXPECT_EQ(file.List("K"), (SettingValues{{"least", 0u}, {"most", 4294967295u}}));
    EXPECT_FALSE(file.Read("K", "large"));
    EXPECT_EQ(OpenSettingsKey(Path, "K")->Read("negative").Result(), ReadResult::Missing);
}

TEST_F(SettingsFile, NothingIsCreatedBeforeTheFirstWrite)
{
    const std::string deep = Folder.File("one/two/settings.db");
    CSettingsFile file(deep);
    EXPECT_FALSE(file.Read("K", "a"));
    EXPECT_FALSE(file.Delete("K", "a"));
    EXPECT_EQ(file.DeleteAll("K"), 0u);
    EXPECT_TRUE(file.List("K").empty());
    EXPECT_TRUE(file.ReadAll().empty());
    EXPECT_FALSE(std::filesystem::exists(Folder.File("one")));
    file.Write("K", "a", 1u);
    EXPECT_EQ(file.Read("K", "a"), SettingValue(1u));
    struct stat about
    {
    };
    ASSERT_EQ(::stat(Folder.File("one").c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777, 0700u);
}

TEST_F(SettingsFile, KeysAreApart)
{
    CSettingsFile file(Path);
    file.Write("A", "n", 1u);
    file.Write("B", "n", 2u);
    EXPECT_EQ(file.Read("A", "n"), SettingValue(1u));
    EXPECT_EQ(file.ReadAll(), (SettingsTree{{"A", {{"n", 1u}}}, {"B", {{"n", 2u}}}}));
    EXPECT_EQ(file.DeleteAll("A"), 1u);
    EXPECT_TRUE(file.List("A").empty());
    EXPECT_EQ(file.Read("B", "n"), SettingValue(2u));
}

TEST_F(SettingsFile, AnEmptyFileIsAnEmptyStore)
{
    test::PutFile(Path, "");
    CSettingsFile file(Path);
    EXPECT_FALSE(file.Read("K", "a"));
    file.Write("K", "a", 1u);
    EXPECT_EQ(CSettingsFile(Path).Read("K", "a"), SettingValue(1u));
}

TEST_F(SettingsFile, ALockedFileSaysSoAndTheKeyWaitsOnlyOnce)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(Path.c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder,
                           "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; SELECT count(*) FROM setting",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    EXPECT_EQ(ProblemOfReading(), SettingsProblem::Locked);
    const auto key = OpenSettingsKey(Path, "K");
    EXPECT_FALSE(key->Read("a"));
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 100; ++i) {
        EXPECT_FALSE(key->Read("a"));
        EXPECT_FALSE(key->Write("a", 2u));
    }
    // Waiting each time would take ten minutes; this leaves room for a busy machine.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
    sqlite3_exec(holder, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(holder);
    EXPECT_EQ(key->Read("a"), SettingValue(1u));
}

// A window that starts while the file is locked uses the defaults and must not write them, because the lock
// may be released any moment. Later changes by the user must be written.
TEST_F(SettingsFile, AKeyTellsWhatIsMissingFromWhatALockKeptFromBeingRead)
{
    CSettingsFile(Path).Write("K", "PTS INDEX", std::string("7"));
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(Path.c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder,
                           "PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE; SELECT count(*) FROM setting",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    const auto key = OpenSettingsKey(Path, "K");
    EXPECT_EQ(key->Read("PTS INDEX").Result(), ReadResult::Unreadable);
    EXPECT_FALSE(key->Write("PTS INDEX", std::string("4")));
    sqlite3_exec(holder, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(holder);
    EXPECT_TRUE(key->Write("PTS INDEX", std::string("4")));
    EXPECT_EQ(key->Read("PTS INDEX"), SettingValue(std::string("4")));
    EXPECT_EQ(key->Read("GRID").Result(), ReadResult::Missing);
}

// Regression: a window on a new file reads and writes its defaults in turn. Each read that succeeded during
// another process's write lock made the next write wait again: the start took five minutes.
TEST_F(SettingsFile, AWriteLockThatLetsReadsThroughIsWaitedForOnce)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(Path.c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    const auto key = OpenSettingsKey(Path, "K");
    int waits = 0;
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(key->Read("a"), SettingValue(1u));
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(key->Write("a", 2u));
        waits += std::chrono::steady_clock::now() - start >= std::chrono::milliseconds(2900);
    }
    EXPECT_EQ(waits, 1);
    sqlite3_exec(holder, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(holder);
    EXPECT_TRUE(key->Write("a", 2u));
}

TEST_F(SettingsFile, AKeyThatMayNotWaitGivesUpAtOnce)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    sqlite3* holder = nullptr;
    ASSERT_EQ(sqlite3_open(Path.c_str(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    const auto key = OpenSettingsKey(Path, "K");
    key->SetWaiting(false);
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(key->Write("a", 2u));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(2900));
    sqlite3_exec(holder, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(holder);
}

TEST_F(SettingsFile, AReadOnlyFileIsReadAndNotWritten)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0555));
    std::filesystem::permissions(Path, std::filesystem::perms(0444));
    const std::string before = test::Contents(Path);
    EXPECT_EQ(test::AsOrdinaryUser([&] {
                  const auto key = OpenSettingsKey(Path, "K");
                  if (key->Read("a") != SettingValue(1u))
                      return 1;
                  if (key->Write("a", 2u) || key->Delete("a"))
                      return 2;
                  if (key->Read("a") != SettingValue(1u))
                      return 3;
                  try {
                      CSettingsFile(Path).Write("K", "a", 2u);
                  } catch (const CSettingsFileError& error) {
                      return error.Problem == SettingsProblem::Unwritable ? 0 : 4;
                  }
                  return 5;
              }),
              0);
    EXPECT_TRUE(test::Contents(Path) == before);
    EXPECT_FALSE(std::filesystem::exists(Path + "-shm"));
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0755));
}

// Without the -shm file SQLite cannot read a log in a read-only folder. Regression: the log was searched
// beside the link and not found, so values were read without it.
TEST_F(SettingsFile, AReadOnlyFileIsReadWithItsPendingLog)
{
    const CTemporaryFolder elsewhere;
    const std::string link = elsewhere.File("link.db");
    std::filesystem::permissions(elsewhere.File(""), std::filesystem::perms(0755));
    std::filesystem::create_symlink(Path, link);
    MakeFileWithPendingLog();
    const auto setMode = [&](unsigned folder, unsigned file) {
        std::filesystem::permissions(Folder.File(""), std::filesystem::perms(folder));
        for (const std::string ending : {"", "-wal", "-shm"})
            if (std::filesystem::exists(Path + ending))
                std::filesystem::permissions(Path + ending, std::filesystem::perms(file));
    };
    const std::string before = AllBytes();
    for (const bool hasIndex : {true, false}) {
        if (!hasIndex)
            std::filesystem::remove(Path + "-shm");
        setMode(0555, 0444);
        for (const std::string& path : {Path, link})
            EXPECT_EQ(test::AsOrdinaryUser([&] {
                          const auto key = OpenSettingsKey(path, "K");
                          if (key->Read("new") != SettingValue(1u) || key->List().size() != 501)
                              return 1;
                          if (key->Write("new", 2u) || key->Delete("new"))
                              return 2;
                          CSettingsFile file(path);
                          if (file.Read("K", "new") != SettingValue(1u))
                              return 3;
                          try {
                              file.Write("K", "new", 2u);
                          } catch (const CSettingsFileError& error) {
                              return error.Problem == SettingsProblem::Unwritable ? 0 : 4;
                          }
                          return 5;
                      }),
                      0)
                << path << " " << hasIndex;
        setMode(0755, 0644);
    }
    EXPECT_TRUE(AllBytes() == before);
}

TEST_F(SettingsFile, ALogThatMayNotBeReadIsSaidToBeUnreadable)
{
    MakeFileWithPendingLog();
    std::filesystem::remove(Path + "-shm");
    std::filesystem::permissions(Path, std::filesystem::perms(0444));
    std::filesystem::permissions(Path + "-wal", std::filesystem::perms(0));
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0555));
    EXPECT_EQ(test::AsOrdinaryUser([&] {
                  try {
                      CSettingsFile(Path).Read("K", "new");
                  } catch (const CSettingsFileError& error) {
                      const bool says = std::string(error.what()).find("cannot be read") != std::string::npos;
                      return error.Problem == SettingsProblem::Unreadable && says ? 0 : 1;
                  }
                  return 2;
              }),
              0);
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0755));
}

TEST_F(SettingsFile, AFileThatMayNotBeReadIsMissingAndSaysSo)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0755));
    std::filesystem::permissions(Path, std::filesystem::perms(0));
    EXPECT_EQ(test::AsOrdinaryUser([&] {
                  if (OpenSettingsKey(Path, "K")->Read("a"))
                      return 1;
                  try {
                      CSettingsFile(Path).Read("K", "a");
                  } catch (const CSettingsFileError& error) {
                      return error.Problem == SettingsProblem::Unreadable ? 0 : 2;
                  }
                  return 3;
              }),
              0);
}

TEST_F(SettingsFile, AFolderThatCannotBeMadeIsSkippedInSilence)
{
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0555));
    EXPECT_EQ(test::AsOrdinaryUser([&] {
                  const auto key = OpenSettingsKey(Folder.File("sub/settings.db"), "K");
                  return key->Write("a", 1u) || key->Read("a") ? 1 : 0;
              }),
              0);
    std::filesystem::permissions(Folder.File(""), std::filesystem::perms(0755));
}

TEST_F(SettingsFile, AFileThatIsRemovedUnderAnOpenKeyIsMadeAnew)
{
    const auto key = OpenSettingsKey(Path, "K");
    ASSERT_TRUE(key->Write("a", 1u));
    for (const char* ending : {"", "-wal", "-shm"})
        std::filesystem::remove(Path + ending);
    EXPECT_FALSE(key->Read("a"));
    EXPECT_TRUE(key->Write("b", 2u));
    EXPECT_EQ(CSettingsFile(Path).ReadAll(), (SettingsTree{{"K", {{"b", 2u}}}}));
}

TEST_F(SettingsFile, AFailedWriteAllChangesNothing)
{
    CSettingsFile(Path).Write("K", "a", 1u);
    // The file must not grow, so the transaction fails in the middle.
    EXPECT_EQ(test::WaitFor(test::StartChild([&] {
                  CSettingsFile file(Path, std::chrono::milliseconds(50));
                  SettingsTree tree;
                  tree["K"]["a"] = 2u;
                  for (int i = 0; i < 20000; ++i)
                      tree["K"]["n" + std::to_string(i)] = std::string(1000, 'x');
                  std::signal(SIGXFSZ, SIG_IGN);
                  const rlimit limit{1 << 20, 1 << 20};
                  ::setrlimit(RLIMIT_FSIZE, &limit);
                  try {
                      file.WriteAll(tree);
                  } catch (const CSettingsFileError& error) {
                      return error.Problem == SettingsProblem::Unwritable ? 0 : 2;
                  }
                  return 1;
              })),
              0);
    EXPECT_EQ(CSettingsFile(Path).ReadAll(), (SettingsTree{{"K", {{"a", 1u}}}}));
}

TEST(SettingsPath, FollowsTheThreeVariables)
{
    EXPECT_EQ(test::WaitFor(test::StartChild([] {
                  ::setenv("HOME", "/h", 1);
                  ::setenv("XDG_CONFIG_HOME", "/x", 1);
                  ::setenv("ZANTROQ_SETTINGS", "/z/s.db", 1);
                  if (SettingsFilePath() != "/z/s.db")
                      return 1;
                  ::setenv("ZANTROQ_SETTINGS", "", 1);
                  if (SettingsFilePath() != "/x/zantroq/settings.db")
                      return 2;
                  ::unsetenv("ZANTROQ_SETTINGS");
                  ::setenv("XDG_CONFIG_HOME", "relative", 1);
                  if (SettingsFilePath() != "/h/.config/zantroq/settings.db")
                      return 3;
                  ::unsetenv("XDG_CONFIG_HOME");
                  return SettingsFilePath() == "/h/.config/zantroq/settings.db" ? 0 : 4;
              })),
              0);
}

} // namespace zantroq
