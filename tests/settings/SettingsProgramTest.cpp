// The program zantroq-settings: its output, its exit codes, and the file that it leaves.
#include "RunProcess.h"
#include "TemporaryFolder.h"
#include "platform/settings/SettingsFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace zantroq {
namespace {

using test::CTemporaryFolder;

struct sRun
{
    int Code = -1;
    std::string Out, Err;
};

struct SettingsProgram : testing::Test
{
    CTemporaryFolder Folder;
    const std::string Store = Folder.File("sub/settings.db");
    bool DiskIsFull = false;

    sRun Run(std::vector<std::string> words, const std::string& input = "", const std::string& out = "")
    {
        const std::string outFile = out.empty() ? Folder.File("out") : out;
        test::PutFile(Folder.File("in"), input);
        const pid_t child = test::StartChild([&] {
            ::setenv("ZANTROQ_SETTINGS", Store.c_str(), 1);
            if (DiskIsFull) {
                ::setenv("LD_PRELOAD", FULL_DISK_LIBRARY, 1);
                ::setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 1);
            }
            ::dup2(::open(Folder.File("in").c_str(), O_RDONLY), 0);
            ::dup2(::open(outFile.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 1);
            ::dup2(::open(Folder.File("err").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), 2);
            std::vector<char*> argv{const_cast<char*>("zantroq-settings")};
            for (auto& word : words)
                argv.push_back(word.data());
            argv.push_back(nullptr);
            ::execv(SETTINGS_PROGRAM, argv.data());
            return 127;
        });
        const int code = test::WaitFor(child);
        return {code, out.empty() ? test::Contents(outFile) : "", test::Contents(Folder.File("err"))};
    }
    // One clear sentence after the program's name, and nothing on standard output.
    void ExpectError(const sRun& run, int code, const std::string& about)
    {
        EXPECT_EQ(run.Code, code) << run.Err;
        EXPECT_EQ(run.Out, "");
        EXPECT_TRUE(run.Err.starts_with("zantroq-settings: ")) << run.Err;
        EXPECT_NE(run.Err.find(about), std::string::npos) << run.Err;
        EXPECT_EQ(std::count(run.Err.begin(), run.Err.end(), '\n'), 1) << run.Err;
    }
};

} // namespace

TEST_F(SettingsProgram, SetGetListAndDeleteWorkOnExactNames)
{
    for (const char* name : {"", "trail ", "a/b", "100%d", "[a,b]", "list", "C:\\dir"}) {
        EXPECT_EQ(Run({"set", name, std::string("v of ") + name}).Code, 0) << name;
        EXPECT_EQ(Run({"get", name}).Out, std::string("v of ") + name + "\n");
    }
    EXPECT_EQ(Run({"get", "trail"}).Code, 1);
    EXPECT_EQ(Run({"delete", "trail "}).Code, 0);
    ExpectError(Run({"delete", "trail "}), 1, "\"trail \"");
    EXPECT_EQ(Run({"list"}).Out, "\tsz\tv of \n100%d\tsz\tv of 100%d\nC:\\dir\tsz\tv of C:\\dir\n"
                                 "[a,b]\tsz\tv of [a,b]\na/b\tsz\tv of a/b\nlist\tsz\tv of list\n");
}

// The command line library treats ++ as the end of a subcommand.
TEST_F(SettingsProgram, TwoPlusSignsAreANameAndAValueLikeAnyOther)
{
    EXPECT_EQ(Run({"set", "++", "v"}).Code, 0);
    EXPECT_EQ(Run({"set", "x", "++"}).Code, 0);
    EXPECT_EQ(Run({"set", "--", "\1++", "++"}).Code, 0);
    EXPECT_EQ(Run({"--key", "++", "set", "n", "2", "--type", "dword"}).Code, 0);
    EXPECT_EQ(Run({"get", "++"}).Out, "v\n");
    EXPECT_EQ(
        CSettingsFile(Store).ReadAll(),
        (SettingsTree{{ChartSettingsKey,
                       {{"++", std::string("v")}, {"x", std::string("++")}, {"\1++", std::string("++")}}},
                      {"++", {{"n", 2u}}}}));
    EXPECT_EQ(Run({"delete", "++"}).Code, 0);
    ExpectError(Run({"get", "++"}), 1, "\"++\" is not stored");
    ExpectError(Run({"++"}), 2, "\"++\" is no subcommand");
    ExpectError(Run({"get", "a", "++"}), 2, "++");
    EXPECT_EQ(Run({"get", "a", "++"}).Err.find('\1'), std::string::npos);
}

