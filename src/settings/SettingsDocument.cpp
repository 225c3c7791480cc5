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

The chart stores its settings and nothing else: no data and no trendlines.

## The file

One SQLite file per user: `$ZANTROQ_SETTINGS` if set, else `$XDG_CONFIG_HOME/zantroq/settings.db`, else
`~/.config/zantroq/settings.db`. It holds keys (paths), each with named values of three types: `sz` (a text), `dword` (a number
from 0 to 4294967295) and `binary`. Names are exact: trailing blanks, slashes, `%` and the empty name are valid.

Several processes may use the file at once. Each write is one transaction in write-ahead mode, so a crash leaves every finished
write readable. A finished write of zantroq-settings also survives a loss of power, and what a chart window writes reaches the disk
within a second. While the file is open, its companions `settings.db-wal` and `settings.db-shm` are in the same folder. Nothing
is created before the first write. The file contains one table, `setting(key, name, type, value)`, with types 1 (sz), 3 (binary)
and 4 (dword); the header has the application number 0x5A545251 and the user version 1.

If the file is missing, unreadable, locked or damaged, the chart uses the defaults of all values and reports no error. It writes
a default only for a value that is certainly missing, never for one that could not be read. Changes by the user are always
written; if the file cannot be written at that moment, the chart tries again while it runs, and once more when its window
closes. Of a list that could not be read, only the entries that the user changed are written, and new symbols are placed before
those that could not be read. A read-only file is read, and nothing is written to it. A damaged file, a database of another
program and a file of a later format are never written to, nor are their logs and journals; an empty file with a log counts as
damaged. `zantroq-settings` reports what is wrong with the file.

)";

constexpr const char* Encodings = R"(
Numbers and booleans are stored as decimal texts; a number with decimals has six of them. Of a stored number the first 9
characters are read, of a text the first 256 bytes. A text without a number reads as 0, a value of another type than sz as
missing, and a missing number as -1, so no whole number can be -1. Colors are whole numbers with red in the low byte: blue *
65536 + green * 256 + red.

## All values

When the chart starts, it writes missing values with their defaults, except the lists per data type and the values described in
"Stack of panes". "Range" is what the settings sheet and the replay step `set` accept; if it is empty, they accept every number
that can be stored (-99999999 to 999999999).

| Number | Name | Type | Default | Range | Out of range in the store | Meaning |
|---|---|---|---|---|---|---|
)";

constexpr const char* Rules = R"(
Numbers 32791 and 32792 have no name, so both are stored in the one value with the empty name. With an empty store, the first
writes its default 1, and the second then reads that 1.

### Lists per data type

One text of five entries separated by commas: ticks, intervals, daily, weekly, monthly. Entries after the fifth are ignored. The
default replaces missing and empty entries, dates that are not 8 digits, times that are not 6 digits, and request kinds that do
not belong to their data type. For switches, "1" is on and every other text off.

### Period lists

Ten entries in study order: RSI, Momentum, ROC, OBV, MACD, Stochastics, Volume, Money Flow, MFI, ADX. If the list is missing or
empty, it is built from the older single values and stored; then the single values are deleted.

### Stack of panes

If the count is missing, the count, the type of pane 0 and the borders 1 and 2 are written with their defaults. Otherwise the
types are read in order; a negative type or one of 10 and above ends the stack, and the count in memory is the number of types
read. Borders that do not ascend strictly from 0 to at most 1, or are missing, are spaced evenly in memory. Missing minimised
flags are 0, and missing colors of studies are black; neither is written.

### Recently used symbols

`SQ0` to `SQ19`, newest first, texts. A 21st symbol removes the last one and deletes the values `RectPosition.` + that symbol
and `RectPosition.` + that symbol + `.Maximized`. Window positions are stored under other names (below), so they stay. Values
after the end of the written list are deleted.

### Window positions

`RectPosition.` + window title ("XYZ - Chart"): binary, 16 bytes, four signed 32-bit numbers with the low byte first: left, top,
right, bottom. A missing value, or one of another length, counts as 0, 0, 620, 460. The same name + `.Maximized`: dword, 1 for
maximized.

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

The default key is the chart's. Write `--` before a NAME or VALUE that begins with a hyphen: `set -- -x -5`.

- `list` prints one line per value, `NAME<TAB>TYPE<TAB>VALUE`, in byte order of the names. To keep each value on its line, a tab
  is written `\t`, a line feed `\n`, a carriage return `\r` and any other control character `\xHH`; a backslash is written
  unchanged, but doubled where it would otherwise start one of these. `list --json` prints the exchange format.
- `get` prints the value: a text unchanged, a dword as a number, a binary value as hexadecimal digits.
- `set` accepts any name and any value of the type; the default type is sz. A dword may be written as 0x and hexadecimal digits.
- `export` writes all keys, or the key given by `--key`; the file is written completely or not at all. `-` is the standard
  output. A key, name or text that is not UTF-8 cannot be exported: it is reported on standard error and left out, here and in
  `list --json`.
- `import` adds to or replaces the stored values in one transaction: a file with an error anywhere changes nothing. With
  `--key`, only that key of the file is imported. `-` is the standard input.
- `reset` deletes every value of the key after reading the word yes, alone on its line and in any case, or with `--yes` without
  asking.

Exit codes: 0 done; 1 the value is not there (`get`, `delete`), the settings file cannot be read, or `reset` was not confirmed; 2
wrong usage, or a file for `import` that cannot be read or is not of the format; 4 the settings file, the export or the standard
output could not be written.

The exchange format is JSON, UTF-8:

```
{"Software\\Zantro\\Zantroq\\Applications\\Chart": {"PTS INDEX": {"type": "sz", "value": "3"}}}
```

A dword is a number, a binary value a text of hexadecimal digits. Anything else is an error whose message names the value, or
the line if the file is not JSON.
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
