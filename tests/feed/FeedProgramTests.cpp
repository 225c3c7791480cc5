// The program zantroq-feed: its first line, its messages and its exit codes.
#include "FeedClient.h"
#include "TemporaryFolder.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <regex>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace zantroq::feed {
namespace {

// One run. Ends the program by its process number if the test ends first.
class CFeedProgram
{
public:
    // Without an output file, the test reads the output.
    explicit CFeedProgram(std::vector<std::string> arguments, const char* output = nullptr,
                          rlim_t descriptors = 0)
        : m_errors(m_folder.Path() / "errors")
    {
        int pipes[2];
        if (pipe(pipes) != 0)
            throw std::runtime_error("no pipe");
        m_process = fork();
        if (m_process == 0) {
            dup2(output ? open(output, O_WRONLY) : pipes[1], STDOUT_FILENO);
            if (!std::freopen(m_errors.c_str(), "w", stderr))
                _exit(99);
            close(pipes[0]);
            close(pipes[1]);
            if (const rlimit limit{descriptors, descriptors}; descriptors > 0)
                setrlimit(RLIMIT_NOFILE, &limit);
            arguments.insert(arguments.begin(), ZANTROQ_FEED_PROGRAM);
            std::vector<char*> texts;
            for (auto& argument : arguments)
                texts.push_back(argument.data());
            texts.push_back(nullptr);
            execv(ZANTROQ_FEED_PROGRAM, texts.data());
            _exit(98);
        }
        close(pipes[1]);
        m_output = fdopen(pipes[0], "r");
    }
    ~CFeedProgram()
    {
        if (m_process > 0) {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
        fclose(m_output);
    }

    std::string Line()
    {
        std::string line;
        for (int c = fgetc(m_output); c != EOF && c != '\n'; c = fgetc(m_output))
            line += static_cast<char>(c);
        return line;
    }
    // How many it has open.
    int Descriptors() const
    {
        const auto folder = std::filesystem::path("/proc") / std::to_string(m_process) / "fd";
        return static_cast<int>(std::distance(std::filesystem::directory_iterator(folder),
                                              std::filesystem::directory_iterator()));
    }
    void Signal(int number) const { kill(m_process, number); }
    // The exit code; -1 if a signal ended it.
    int Wait()
    {
        int status = 0;
        waitpid(m_process, &status, 0);
        m_process = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    // The same, with the processor time that it took.
    int Wait(double& seconds)
    {
        int status = 0;
        rusage used{};
        wait4(m_process, &status, 0, &used);
        m_process = 0;
        const auto inSeconds = [](const timeval& time) { return time.tv_sec + time.tv_usec / 1e6; };
        seconds = inSeconds(used.ru_utime) + inSeconds(used.ru_stime);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string Errors() const
    {
        std::ifstream file(m_errors);
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }
    // Reads the first line and the two ports in it.
    bool Listens(std::uint16_t& lookup, std::uint16_t& level1)
    {
        std::smatch match;
        const std::string line = Line();
        if (!std::regex_match(
                line, match,
                std::regex("listening on 127\\.0\\.0\\.1:([0-9]+) and 127\\.0\\.0\\.1:([0-9]+)")))
            return false;
        lookup = static_cast<std::uint16_t>(std::stoi(match[1]));
        level1 = static_cast<std::uint16_t>(std::stoi(match[2]));
        return true;
    }

private:
    CTemporaryFolder m_folder;
    std::filesystem::path m_errors;
    pid_t m_process = 0;
    FILE* m_output = nullptr;
};

int LinesOf(const std::string& text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

} // namespace

TEST(FeedProgram, ServesAndEndsCleanlyOnASignal)
{
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        CFeedProgram program({"--lookup-port", "0", "--level1-port", "0"});
        std::uint16_t lookup = 0, level1 = 0;
        ASSERT_TRUE(program.Listens(lookup, level1));
        EXPECT_TRUE(CFeedClient(lookup).Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
        CFeedClient live(level1);
        live.Send("wGOOG\n");
        EXPECT_TRUE(live.ReadTo("\r\n").starts_with("F,GOOG,2,1,"));
        program.Signal(number);
        EXPECT_EQ(program.Wait(), 0);
        EXPECT_EQ(program.Errors(), "");
    }
}

TEST(FeedProgram, SaysWhatIsSimulated)
{
    CFeedProgram program(
        {"--lookup-port", "0", "--level1-port", "0", "--simulate", "--speed", "50", "--seed", "9"});
    std::uint16_t lookup = 0, level1 = 0;
    ASSERT_TRUE(program.Listens(lookup, level1));
    CFeedClient(lookup).Ask("HTX,SIM.WILD,10,1,0");
    CFeedClient live(level1);
    live.Send("wGOOG\n");
    EXPECT_NE(live.ReadTo("Q,GOOG,").find("S,SIMULATED,GOOG"), std::string::npos);
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    const std::string errors = program.Errors();
    EXPECT_NE(errors.find("live trades are simulated for every symbol (seed 9)"), std::string::npos)
        << errors;
    EXPECT_NE(errors.find("SIM.WILD: simulated history"), std::string::npos) << errors;
    EXPECT_NE(errors.find("GOOG: simulated live trades"), std::string::npos) << errors;
}

TEST(FeedProgram, ServesAFolderAndNamesItsBadRows)
{
    CTemporaryFolder folder;
    folder.Write("OWN.daily.csv", "date,open,high,low,close\n2014-01-02,1,1,1,1\n2014-01-03,1,1\n");
    CFeedProgram program({"--lookup-port", "0", "--level1-port", "0", "--data", folder.Path().string()});
    std::uint16_t lookup = 0, level1 = 0;
    ASSERT_TRUE(program.Listens(lookup, level1));
    EXPECT_EQ(CFeedClient(lookup).Ask("HDX,OWN,0,1,6"), "6,2014-01-02,1,1,1,1,0,0\r\n6,!ENDMSG!,\r\n");
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_NE(program.Errors().find("OWN.daily.csv:3: "), std::string::npos);
    EXPECT_NE(program.Errors().find("1 row skipped"), std::string::npos);
}

TEST(FeedProgram, WrongUsageIsExitTwoAndOneSentence)
{
    const std::vector<std::vector<std::string>> wrong = {{"--lookup-port", "65536"},
                                                         {"--lookup-port", "x"},
                                                         {"--level1-port", "-1"},
                                                         {"--speed", "0"},
                                                         {"--speed", "nan"},
                                                         {"--speed", "1e9"},
                                                         {"--seed", "-1"},
                                                         {"--seed", "1.5"},
                                                         {"--data", "/no/such/place"},
                                                         {"--no-such-option"},
                                                         {"surplus"},
                                                         {"--speed"},
                                                         {"--lookup-port", "5000", "--level1-port", "5000"}};
    for (const auto& arguments : wrong) {
        CFeedProgram program(arguments);
        EXPECT_EQ(program.Line(), "") << arguments[0];
        EXPECT_EQ(program.Wait(), 2) << arguments[0];
        EXPECT_EQ(LinesOf(program.Errors()), 1) << program.Errors();
        EXPECT_TRUE(program.Errors().starts_with("zantroq-feed: "));
    }
}

TEST(FeedProgram, AMissingOrNeedlessValueIsNamedWithWhatToDo)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> wrong = {
        {{"--lookup-port"}, "--lookup-port: its value is missing; give one behind it, as --help tells"},
        {{"--data"}, "--data: its value is missing; give one behind it, as --help tells"},
        {{"--seed", "1", "--seed", "2"}, "--seed: given 2 times; give it once"},
        {{"--simulate=banana"}, "--simulate=banana: the option takes no value; give --simulate alone"},
        {{"--speed", "1\n\x1b[31m"},
         "--speed 1\\n\\x1b[31m: not a speed; use a number above 0, up to 100000"},
        {{"surplus"}, "The following argument was not expected: surplus; --help lists the options"}};
    for (const auto& [arguments, sentence] : wrong) {
        CFeedProgram program(arguments);
        EXPECT_EQ(program.Wait(), 2);
        EXPECT_EQ(program.Errors(), "zantroq-feed: " + sentence + "\n");
    }
}

TEST(FeedProgram, ATakenPortIsWrongUsageAndOneSentenceThatSaysWhatToDo)
{
    CFeedProgram first({"--lookup-port", "0", "--level1-port", "0"});
    std::uint16_t lookup = 0, level1 = 0;
    ASSERT_TRUE(first.Listens(lookup, level1));
    for (const auto& [ports, taken] :
         {std::pair(std::vector<std::string>{"--lookup-port", std::to_string(lookup), "--level1-port", "0"},
                    "lookup port 127.0.0.1:" + std::to_string(lookup)),
          std::pair(std::vector<std::string>{"--lookup-port", "0", "--level1-port", std::to_string(level1)},
                    "level 1 port 127.0.0.1:" + std::to_string(level1))}) {
        CFeedProgram second(ports);
        EXPECT_EQ(second.Line(), "");
        EXPECT_EQ(second.Wait(), 2);
        EXPECT_EQ(second.Errors(),
                  "zantroq-feed: cannot listen on " + taken +
                      ": Address already in use; choose another port, or 0 for a free one\n");
    }
}

TEST(FeedProgram, HelpAndVersionAreResults)
{
    CFeedProgram help({"--help"});
    EXPECT_NE(help.Line(), "");
    EXPECT_EQ(help.Wait(), 0);
    CFeedProgram version({"--version"});
    EXPECT_TRUE(version.Line().starts_with("zantroq-feed "));
    EXPECT_EQ(version.Wait(), 0);
    EXPECT_EQ(version.Errors(), "");
}

// Regression: retrying at once for the next client kept a core busy while no descriptor was left.
TEST(FeedProgram, WithoutADescriptorForTheNextClientItWaits)
{
    CFeedProgram program({"--lookup-port", "0", "--level1-port", "0"}, nullptr, 20);
    std::uint16_t lookup = 0, level1 = 0;
    ASSERT_TRUE(program.Listens(lookup, level1));
    {
        std::vector<std::unique_ptr<CFeedClient>> clients;
        for (int i = 0; i < 40; ++i) {
            clients.push_back(std::make_unique<CFeedClient>(i % 2 == 0 ? lookup : level1));
            clients.back()->Send("S,SET PROTOCOL,5.0\n");
        }
        std::this_thread::sleep_for(std::chrono::seconds(2));
    }
    EXPECT_TRUE(CFeedClient(lookup).Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
    program.Signal(SIGTERM);
    double seconds = 0;
    EXPECT_EQ(program.Wait(seconds), 0);
    EXPECT_LT(seconds, 0.6);
}

// Regression: with 1,024 descriptors and 1,500 silent clients, a new client was refused.
TEST(FeedProgram, SilentClientsGiveTheirDescriptorsToANewOne)
{
    CFeedProgram program({"--lookup-port", "0", "--level1-port", "0"}, nullptr, 64);
    std::uint16_t lookup = 0, level1 = 0;
    ASSERT_TRUE(program.Listens(lookup, level1));
    CFeedClient first(lookup);
    EXPECT_TRUE(first.Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
    std::vector<std::unique_ptr<CFeedClient>> silent;
    for (int i = 0; i < 150; ++i)
        silent.push_back(std::make_unique<CFeedClient>(i % 2 == 0 ? lookup : level1));
    EXPECT_TRUE(CFeedClient(lookup).Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
    EXPECT_TRUE(first.Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
    EXPECT_EQ(silent[0]->ReadTo("anything"), "") << "the oldest goes first";
}

// All descriptors went to clients, so that no file could be opened, and the checks of a sanitized build, which
// need a pipe, ended the program.
TEST(FeedProgram, ClientsLeaveAFewDescriptorsForFiles)
{
    CFeedProgram program({"--lookup-port", "0", "--level1-port", "0"}, nullptr, 40);
    std::uint16_t lookup = 0, level1 = 0;
    ASSERT_TRUE(program.Listens(lookup, level1));
    CFeedClient first(lookup);
    EXPECT_TRUE(first.Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
    std::vector<std::unique_ptr<CFeedClient>> clients;
    for (int i = 0; i < 80; ++i) {
        clients.push_back(std::make_unique<CFeedClient>(i % 2 == 0 ? lookup : level1));
        clients.back()->Send("S,SET PROTOCOL,5.0\n");
    }
    for (int i = 0; i < 20; ++i) // meanwhile the program accepts as many as it will
        EXPECT_TRUE(first.Ask("HDX,GOOG,1,1,6").starts_with("6,2008-10-14,"));
    EXPECT_GT(program.Descriptors(), 25);
    EXPECT_LE(program.Descriptors(), 35);
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_EQ(program.Errors(), "");
}

TEST(FeedProgram, AnOutputThatCannotBeWrittenIsExitFourAndOneSentence)
{
    const std::vector<std::vector<std::string>> commands = {
        {"--help"}, {"--version"}, {"--lookup-port", "0", "--level1-port", "0"}};
    for (const auto& arguments : commands) {
        CFeedProgram program(arguments, "/dev/full");
        EXPECT_EQ(program.Wait(), 4) << arguments[0];
        EXPECT_EQ(program.Errors(),
                  "zantroq-feed: standard output: cannot be written; give it a place that can\n");
    }
}

} // namespace zantroq::feed
