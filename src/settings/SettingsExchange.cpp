#include "settings/SettingsExchange.h"

#include <algorithm>
#include <charconv>
#include <nlohmann/json.hpp>
#include <unordered_set>

namespace zantroq {
namespace {

using Json = nlohmann::json;

constexpr char HexDigits[] = "0123456789abcdef";
constexpr std::size_t DeepestLevel = 3; // key, name, value

std::string Place(const std::string& key, const std::string& name)
{
    return "value \"" + name + "\" of key \"" + key + "\"";
}

int HexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

SettingValue BinaryFromText(std::string_view text)
{
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size() / 2);
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        const int high = HexValue(text[i]), low = HexValue(text[i + 1]);
        if (high < 0 || low < 0)
            throw CSettingsFormatError("a binary value is written with hexadecimal digits, two a byte");
        bytes.push_back(static_cast<std::uint8_t>(high * 16 + low));
    }
    if (text.size() % 2 != 0)
        throw CSettingsFormatError("a binary value has an even number of hexadecimal digits, this one has " +
                                   std::to_string(text.size()));
    return bytes;
}

SettingValue NumberFromText(std::string_view text)
{
    const bool hex = text.starts_with("0x") || text.starts_with("0X");
    const auto digits = hex ? text.substr(2) : text;
    std::uint32_t number = 0;
    const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), number, hex ? 16 : 10);
    if (end.ec != std::errc() || end.ptr != digits.data() + digits.size())
        throw CSettingsFormatError("\"" + std::string(text) + "\" is not a number from 0 to 4294967295");
    return number;
}

SettingValue ValueOf(const Json& entry)
{
    if (!entry.is_object() || entry.size() != 2 || !entry.contains("type") || !entry.contains("value"))
        throw CSettingsFormatError("it must be {\"type\": ..., \"value\": ...}");
    const Json &type = entry["type"], &value = entry["value"];
    if (type == "sz" && value.is_string())
        return value.get<std::string>();
    if (type == "binary" && value.is_string())
        return BinaryFromText(value.get<std::string>());
    if (type == "dword" && value.is_number_unsigned() && value.get<std::uint64_t>() <= 0xFFFFFFFFu)
        return static_cast<std::uint32_t>(value.get<std::uint64_t>());
    if (type == "sz" || type == "binary")
        throw CSettingsFormatError("its value must be a text");
    if (type == "dword")
        throw CSettingsFormatError("its value must be a number from 0 to 4294967295");
    throw CSettingsFormatError("its type must be \"sz\", \"dword\" or \"binary\"");
}

// Rejects text that is not JSON, nested too deeply or has a name twice, before any of it is stored. The
// parser's own filter would walk all values again at the end of each value.
class CShapeCheck : public nlohmann::json_sax<Json>
{
public:
    explicit CShapeCheck(std::string_view text) : m_text(text) {}

    bool null() override { return true; }
    bool boolean(bool) override { return true; }
    bool number_integer(number_integer_t) override { return true; }
    bool number_unsigned(number_unsigned_t) override { return true; }
    bool number_float(number_float_t, const string_t&) override { return true; }
    bool string(string_t&) override { return true; }
    bool binary(binary_t&) override { return true; }
    bool start_object(std::size_t) override { return Descend(); }
    bool start_array(std::size_t) override { return Descend(); }
    bool end_object() override { return Ascend(); }
    bool end_array() override { return Ascend(); }
    bool key(string_t& name) override
    {
        if (!m_names.back().insert(name).second)
            throw CSettingsFormatError("\"" + name + "\" stands twice in one object");
        return true;
    }
    bool parse_error(std::size_t byte, const std::string&, const Json::exception& error) override
    {
        if (dynamic_cast<const Json::out_of_range*>(&error))
            throw CSettingsFormatError("it holds a number that is too large for any value");
        const auto before = m_text.substr(0, byte == 0 ? 0 : byte - 1);
        throw CSettingsFormatError("not JSON at line " +
                                   std::to_string(1 + std::ranges::count(before, '\n')));
    }

private:
    bool Descend()
    {
        if (m_names.size() >= DeepestLevel)
            throw CSettingsFormatError(
                "too deeply nested: values stand in names and names in keys, nothing deeper");
        m_names.emplace_back();
        return true;
    }
    bool Ascend()
    {
        m_names.pop_back();
        return true;
    }

    const std::string_view m_text;
    std::vector<std::unordered_set<std::string>> m_names; // of the open objects and lists
};

Json ParseShallow(std::string_view text)
{
    CShapeCheck check(text);
    Json::sax_parse(text.begin(), text.end(), &check);
    return Json::parse(text.begin(), text.end());
}

void RequireUtf8(const std::string& text, const std::string& what)
{
    if (!IsUtf8(text))
        throw CSettingsFormatError(what + " is not UTF-8, which JSON cannot hold; set it again or delete it");
}

} // namespace

