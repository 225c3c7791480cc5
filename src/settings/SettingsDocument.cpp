#include "settings/SettingsDocument.h"

#include "platform/settings/SettingsKey.h"
#include "settings/SettingIds.h"
#include "settings/SettingText.h"
#include "settings/SettingsLoader.h"
#include "settings/SettingsTable.h"
#include "settings/SheetDocument.h"
#include "settings/StoredNumber.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr const char* Intro = R"(# Settings

<!-- Written by the target settings-doc from the table in src/settings/SettingsTable.cpp. Do not edit by hand. -->

The chart keeps its settings, and nothing else: no data and no trendlines.

## The file

One SQLite file per user: `$ZANTROQ_SETTINGS` if set, else `$XDG_CONFIG_HOME/zantroq/settings.db`, else
`~/.config/zantroq/settings.db`. It holds keys (paths), each with named values of three types: `sz` (a text), `dword` (a number
from 0 to 4294967295) and `binary`. Names are exact: trailing blanks, slashes, `%` and the empty name are all legal.

Several processes may use the file at once. Each write is one transaction in write-ahead mode, so a crash leaves every finished
write readable; beside an open file stand `settings.db-wal` and `settings.db-shm`, which belong to it. Nothing is created before
the first write. Inside is one table, `setting(key, name, type, value)`, with types 1 (sz), 3 (binary) and 4 (dword); the header
carries application number 0x5A545251 and user version 1.

A missing, unreadable, locked or damaged file reads as all values missing, and the chart runs on its defaults without a word. A
default is written only for a value that is surely missing, never for one that could not be read. What the user changes is written
all the same; where the file does not take it, the chart tries again while it runs, and once more when its window closes. Of a list
that could not be read only the entries that the user changed are written, and symbols stand in front of those that could not be
read. A read-only file is read, and what would be written is skipped. A damaged file, another program's data base, or a file of a
later format is never written to, and neither is a log or journal beside it; an empty file with a log beside it counts as damaged.
`zantroq-settings` says what is wrong with it.

)";

constexpr const char* Encodings = R"(
Numbers and booleans are texts in decimal; a number with decimals has six of them. Of a stored number the first 9 characters are
read, of a text the first 256 bytes. What is no number reads as 0, a value of another type than sz as missing, and a missing
number as -1, so no whole number can be -1. Colors are whole numbers, red in the low byte: blue * 65536 + green * 256 + red.

## All values

Missing values are written with their defaults when the chart starts, but for the lists per data type and the values told in
"Stack of panes". "Range" is what the settings sheet and the replay step `set` accept; any other number that can be stored
(-99999999 to 999999999) is accepted where it is empty.

| Number | Name | Type | Default | Range | Out of range in the store | Meaning |
|---|---|---|---|---|---|---|
)";

constexpr const char* Rules = R"(
Numbers 32791 and 32792 have no text in the string table, so both stand on the one value with the empty name. In a fresh store
the first writes its default 1, and the second finds that 1.

### Lists per data type

One text of five entries with commas between: ticks, intervals, daily, weekly, monthly. Entries past the fifth are ignored.
Missing and empty entries, dates that are not 8 digits and times that are not 6 take the default, and so do request kinds that do
not belong to their data type. Of switches, "1" is on and anything else off.

### Period lists

Ten entries in study order: RSI, Momentum, ROC, OBV, MACD, Stochastics, Volume, Money Flow, MFI, ADX. Where the list is missing
or empty it is put together from the older single values and stored, and then those are deleted.

### Stack of panes

Where the count is missing, the count, the type of pane 0 and the borders 1 and 2 are written with their defaults. Otherwise the
types are read in order; a negative one or one of 10 and above ends the stack, and the count in memory is what was read. Borders
that do not ascend strictly from 0 to at most 1, or are missing, are spread evenly in memory. Missing minimised flags are 0,
missing colors of studies black; neither is written.

### Recently used symbols

`SQ0` to `SQ19`, newest first, texts. A 21st symbol pushes out the last one, and the values `RectPosition.` + that symbol and the
same + `.Maximized` are deleted. They are not the names under which positions are stored (below), so a position stays. Values
behind the end of the list that is written are deleted.

### Window positions

`RectPosition.` + window title ("XYZ - Chart"): binary, 16 bytes, four signed 32-bit numbers with the low byte first: left, top,
right, bottom. A missing one, or one of another length, is 0, 0, 620, 460. The same name + `.Maximized`: dword, 1 for maximized.

## The ports of the feed

The key `Software\Zantro\Quovex\Startup` holds the feed's own settings: `LookupPort` and `Level1Port`, both sz.

## zantroq-settings

```
zantroq-settings [--key PATH] list [--json]
zantroq-settings [--key PATH] get NAME
zantroq-settings [--key PATH] set NAME VALUE [--type sz|dword|binary]
zantroq-settings [--key PATH] delete NAME
zantroq-settings [--key PATH] export FILE
zantroq-settings import FILE
zantroq-settings [--key PATH] reset [--yes]
```

The default key is the chart's. A NAME or VALUE that begins with a hyphen goes behind `--`: `set -- -x -5`.

- `list` prints a line a value, `NAME<TAB>TYPE<TAB>VALUE`, in byte order of the names. So that each value stays on its line, a
  tab is written `\t`, a line feed `\n`, a carriage return `\r` and any other control character `\xHH`; a backslash stands as it
  is, but doubled where what follows would read as one of these. `list --json` prints the exchange format.