TEST_F(SettingsProgram, NothingBehindTheEqualsSignIsTheEmptyText)
{
    EXPECT_EQ(Run({"--key=", "set", "x", "1"}).Code, 0);
    EXPECT_EQ(Run({"--key", "", "get", "x"}).Out, "1\n");
    EXPECT_EQ(CSettingsFile(Store).ReadAll(), (SettingsTree{{"", {{"x", std::string("1")}}}}));
    ExpectError(Run({"set", "x", "--type=", "1"}), 2, "\"\" is no type");
    EXPECT_EQ(Run({"set", "--", "--key=", "--type="}).Code, 0);
    EXPECT_EQ(Run({"get", "--", "--key="}).Out, "--type=\n");
}

TEST_F(SettingsProgram, TypesAreTextNumberAndBinary)
{
    EXPECT_EQ(Run({"set", "n", "0x10", "--type", "dword"}).Code, 0);
    EXPECT_EQ(Run({"set", "--type", "binary", "b", "00FF"}).Code, 0);
    EXPECT_EQ(Run({"set", "neg", "-5"}).Code, 0);
    EXPECT_EQ(Run({"set", "--", "-x", "--yes"}).Code, 0);
    EXPECT_EQ(Run({"list"}).Out, "-x\tsz\t--yes\nb\tbinary\t00ff\nn\tdword\t16\nneg\tsz\t-5\n");
    ExpectError(Run({"set", "n", "4294967296", "--type", "dword"}), 2, "4294967296");
    ExpectError(Run({"set", "b", "0f0", "--type", "binary"}), 2, "even number");
    ExpectError(Run({"set", "b", "0", "--type", "qword"}), 2, "qword");
    ExpectError(Run({"set", "b", "\xff"}), 2, "UTF-8");
}

TEST_F(SettingsProgram, WrongUsageIsNamed)
{
    ExpectError(Run({}), 2, "subcommand");
    ExpectError(Run({"frobnicate"}), 2, "frobnicate");
    ExpectError(Run({"get"}), 2, "NAME");
    ExpectError(Run({"set", "a"}), 2, "VALUE");
    ExpectError(Run({"get", "a", "b"}), 2, "b");
    ExpectError(Run({"list", "--bogus"}), 2, "--bogus");
    EXPECT_FALSE(std::filesystem::exists(Store));
}

TEST_F(SettingsProgram, HelpAndVersionNeedNoFile)
{
    EXPECT_EQ(Run({"--version"}).Out.rfind("zantroq-settings ", 0), 0u);
    const auto help = Run({"--help"});
    EXPECT_EQ(help.Code, 0);
    for (const char* word : {"list", "get", "set", "delete", "export", "import", "reset", "--key"})
        EXPECT_NE(help.Out.find(word), std::string::npos) << word;
    EXPECT_FALSE(std::filesystem::exists(Folder.File("sub")));
}

TEST_F(SettingsProgram, AMissingFileIsSaidAndNotMade)
{
    const auto list = Run({"list"});
    EXPECT_EQ(list.Code, 0);
    EXPECT_NE(list.Err.find("no settings file"), std::string::npos);
    ExpectError(Run({"get", "PTS INDEX"}), 1, "no settings file");
    ExpectError(Run({"delete", "PTS INDEX"}), 1, "no settings file");
    EXPECT_EQ(Run({"reset", "--yes"}).Code, 0);
    EXPECT_FALSE(std::filesystem::exists(Folder.File("sub")));
}

