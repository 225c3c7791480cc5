#include "Commands.h"

#include "WholeFile.h"
#include "platform/EscapeControls.h"
#include "settings/SettingsExchange.h"

#include <algorithm>
#include <iostream>
#include <string_view>

namespace zantroq {
namespace {

// Standard output may be a full disk or a closed pipe; only flushing shows it.
int Print(const std::string& text)
{
    std::cout.write(text.data(), static_cast<std::streamsize>(text.size())).flush();
    if (std::cout)
        return ExitDone;
    Complain("the output could not be written; check where standard output goes");
    return ExitNotWritten;
}

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

void SayIfMissing(const CSettingsFile& file)
{
    if (!file.Exists())
        Complain(file.Path() +
                 ": no settings file yet, so nothing is stored and the chart runs on its defaults; the first "
                 "write makes it");
}

// JSON cannot represent text that is not UTF-8; one such value must not prevent the export of the others. An
// output that cannot be written is the only thing to report, so `write` comes before the other messages.
template<class Write> int WriteTree(const CSettingsFile& file, SettingsTree tree, Write write)
{
    const auto leftOut = LeaveOutWhatIsNotUtf8(tree);
    if (const int code = write(FormatSettings(tree)); code != ExitDone)
        return code;
    SayIfMissing(file);
    for (const std::string& gone : leftOut)
        Complain(gone + " is not UTF-8, which JSON cannot hold; it was left out, set it again or delete it");
    return ExitDone;
}

// Only the word, in small or capital letters.
bool IsYes(std::string_view answer)
{
    constexpr std::string_view Blanks = " \t\r", Small = "yes", Capital = "YES";
    answer.remove_prefix(std::min(answer.find_first_not_of(Blanks), answer.size()));
    answer = answer.substr(0, answer.find_last_not_of(Blanks) + 1);
    if (answer.size() != Small.size())
        return false;
    for (std::size_t i = 0; i < Small.size(); ++i)
        if (answer[i] != Small[i] && answer[i] != Capital[i])
            return false;
    return true;
}

int NotThere(const CSettingsFile& file, const std::string& key, const std::string& name)
{
    if (file.Exists())
        Complain(Quoted(name) + " is not stored under " + key + " in " + file.Path() +
                 "; zantroq-settings list shows what is");
    else
        Complain(Quoted(name) + " is not stored: there is no settings file at " + file.Path() + " yet");
    return ExitNotThere;
}

} // namespace

void Complain(const std::string& sentence)
{
    std::cerr << "zantroq-settings: " << EscapeControls(sentence) << std::endl;
}

int ListValues(CSettingsFile& file, const std::string& key, bool asJson)
{
    const SettingValues values = file.List(key);
    if (asJson) {
        SettingsTree tree;
        if (!values.empty())
            tree[key] = values;
        return WriteTree(file, std::move(tree), Print);
    }
    std::string lines;
    for (const auto& [name, value] : values)
        lines += ListingLine(name, value) + "\n";
    if (const int code = Print(lines); code != ExitDone)
        return code;
    SayIfMissing(file);
    return ExitDone;
}

int GetValue(CSettingsFile& file, const std::string& key, const std::string& name)
{
    const auto value = file.Read(key, name);
    return value ? Print(ValueText(*value) + "\n") : NotThere(file, key, name);
}

int SetValue(CSettingsFile& file, const std::string& key, const std::string& name, const std::string& value,
             const std::string& type)
{
    // Rejects what could not be exported later.
    for (const std::string& text : {key, name, value}) {
        if (!IsUtf8(text)) {
            Complain("the key, the name or the value is not UTF-8; type it in a UTF-8 terminal");
            return ExitUsage;
        }
    }
    try {
        file.Write(key, name, ValueFromText(type, value));
        return ExitDone;
    } catch (const CSettingsFormatError& error) {
        Complain("set " + Quoted(name) + ": " + error.what());
        return ExitUsage;
    }
}

int DeleteValue(CSettingsFile& file, const std::string& key, const std::string& name)
{
    return file.Delete(key, name) ? ExitDone : NotThere(file, key, name);
}

int ExportValues(CSettingsFile& file, const std::optional<std::string>& key, const std::string& target)
{
    SettingsTree tree;
    if (!key) {
        tree = file.ReadAll();
    } else if (auto values = file.List(*key); !values.empty()) {
        tree[*key] = std::move(values);
    }
    return WriteTree(file, std::move(tree), [&target](const std::string& text) -> int {
        if (target == "-")
            return Print(text);
        const std::string wrong = WriteWholeFile(target, text);
        if (wrong.empty())
            return ExitDone;
        Complain(target + ": the export could not be written (" + wrong + "); choose another file");
        return ExitNotWritten;
    });
}

int ImportValues(CSettingsFile& file, const std::optional<std::string>& key, const std::string& source)
{
    std::string text;
    const std::string origin = source == "-" ? "standard input" : source;
    if (const std::string wrong = ReadWholeFile(source, text); !wrong.empty()) {
        Complain(origin + ": the file to import cannot be read (" + wrong +
                 "); nothing was changed; name a file that can be read");
        return ExitUsage;
    }
    try {
        SettingsTree tree = ParseSettings(text);
        if (key)
            std::erase_if(tree, [&](const auto& entry) { return entry.first != *key; });
        if (key && tree.empty()) {
            Complain(origin + ": the file holds no key " + *key +
                     "; nothing was changed; leave out --key to import every key of the file");
            return ExitUsage;
        }
        file.WriteAll(tree);
        return ExitDone;
    } catch (const CSettingsFormatError& error) {
        Complain(origin + ": not a settings export: " + error.what() +
                 "; nothing was changed; mend the file, or write a new one with zantroq-settings export");
        return ExitUsage;
    }
}

int ResetKey(CSettingsFile& file, const std::string& key, bool confirmed)
{
    const std::size_t count = file.List(key).size();
    if (count == 0) {
        SayIfMissing(file);
        return ExitDone;
    }
    if (!confirmed) {
        std::cerr << "Remove all " << count << " values of " << EscapeControls(key + " from " + file.Path())
                  << "? Type yes to go on: " << std::flush;
        std::string answer;
        std::getline(std::cin, answer);
        if (!IsYes(answer)) {
            Complain(
                "reset was not confirmed with the word yes alone, so nothing was removed; run it again, or "
                "with --yes");
            return ExitNotThere;
        }
    }
    file.DeleteAll(key);
    return ExitDone;
}

} // namespace zantroq
