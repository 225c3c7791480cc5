// zantroq-feed: the local feed as a program. Results go to standard output, messages to standard error. Exit
// codes: 0 after an interrupt, hang-up or termination signal; 2 for wrong usage or an unavailable port; 4 if
// standard output cannot be written.
#include "feed/server/FeedServer.h"
#include "platform/EscapeControls.h"

#include <CLI/CLI.hpp>
#include <asio.hpp>

#include <charconv>
#include <cmath>
#include <csignal>
#include <iostream>
#include <span>
#include <string>
#include <string_view>

namespace {

enum ExitCode
{
    Success = 0,
    WrongUsage = 2,
    NoOutput = 4
};

constexpr double FastestSpeed = 100'000;

void Complain(const std::string& sentence)
{
    std::cerr << "zantroq-feed: " << zantroq::EscapeControls(sentence) << std::endl;
}

int Fail(ExitCode code, const std::string& sentence)
{
    Complain(sentence);
    return code;
}

int FailOutput()
{
    return Fail(NoOutput, "standard output: cannot be written; give it a place that can");
}

// A sentence that says what is wrong with the arguments and what to do.
std::string UsageSentence(const CLI::App& app, const CLI::ParseError& error, std::span<char* const> arguments)
{
    const std::string told = error.what();
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error)) {
        const std::string name = told.substr(0, told.find(':'));
        const auto times = app.count(name);
        return times > 1 ? name + ": given " + std::to_string(times) + " times; give it once"
                         : name + ": its value is missing; give one behind it, as --help tells";
    }
    if (dynamic_cast<const CLI::ConversionError*>(&error))
        for (const std::string_view argument : arguments)
            if (argument.starts_with("--simulate="))
                return std::string(argument) + ": the option takes no value; give --simulate alone";
    return told + "; --help lists the options";
}

template<class TNumber> bool ReadWhole(const std::string& text, TNumber& number)
{
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return !text.empty() && read.ec == std::errc() && read.ptr == text.data() + text.size();
}

} // namespace

int main(int argc, char** argv)
{
    using namespace zantroq::feed;
    CLI::App app("Serves recorded and simulated markets to charts on this machine.", "zantroq-feed");
    // Read as texts, so that a wrong number gets this program's own message.
    std::string lookupPort = "9100", level1Port = "5009", speed = "1", seed = "1", folder;
    bool simulate = false;
    app.add_option("--lookup-port", lookupPort,
                   "Port for history and symbol search, 0 for a free one (default 9100)");
    app.add_option("--level1-port", level1Port, "Port for live updates, 0 for a free one (default 5009)");
    app.add_option("--data", folder, "Folder with recordings, besides the shipped ones");
    app.add_flag("--simulate", simulate,
                 "Give every symbol simulated live trades behind its last recorded point");
    app.add_option("--speed", speed,
                   "Market seconds a second, above 0 (default 1); given without --simulate, recorded symbols "
                   "with ticks have "
                   "their newest day played again at that speed");
    app.add_option("--seed", seed, "Whole number that the simulations grow from (default 1)");
    app.set_version_flag("--version", "zantroq-feed " ZANTROQ_VERSION);
    app.footer("Exits 0 when interrupted, 2 for wrong usage or a port that cannot be had, 4 when the output "
               "cannot be written.");
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& request) {
        app.exit(request);
        return std::cout.flush() ? Success : FailOutput();
    } catch (const CLI::ParseError& error) {
        return Fail(WrongUsage, UsageSentence(app, error, {argv, static_cast<std::size_t>(argc)}));
    }

    sFEED_OPTIONS options;
    if (!ReadWhole(lookupPort, options.LookupPort))
        return Fail(WrongUsage, "--lookup-port " + lookupPort + ": not a port; use 0 to 65535");
    if (!ReadWhole(level1Port, options.Level1Port))
        return Fail(WrongUsage, "--level1-port " + level1Port + ": not a port; use 0 to 65535");
    if (options.LookupPort != 0 && options.LookupPort == options.Level1Port)
        return Fail(WrongUsage,
                    "--level1-port " + level1Port + ": also the lookup port; use two different ports");
    if (!ReadWhole(speed, options.Speed) || !std::isfinite(options.Speed) || options.Speed <= 0 ||
        options.Speed > FastestSpeed)
        return Fail(WrongUsage, "--speed " + speed + ": not a speed; use a number above 0, up to 100000");
    if (!ReadWhole(seed, options.Seed))
        return Fail(WrongUsage, "--seed " + seed + ": not a seed; use a whole number from 0 on");
    if (app.count("--data") > 0) {
        std::error_code error;
        if (!std::filesystem::is_directory(folder, error))
            return Fail(WrongUsage, "--data " + folder + ": not a folder; name one with recordings");
        options.Folders.emplace_back(folder);
    }
    options.SimulateAll = simulate;
    options.ReplayTicks = app.count("--speed") > 0;
    options.OnNotice = Complain;

    // If the reader of the output pipe has gone, the program must exit with a code, not be killed.
    std::signal(SIGPIPE, SIG_IGN);
    asio::io_context context;
    asio::signal_set signals(context, SIGINT, SIGTERM, SIGHUP);
    signals.async_wait([](std::error_code, int) {});

    CFeedServer server(options);
    std::string error;
    if (!server.Start(error))
        return Fail(WrongUsage, error);
    if (simulate)
        options.OnNotice("live trades are simulated for every symbol (seed " + seed + ")");
    std::cout << "listening on 127.0.0.1:" << server.LookupPort() << " and 127.0.0.1:" << server.Level1Port()
              << std::endl;
    if (!std::cout)
        return FailOutput();
    context.run();
    server.Stop();
    return Success;
}
