// The two port numbers of the feed, from the feed's own settings. Any thread that may use the key.
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
    // A null key behaves like a key that cannot be opened.
    explicit CZantroPorts(std::shared_ptr<ISettingsKey> key);

    // The leading number of the stored value. A missing value is written with its default text, so that the
    // feed's settings contain it afterwards. If the value could not be read, returns the default and writes
    // nothing.
    std::uint16_t GetPort(const char* valueName, const char* defaultText, std::uint16_t defaultPort);

    std::uint16_t LookupPort() { return GetPort("LookupPort", "9100", DefaultLookupPort); }
    std::uint16_t Level1Port() { return GetPort("Level1Port", "5009", DefaultLevel1Port); }

private:
    std::shared_ptr<ISettingsKey> m_key;
};

// A key in memory with these two ports, for a feed inside the process and for tests.
std::shared_ptr<ISettingsKey> MakePortKey(std::uint16_t lookupPort, std::uint16_t level1Port);

} // namespace zantroq
