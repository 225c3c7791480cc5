// The feed's two port numbers, from the feed's own settings. Any thread that may use the key.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <cstdint>
#include <memory>

namespace zantroq {

inline constexpr std::uint16_t DefaultLookupPort = 9100;
inline constexpr std::uint16_t DefaultLevel1Port = 5009;

class CZantroPorts
{
public:
    // A null key reads like one that cannot be opened.
    explicit CZantroPorts(std::shared_ptr<ISettingsKey> key);

    // The stored value as a number, by its leading digits. A value that is not there is written with its
    // default text, so that the feed's settings afterwards hold it; one that could not be read takes its
    // default unwritten.
    std::uint16_t GetPort(const char* valueName, const char* defaultText, std::uint16_t defaultPort);

    std::uint16_t LookupPort() { return GetPort("LookupPort", "9100", DefaultLookupPort); }
    std::uint16_t Level1Port() { return GetPort("Level1Port", "5009", DefaultLevel1Port); }

private:
    std::shared_ptr<ISettingsKey> m_key;
};

// A key in memory that answers these two ports: for a feed inside the process, or a test's.
std::shared_ptr<ISettingsKey> MakePortKey(std::uint16_t lookupPort, std::uint16_t level1Port);

} // namespace zantroq