// Regression: the list announced that the first write would create the file, and then that write failed.
TEST_F(SettingsProgram, APathThroughAPlainFileIsSaidAtOnce)
{
    test::PutFile(Folder.File("sub"), "a plain file");
    const std::string says = "cannot be made there, because a part of its path is no folder";
    ExpectError(Run({"list"}), 1, says);
    ExpectError(Run({"get", "a"}), 1, says);
    ExpectError(Run({"set", "a", "1"}), 4, says);
    ExpectError(Run({"reset", "--yes"}), 4, says);
    EXPECT_EQ(test::Contents(Folder.File("sub")), "a plain file");
}

// Reading the bytes of the file must not release the locks of the process: another process would remove the
// log of the first connection, and later writes would be lost.
TEST_F(SettingsProgram, ASecondLookAtAFileKeepsTheLocksOfTheFirst)
{
    CSettingsFile first(Store);
    first.Write("K", "a", std::string("1"));
    EXPECT_EQ(CSettingsFile(Store).Read("K", "a"), SettingValue(std::string("1")));
    EXPECT_EQ(Run({"--key", "K", "get", "a"}).Out, "1\n");
    EXPECT_TRUE(std::filesystem::exists(Store + "-wal"));
    first.Write("K", "b", std::string("2"));
    EXPECT_EQ(Run({"--key", "K", "get", "b"}).Out, "2\n");
}

TEST_F(SettingsProgram, ADamagedFileIsNamedAndLeftAlone)
{
    std::filesystem::create_directory(Folder.File("sub"));
    test::PutFile(Store, std::string(9000, '?'));
    ExpectError(Run({"list"}), 1, "damaged");
    ExpectError(Run({"get", "a"}), 1, "damaged");
    ExpectError(Run({"set", "a", "1"}), 4, "damaged");
    ExpectError(Run({"delete", "a"}), 4, "damaged");
    ExpectError(Run({"reset", "--yes"}), 4, "damaged");
    ExpectError(Run({"export", Folder.File("e.json")}), 1, "damaged");
    ExpectError(Run({"import", "-"}, R"({"K":{"a":{"type":"sz","value":"1"}}})"), 4, "damaged");
    EXPECT_EQ(test::Contents(Store), std::string(9000, '?'));
    EXPECT_FALSE(std::filesystem::exists(Folder.File("e.json")));
}

TEST_F(SettingsProgram, KeysAreChosenByPath)
{
    EXPECT_EQ(Run({"--key", "Other\\Key", "set", "a", "1"}).Code, 0);
    EXPECT_EQ(Run({"set", "b", "2", "--key", "Other\\Key"}).Code, 0);
    EXPECT_EQ(Run({"list"}).Out, "");
    EXPECT_EQ(Run({"list", "--key", "Other\\Key"}).Out, "a\tsz\t1\nb\tsz\t2\n");
    EXPECT_EQ(CSettingsFile(Store).Read("Other\\Key", "a"), SettingValue(std::string("1")));
}

TEST_F(SettingsProgram, AnExportImportsElsewhere)
{
    Run({"set", "tab\tname", "line\nvalue \xC3\xA4"});
    Run({"set", "", "unnamed"});
    Run({"--key", "K", "set", "n", "7", "--type", "dword"});
    const std::string file = Folder.File("all.json");
    EXPECT_EQ(Run({"export", file}).Code, 0);
    const SettingsTree before = CSettingsFile(Store).ReadAll();
    EXPECT_EQ(before.size(), 2u);
    EXPECT_EQ(Run({"export", "-"}).Out, test::Contents(file));
    EXPECT_EQ(Run({"reset", "--yes"}).Code, 0);
    EXPECT_EQ(Run({"--key", "K", "reset", "--yes"}).Code, 0);
    EXPECT_TRUE(CSettingsFile(Store).ReadAll().empty());
    EXPECT_EQ(Run({"import", file}).Code, 0);
    EXPECT_EQ(CSettingsFile(Store).ReadAll(), before);
    EXPECT_EQ(Run({"list", "--json", "--key", "K"}).Out, Run({"export", "-", "--key", "K"}).Out);
}

