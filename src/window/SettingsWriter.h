// Writes single chart settings at once, under the names and in the encodings of the store. Chart window's
// thread.
#pragma once

#include "platform/SettingsKey.h"

#include <cstdint>
#include <string>

namespace zantroq {

class CSettingsWriter
{
public:
    explicit CSettingsWriter(ISettingsKey& key) : m_key(key) {}
    void WriteInt(const std::string& name, std::int64_t value) { m_key.Write(name, std::to_string(value)); }
    void WriteDouble(const std::string& name, double value); // six decimals, whatever the locale
    ISettingsKey& Key() { return m_key; }

private:
    ISettingsKey& m_key;
};

} // namespace zantroq