- `get` prints the value as it is; of a dword the number, of a binary value hexadecimal digits.
- `set` takes any name and any value of the type; the type is sz unless told. A dword may be written 0x and hexadecimal digits.
- `export` writes all keys, or the one of `--key`; the file appears whole or not at all. `-` is the standard output.
  A key, name or text that is not UTF-8 cannot stand in it: it is named on standard error and left out, here and in `list --json`.
- `import` merges into what is there, in one transaction: a file with an error anywhere changes nothing. With `--key` only that
  key of the file is taken. `-` is the standard input.
- `reset` removes every value of the key after reading the word yes, alone on its line and in small or capital letters, or with
  `--yes` without asking.

Exit codes: 0 done; 1 the value is not there (`get`, `delete`), the settings file cannot be read, or `reset` was not confirmed; 2
wrong usage, or a file for `import` that cannot be read or is not of the format; 4 the settings file, the export or the standard
output could not be written.

The exchange format is JSON, UTF-8:

```
{"Software\\Zantro\\Zantroq\\Applications\\Chart": {"PTS INDEX": {"type": "sz", "value": "3"}}}
```

A dword is a number, a binary value a text of hexadecimal digits. Anything else is an error that names the value, or the
line where the file is no JSON.
)";

std::string_view TypeOf(const sSettingRow& row)
{
    switch (row.Type) {
    case SettingType::Int:
        return "int32";
    case SettingType::Bool:
        return "bool";
    case SettingType::Double:
        return "double";
    case SettingType::Color:
        return "colour";
    case SettingType::Date:
        return "date";
    case SettingType::Time:
        return "time";
    case SettingType::None:
        break;
    }
    return "";
}

std::string Hex(const std::string& decimal)
{
    static constexpr char Digits[] = "0123456789ABCDEF";
    const auto value = static_cast<std::uint32_t>(ParseStoredInt(decimal));
    std::string text = "0x";
    for (int shift = 20; shift >= 0; shift -= 4)
        text += Digits[(value >> shift) & 15];
    return text;
}

std::string DefaultOf(const sSettingRow& row)
{
    static const sChartSettings Fresh = DefaultChartSettings("today");
    if (!row.HasMember())
        return "";
    if (row.Form == SettingForm::Indexed && row.Type != SettingType::Color)
        return row.Id == MinimizedId ? "0" : "see below";
    const std::string text = SettingText(Fresh, {&row, row.FirstNumber});
    return row.Type == SettingType::Color ? Hex(text) : text;
}

std::string PlainNumber(double value)
{
    const auto whole = static_cast<std::int32_t>(value);
    if (whole == value)
        return TextFromInt(whole);
    std::string text = TextFromDouble(value);
    text.erase(text.find_last_not_of('0') + 1);
    return text;
}

std::string RangeOf(const sSettingRow& row)
{
    if (!row.HasRange() || row.Type == SettingType::None)
        return "";
    if (row.Type == SettingType::Color)
        return "0x000000 to 0xFFFFFF";
    if (row.Type == SettingType::Bool)
        return "0, 1";
    return PlainNumber(row.Low) + " to " + PlainNumber(row.High);
}

std::string_view OutsideOf(const sSettingRow& row)
{
    if (row.Type == SettingType::Color)
        return "low 24 bits";
    if (row.Type == SettingType::Bool)
        return row.Form == SettingForm::DataTypeList ? "off" : "default, written anew";
    if (row.Form == SettingForm::PaneCount)
        return "see below";
    if (!row.HasRange() || row.Form == SettingForm::DataTypeList)
        return "";
    switch (row.Outside) {
    case OutOfRange::Keep:
        return row.Form == SettingForm::Indexed && row.Id != MinimizedId ? "see below" : "kept";
    case OutOfRange::Nearest:
        return "nearest";
    case OutOfRange::Default:
        return "default";
    }
    return "";
}

std::string_view FormOf(const sSettingRow& row)
{
    switch (row.Form) {
    case SettingForm::DataTypeList:
        return " list per data type";
    case SettingForm::PeriodList:
        return " list per study";
    case SettingForm::Indexed:
    case SettingForm::OldIndexed:
        return ", numbered";
    case SettingForm::SheetOnly:
        return ", of the settings sheet alone";
    default:
        return "";
    }
}

std::string NumbersOf(const sSettingRow& row)
{
    if (row.Form != SettingForm::Indexed)
        return "";
    return " (%d: " + std::to_string(row.FirstNumber) + " to " + std::to_string(row.LastNumber) + ")";
}

std::string Line(const sSettingRow& row)
{
    std::string line = "| " + std::to_string(row.Id) + " | ";
    line +=
        row.Form == SettingForm::Unnamed ? "(empty)" : "`\"" + std::string(row.Name) + "\"`" + NumbersOf(row);
    line += " | " + std::string(TypeOf(row)) + std::string(FormOf(row));
    line += " | " + DefaultOf(row) + " | " + RangeOf(row) + " | " + std::string(OutsideOf(row));
    return line + " | " + std::string(row.Meaning) + " |\n";
}

} // namespace

std::string SettingsDocument()
{
    std::vector<const sSettingRow*> rows;
    for (const sSettingRow& row : SettingsTable())
        rows.push_back(&row);
    std::ranges::sort(rows, {}, &sSettingRow::Id);
    std::string text = Intro;
    text += "## The chart's key\n\n`" + std::string(ChartSettingsKey) + "`\n";
    text += Encodings;
    for (const sSettingRow* row : rows)
        text += Line(*row);
    return text + Rules + SheetDocument();
}

} // namespace zantroq