// Regression: one text stored by another program prevented the export of all other values.
TEST_F(SettingsProgram, WhatIsNotUtf8IsNamedAndLeftOutOfAnExport)
{
    const SettingsTree sound{{"K", {{"a", std::string("1")}}}};
    CSettingsFile(Store).WriteAll(sound);
    const std::string expected = Run({"export", "-"}).Out;
    CSettingsFile(Store).WriteAll({{"K", {{"text", std::string("\xff")}, {"n\xe4me", 1u}}},
                                   {"L", {{"only", std::string("\xc3")}}},
                                   {"\xfe", {{"a", 1u}}}});
    const std::string file = Folder.File("e.json");
    const sRun run = Run({"export", file});
    EXPECT_EQ(run.Code, 0);
    EXPECT_EQ(test::Contents(file), expected);
    for (const char* gone : {"value \"text\" of key \"K\"", "value \"n\\xe4me\" of key \"K\"",
                             "value \"only\" of key \"L\"", "key \"\\xfe\""})
        EXPECT_NE(run.Err.find(std::string("zantroq-settings: ") + gone + " is not UTF-8"), std::string::npos)
            << run.Err;
    const sRun list = Run({"list", "--json", "--key", "K"});
    EXPECT_EQ(list.Code, 0);
    EXPECT_EQ(list.Out, expected);
    EXPECT_EQ(std::count(list.Err.begin(), list.Err.end(), '\n'), 2) << list.Err;
}

TEST_F(SettingsProgram, AnImportMergesAndABadOneChangesNothing)
{
    Run({"--key", "K", "set", "a", "old"});
    Run({"--key", "K", "set", "b", "old"});
    EXPECT_EQ(Run({"import", "-"},
                  R"({"K":{"a":{"type":"sz","value":"new"}},"L":{"c":{"type":"dword","value":1}}})")
                  .Code,
              0);
    const SettingsTree merged = CSettingsFile(Store).ReadAll();
    EXPECT_EQ(merged, (SettingsTree{{"K", {{"a", std::string("new")}, {"b", std::string("old")}}},
                                    {"L", {{"c", 1u}}}}));
    ExpectError(
        Run({"import", "-"}, R"({"K":{"a":{"type":"sz","value":"x"},"b":{"type":"dword","value":"x"}}})"), 2,
        "\"b\"");
    ExpectError(Run({"import", "-"}, R"({"K":{"a":{"type":"sz","value":"x"})"), 2, "JSON");
    ExpectError(Run({"import", Folder.File("nothing.json")}), 2, "nothing.json");
    EXPECT_EQ(CSettingsFile(Store).ReadAll(), merged);
}

TEST_F(SettingsProgram, AnImportErrorNamesThePlaceAndSaysWhatToDo)
{
    const std::string file = Folder.File("bad.json");
    test::PutFile(file, "{\"K\":\n {\"a\": {\"type\": \"sz\",\n  \"value\": x}}}");
    const std::string begin = "zantroq-settings: " + file + ": not a settings export: ";
    const std::string end = "; nothing was changed; mend the file, or write a new one with zantroq-settings "
                            "export\n";
    EXPECT_EQ(Run({"import", file}).Err, begin + "not JSON at line 3" + end);
    test::PutFile(file, R"({"K": {"a": {"type": "sz", "value": 1}}})");
    EXPECT_EQ(Run({"import", file}).Err, begin + "value \"a\" of key \"K\": its value must be a text" + end);
    ExpectError(Run({"import", Folder.File("none.json")}), 2,
                "; nothing was changed; name a file that can be read");
    test::PutFile(file, R"({"K": {}})");
    ExpectError(
        Run({"import", file, "--key", "L"}), 2,
        "the file holds no key L; nothing was changed; leave out --key to import every key of the file");
}

