// Stored values as text for people and other programs: the exchange format in JSON, single values, and lines
// of a listing. Pure functions, any thread.
//
// The exchange format: {"KEY PATH": {"NAME": {"type": "sz", "value": "..."}}}. Types are "sz" with a text,
// "dword" with a number from 0 to 4294967295, and "binary" with hexadecimal digits, two a byte.
#pragma once

#include "platform/settings/SettingsFile.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// Says which value is wrong and why, without the name of a file.
class CSettingsFormatError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Two blanks of indentation and a line feed at the end. Throws CSettingsFormatError for a name or text that
// is not UTF-8, which JSON cannot hold.
std::string FormatSettings(const SettingsTree& tree);

// Takes out what is not UTF-8: keys, names and texts. The answers tell what went, one each.
std::vector<std::string> LeaveOutWhatIsNotUtf8(SettingsTree& tree);

// Throws CSettingsFormatError for anything that is not exactly of the format.
SettingsTree ParseSettings(std::string_view text);

// "sz", "dword" or "binary".
std::string_view TypeNameOf(const SettingValue& value);
// The text itself, the number in decimal, or hexadecimal digits.
std::string ValueText(const SettingValue& value);
// The other way; a dword may also be given as 0x and hexadecimal digits. Throws CSettingsFormatError.
SettingValue ValueFromText(std::string_view typeName, std::string_view text);

bool IsUtf8(std::string_view text);

// One line of a listing without its end: NAME<TAB>TYPE<TAB>VALUE. So that each value stays on its line and in
// its column, a tab is written \t, a line feed \n, a carriage return \r, and any other control character
// \xHH. A backslash stands as it is, but doubled where what follows it would read as one of these.
std::string ListingLine(std::string_view name, const SettingValue& value);

} // namespace zantroq
