#include "market/ZantroPorts.h"

#include "platform/parse/LeadingNumber.h"

#include <map>
#include <string>
#include <utility>

namespace zantroq {

namespace {

std::int64_t Number(const SettingValue& value)
{
    if (const auto* text = std::get_if<std::string>(&value))
        return TextToInt(*text);
    if (const auto* number = std::get_if<std::uint32_t>(&value))
        return *number;
    const auto& bytes = std::get<std::vector<std::uint8_t>>(value);
    return TextToInt(std::string(bytes.begin(), bytes.end()));
}

class CPortKey : public ISettingsKey
{
public:
    CPortKey(std::uint16_t lookupPort, std::uint16_t level1Port)
        : m_values{{"Level1Port", std::to_string(level1Port)}, {"LookupPort", std::to_string(lookupPort)}}
    {
    }

    CSettingRead Read(std::string_view name) override
    {
        const auto found = m_values.find(name);
        return found == m_values.end() ? CSettingRead::Missing() : CSettingRead(found->second);
    }
    bool Write(std::string_view, const SettingValue&) override { return false; }
    bool Delete(std::string_view) override { return false; }
    std::vector<std::pair<std::string, SettingValue>> List() override
    {
        return {m_values.begin(), m_values.end()};
    }

private:
    const std::map<std::string, std::string, std::less<>> m_values;
};

} // namespace

CZantroPorts::CZantroPorts(std::shared_ptr<ISettingsKey> key) : m_key(std::move(key)) {}

std::uint16_t CZantroPorts::GetPort(const char* valueName, const char* defaultText, std::uint16_t defaultPort)
{
    if (!m_key)
        return defaultPort;
    const CSettingRead value = m_key->Read(valueName);
    if (value)
        return static_cast<std::uint16_t>(Number(*value));
    if (value.Result() == ReadResult::Missing)
        m_key->Write(valueName, SettingValue{std::string(defaultText)});
    return defaultPort;
}

std::shared_ptr<ISettingsKey> MakePortKey(std::uint16_t lookupPort, std::uint16_t level1Port)
{
    return std::make_shared<CPortKey>(lookupPort, level1Port);
}

} // namespace zantroq