TEST_F(SettingsProgram, ResetAsksForTheWordYes)
{
    Run({"set", "a", "1"});
    for (const char* answer :
         {"no\n", "", "\n", "y\n", "yes please\n", "yes no\n", "yesterday\n", "no yes\n", "no\nyes\n"}) {
        EXPECT_EQ(Run({"reset"}, answer).Code, 1) << answer;
        EXPECT_EQ(Run({"get", "a"}).Out, "1\n");
    }
    for (const char* answer : {"yes\n", "yes", "Yes\n", "YES\r\n", " \tyes \n"}) {
        Run({"set", "a", "1"});
        EXPECT_EQ(Run({"reset"}, answer).Code, 0) << answer;
        EXPECT_EQ(Run({"list"}).Out, "") << answer;
    }
}

TEST_F(SettingsProgram, AnOutputThatCannotBeWrittenIsSaid)
{
    Run({"set", "a", "1"});
    ExpectError(Run({"list"}, "", "/dev/full"), 4, "output");
    ExpectError(Run({"get", "a"}, "", "/dev/full"), 4, "output");
    ExpectError(Run({"export", Folder.File("no/such/e.json")}), 4, "e.json");
    ExpectError(Run({"export", Folder.File("sub")}), 4, "directory");
}

// The message spoke of permissions.
TEST_F(SettingsProgram, AFullDiskIsReportedAsAFullDisk)
{
    DiskIsFull = true;
    ExpectError(Run({"set", "a", "1"}), 4, "the disk of the settings file is full; make room on it");
    DiskIsFull = false;
    EXPECT_EQ(Run({"set", "a", "1"}).Code, 0);
    DiskIsFull = true;
    ExpectError(Run({"set", "a", "2"}), 4, "the disk of the settings file is full; make room on it");
    ExpectError(Run({"reset", "--yes"}), 4, "the disk of the settings file is full; make room on it");
    DiskIsFull = false;
    EXPECT_EQ(Run({"get", "a"}).Out, "1\n");
}

TEST_F(SettingsProgram, AnExportThatCannotBeWrittenIsOneSentence)
{
    ExpectError(Run({"export", "/dev/full"}), 4, "/dev/full: the export could not be written");
    ExpectError(Run({"list", "--json"}, "", "/dev/full"), 4, "output");
    CSettingsFile(Store).Write("K", "a", std::string("\xff"));
    ExpectError(Run({"export", "/dev/full"}), 4, "/dev/full: the export could not be written");
    ExpectError(Run({"--key", "K", "list", "--json"}, "", "/dev/full"), 4, "output");
}

TEST_F(SettingsProgram, ControlCharactersInArgumentsAreShownAsEscapes)
{
    Run({"set", "a", "1"});
    ExpectError(Run({"get", "x\n\x1b[31m"}), 1, "\"x\\n\\x1b[31m\" is not stored");
    ExpectError(Run({"a\nb"}), 2, "\"a\\nb\" is no subcommand");
    ExpectError(Run({"set", "n", "1\r2", "--type", "dword"}), 2, "1\\r2");
    ExpectError(Run({"export", Folder.File("no\nfolder/e.json")}), 4, "no\\nfolder/e.json");
    ExpectError(Run({"import", Folder.File("no\tfile.json")}), 2, "no\\tfile.json");
}

TEST_F(SettingsProgram, AnExportKeepsTheModeOfAnExistingFileAndLeavesNothingBeside)
{
    Run({"set", "a", "1"});
    const std::string file = Folder.File("sub/e.json");
    test::PutFile(file, "old");
    std::filesystem::permissions(file, std::filesystem::perms(0640));
    EXPECT_EQ(Run({"export", file}).Code, 0);
    struct stat about
    {
    };
    ASSERT_EQ(::stat(file.c_str(), &about), 0);
    EXPECT_EQ(about.st_mode & 0777, 0640u);
    for (const auto& entry : std::filesystem::directory_iterator(Folder.File("sub")))
        EXPECT_EQ(entry.path().filename().string().find("e.json."), std::string::npos);
}

} // namespace zantroq
