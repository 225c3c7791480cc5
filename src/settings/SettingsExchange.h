// Stored values as text for people and other programs: the exchange format in JSON, single values, and lines
// of a listing. Pure functions, any thread.
//
// The exchange format: {"KEY PATH": {"NAME": {"type": "sz", "value": "..."}}}. The types are "sz" with a
// text, "dword" with a number from 0 to 4294967295, and "binary" with two hexadecimal digits per byte.
#pragma once

#include "platform/settings/SettingsFile.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace zantroq {

// The message names the wrong value and the reason, but not the file.
class CSettingsFormatError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Formats with two blanks of indentation and a final line feed. Throws CSettingsFormatError for a name or
// text that is not UTF-8, which JSON cannot represent.
std::string FormatSettings(const SettingsTree& tree);

// Removes keys, names and texts that are not UTF-8. Returns one sentence for each removal.
std::vector<std::string> LeaveOutWhatIsNotUtf8(SettingsTree& tree);

// Throws CSettingsFormatError for a text that does not follow the format exactly.
SettingsTree ParseSettings(std::string_view text);

// "sz", "dword" or "binary".
std::string_view TypeNameOf(const SettingValue& value);
// The text itself, the decimal number, or the hexadecimal digits.
std::string ValueText(const SettingValue& value);
// The reverse of ValueText; a dword may also be written as 0x and hexadecimal digits. Throws
// CSettingsFormatError.
SettingValue ValueFromText(std::string_view typeName, std::string_view text);

bool IsUtf8(std::string_view text);

// One line of a listing, without line end: NAME<TAB>TYPE<TAB>VALUE. To keep each value on its line and in its
// column, a tab is written \t, a line feed \n, a carriage return \r, and any other control character \xHH. A
// backslash is written unchanged, but doubled where it would otherwise start one of these.
std::string ListingLine(std::string_view name, const SettingValue& value);

} // namespace zantroq