std::string FormatSettings(const SettingsTree& tree)
{
    Json root = Json::object();
    for (const auto& [key, values] : tree) {
        RequireUtf8(key, "the name of a key");
        Json& object = root[key] = Json::object();
        for (const auto& [name, value] : values) {
            RequireUtf8(name, "a name in key \"" + key + "\"");
            Json& entry = object[name];
            entry["type"] = TypeNameOf(value);
            if (const auto* number = std::get_if<std::uint32_t>(&value)) {
                entry["value"] = *number;
            } else {
                std::string text = ValueText(value);
                RequireUtf8(text, Place(key, name));
                entry["value"] = std::move(text);
            }
        }
    }
    return root.dump(2) + "\n";
}

SettingsTree ParseSettings(std::string_view text)
{
    const Json root = ParseShallow(text);
    if (!root.is_object())
        throw CSettingsFormatError("the whole must be an object of keys");
    SettingsTree tree;
    for (const auto& [key, values] : root.items()) {
        if (!values.is_object())
            throw CSettingsFormatError("key \"" + key + "\" must be an object of values");
        SettingValues& taken = tree[key];
        for (const auto& [name, entry] : values.items()) {
            try {
                taken.emplace(name, ValueOf(entry));
            } catch (const CSettingsFormatError& error) {
                throw CSettingsFormatError(Place(key, name) + ": " + error.what());
            }
        }
    }
    return tree;
}

std::string_view TypeNameOf(const SettingValue& value)
{
    static constexpr std::string_view Names[] = {"sz", "dword", "binary"}; // in the order of the variant
    return Names[value.index()];
}

std::string ValueText(const SettingValue& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return *text;
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return std::to_string(*number);
    std::string digits;
    for (const std::uint8_t byte : std::get<std::vector<std::uint8_t>>(value))
        digits += {HexDigits[byte >> 4], HexDigits[byte & 15]};
    return digits;
}

SettingValue ValueFromText(std::string_view typeName, std::string_view text)
{
    if (typeName == "sz")
        return std::string(text);
    if (typeName == "dword")
        return NumberFromText(text);
    if (typeName == "binary")
        return BinaryFromText(text);
    throw CSettingsFormatError("\"" + std::string(typeName) + "\" is no type; use sz, dword or binary");
}

bool IsUtf8(std::string_view text)
{
    try {
        (void)Json(text).dump();
        return true;
    } catch (const Json::type_error&) {
        return false;
    }
}

namespace {

std::string Escaped(std::string_view text)
{
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto byte = static_cast<unsigned char>(c);
        if (c == '\t')
            line += "\\t";
        else if (c == '\n')
            line += "\\n";
        else if (c == '\r')
            line += "\\r";
        else if (byte < 0x20 || byte == 0x7F)
            line += {'\\', 'x', HexDigits[byte >> 4], HexDigits[byte & 15]};
        else if (c == '\\' && i + 1 < text.size() &&
                 (std::string_view("tnrx\\").find(text[i + 1]) != std::string_view::npos ||
                  static_cast<unsigned char>(text[i + 1]) < 0x20 || text[i + 1] == 0x7F))
            line += "\\\\";
        else
            line += c;
    }
    return line;
}

// The text in quotes, on one line, and as UTF-8 whatever the bytes are.
std::string Shown(std::string_view text)
{
    std::string line = Escaped(text);
    if (!IsUtf8(line)) {
        std::string plain;
        for (const char c : line) {
            const auto byte = static_cast<unsigned char>(c);
            if (byte < 0x80)
                plain += c;
            else
                plain += {'\\', 'x', HexDigits[byte >> 4], HexDigits[byte & 15]};
        }
        line = plain;
    }
    return "\"" + line + "\"";
}

} // namespace

std::vector<std::string> LeaveOutWhatIsNotUtf8(SettingsTree& tree)
{
    std::vector<std::string> gone;
    for (auto key = tree.begin(); key != tree.end();) {
        const std::string& path = key->first;
        SettingValues& values = key->second;
        if (!IsUtf8(path)) {
            gone.push_back("key " + Shown(path));
            key = tree.erase(key);
            continue;
        }
        const bool wasEmpty = values.empty();
        std::erase_if(values, [&](const auto& entry) {
            const auto* text = std::get_if<std::string>(&entry.second);
            if (IsUtf8(entry.first) && (!text || IsUtf8(*text)))
                return false;
            gone.push_back("value " + Shown(entry.first) + " of key " + Shown(path));
            return true;
        });
        key = values.empty() && !wasEmpty ? tree.erase(key) : std::next(key);
    }
    return gone;
}

std::string ListingLine(std::string_view name, const SettingValue& value)
{
    return Escaped(name) + "\t" + std::string(TypeNameOf(value)) + "\t" + Escaped(ValueText(value));
}

} // namespace zantroq
