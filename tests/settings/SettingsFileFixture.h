// A settings file in its own folder, and the states in which other processes may leave it.
#pragma once

#include "RunProcess.h"
#include "TemporaryFolder.h"
#include "platform/settings/SettingsFile.h"

#include <chrono>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace zantroq::test {

struct sSettingsFileFixture : testing::Test
{
    CTemporaryFolder Folder;
    const std::string Path = Folder.File("settings.db");

    SettingsProblem ProblemOfReading()
    {
        CSettingsFile file(Path, std::chrono::milliseconds(50));
        try {
            file.Read("K", "a");
        } catch (const CSettingsFileError& error) {
            EXPECT_NE(std::string(error.what()).find(Path), std::string::npos) << error.what();
            return error.Problem;
        }
        ADD_FAILURE() << "no error";
        return {};
    }
    // The file and its companions, each with its name.
    std::string AllBytes() const
    {
        std::string bytes;
        for (const std::string ending : {"", "-wal", "-journal"})
            if (std::filesystem::exists(Path + ending))
                bytes += "\n=== file" + ending + "\n" + Contents(Path + ending);
        return bytes;
    }
    void ExpectLeftAlone(SettingsProblem problem)
    {
        const std::string before = AllBytes();
        EXPECT_EQ(ProblemOfReading(), problem);
        CSettingsFile file(Path, std::chrono::milliseconds(50));
        EXPECT_THROW(file.Write("K", "a", 1u), CSettingsFileError);
        EXPECT_THROW(file.Delete("K", "a"), CSettingsFileError);
        EXPECT_THROW(file.WriteAll({{"K", {{"a", 1u}}}}), CSettingsFileError);
        const auto key = OpenSettingsKey(Path, "K");
        EXPECT_EQ(key->Read("a").Result(), ReadResult::Unreadable);
        EXPECT_FALSE(key->Write("a", 1u));
        EXPECT_FALSE(key->Delete("a"));
        EXPECT_TRUE(key->List().empty());
        EXPECT_TRUE(AllBytes() == before) << "the file or its log was changed";
    }
    // Many values in the file and one more in a log, as after the death of a process.
    void MakeFileWithPendingLog()
    {
        {
            CSettingsFile file(Path);
            for (int i = 0; i < 500; ++i)
                file.Write("K", "name " + std::to_string(i), std::string(50, 'x'));
        }
        ASSERT_EQ(WaitFor(StartChild([&] {
                      (new CSettingsFile(Path))->Write("K", "new", 1u);
                      return 0;
                  })),
                  0);
        ASSERT_GT(Contents(Path + "-wal").size(), 0u);
    }
    // The same with a database of another program.
    void DieAfterSql(const std::string& sql)
    {
        ASSERT_EQ(WaitFor(StartChild([&] {
                      sqlite3* db = nullptr;
                      sqlite3_open(Path.c_str(), &db);
                      return sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr);
                  })),
                  SQLITE_OK);
    }
    // A journal that SQLite would play back, for a file that had so many pages.
    void PutJournal(char pages)
    {
        std::string header("\xd9\xd5\x05\xf9\x20\xa1\x63\xd7\0\0\0\0\1\2\3\4\0\0\0\0\0\0\2\0\0\0\x10\0", 28);
        header[19] = pages;
        PutFile(Path + "-journal", header + std::string(512 - header.size(), '\0'));
    }
    void RunSql(const std::string& sql)
    {
        sqlite3* db = nullptr;
        ASSERT_EQ(sqlite3_open(Path.c_str(), &db), SQLITE_OK);
        ASSERT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
        sqlite3_close(db);
    }
};

} // namespace zantroq::test
