// zantroq-settings: reads and writes the stored settings.
#include "CommandWords.h"
#include "Commands.h"

#include "platform/settings/SettingsPath.h"

#include <CLI/CLI.hpp>
#include <csignal>
#include <iostream>

namespace {

using namespace zantroq;

struct sCommandLine
{
    std::string Key = ChartSettingsKey;
    std::string Name, Value, Type = "sz", File;
    bool Json = false, Yes = false;
};

struct sSubcommands
{
    CLI::App *List, *Get, *Set, *Delete, *Export, *Import, *Reset;
};

void AddWord(CLI::App* command, const std::string& name, std::string& word, const std::string& help)
{
    command->add_option(name, word, help)->required()->type_name("");
}

sSubcommands Describe(CLI::App& app, sCommandLine& line)
{
    app.add_option("--key", line.Key, "Path of the key (default: the key of the chart)")->type_name("PATH");
    app.set_version_flag("--version", "zantroq-settings " ZANTROQ_VERSION);
    app.require_subcommand(1);
    app.fallthrough();
    app.footer("The settings file is $ZANTROQ_SETTINGS, else $XDG_CONFIG_HOME/zantroq/settings.db, else\n"
               "~/.config/zantroq/settings.db. Write -- before a NAME or VALUE that begins with a hyphen.\n"
               "Exit codes: 0 done, 1 not there or not readable, 2 wrong usage, 4 could not be written.");
    sSubcommands commands{};
    commands.List = app.add_subcommand("list", "Print NAME<TAB>TYPE<TAB>VALUE, a line a value");
    commands.List->add_flag("--json", line.Json, "Print the exchange format instead");
    commands.Get = app.add_subcommand("get", "Print one value");
    AddWord(commands.Get, "NAME", line.Name, "Exact name of the value");
    commands.Set = app.add_subcommand("set", "Store one value");
    AddWord(commands.Set, "NAME", line.Name, "Exact name of the value");
    AddWord(commands.Set, "VALUE", line.Value, "Text, number, or hexadecimal digits, by the type");
    commands.Set->add_option("--type", line.Type, "sz, dword or binary (default: sz)")->type_name("TYPE");
    commands.Delete = app.add_subcommand("delete", "Remove one value");
    AddWord(commands.Delete, "NAME", line.Name, "Exact name of the value");
    commands.Export = app.add_subcommand("export", "Write all keys, or the one of --key, to a JSON file");
    AddWord(commands.Export, "FILE", line.File, "File to write; - is standard output");
    commands.Import = app.add_subcommand("import", "Merge a JSON file into what is stored");
    AddWord(commands.Import, "FILE", line.File, "File to read; - is standard input");
    commands.Reset = app.add_subcommand("reset", "Remove every value of the key");
    commands.Reset->add_flag("--yes", line.Yes, "Do not ask");
    return commands;
}

int Run(const CLI::App& app, const sSubcommands& commands, const sCommandLine& line)
{
    CSettingsFile file(SettingsFilePath());
    const auto onlyKey = app.count("--key") ? std::optional(line.Key) : std::nullopt;
    if (*commands.List)
        return ListValues(file, line.Key, line.Json);
    if (*commands.Get)
        return GetValue(file, line.Key, line.Name);
    if (*commands.Set)
        return SetValue(file, line.Key, line.Name, line.Value, line.Type);
    if (*commands.Delete)
        return DeleteValue(file, line.Key, line.Name);
    if (*commands.Export)
        return ExportValues(file, onlyKey, line.File);
    if (*commands.Import)
        return ImportValues(file, onlyKey, line.File);
    return ResetKey(file, line.Key, line.Yes);
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is an output that could not be written
    CLI::App app("Reads and writes the stored settings of Zantroq Chart.", "zantroq-settings");
    sCommandLine line;
    const sSubcommands commands = Describe(app, line);
    try {
        const auto words = ShieldedWords(argc, argv);
        app.parse(std::vector<std::string>(words.rbegin(), words.rend())); // it takes the last word first
        for (std::string* word : {&line.Key, &line.Name, &line.Value, &line.Type, &line.File})
            *word = Unshielded(*word);
    } catch (const CLI::Success& asked) { // --help and --version
        app.exit(asked);
        return std::cout.flush() ? ExitDone : ExitNotWritten;
    } catch (const CLI::ParseError& error) {
        const auto unknown = app.remaining();
        if (app.get_subcommands().empty() && !unknown.empty())
            Complain("\"" + Unshielded(unknown.front()) +
                     "\" is no subcommand; use list, get, set, delete, export, import or reset");
        else
            Complain(WithoutShields(error.what()) + "; see zantroq-settings --help");
        return ExitUsage;
    }
    const bool writes = *commands.Set || *commands.Delete || *commands.Import || *commands.Reset;
    try {
        return Run(app, commands, line);
    } catch (const CSettingsFileError& error) {
        Complain(error.what());
        return writes ? ExitNotWritten : ExitNotThere;
    } catch (const std::exception& error) {
        Complain(error.what());
        return ExitNotThere;
    }
}
