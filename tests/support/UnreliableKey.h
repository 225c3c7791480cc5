// A settings key in memory whose reads and writes can be made to fail, like the reads and writes of a
// settings file that another process has locked.
#pragma once

#include "platform/settings/SettingsKey.h"

#include <set>

namespace zantroq::test {

struct sUnreliableKey final : ISettingsKey
{
    std::unique_ptr<ISettingsKey> Memory = MakeMemorySettingsKey();
    bool Reads = true, Writes = true;
    std::set<std::string, std::less<>> Unreadable; // names of single values

    void SetLocked(bool locked) { Reads = Writes = !locked; }
    void Put(std::string_view name, const std::string& text) { Memory->Write(name, text); }
    std::string Stored(std::string_view name) const
    {
        const CSettingRead value = Memory->Read(name);
        const auto* text = value.As<std::string>();
        return text ? *text : "(missing)";
    }

    CSettingRead Read(std::string_view name) override
    {
        return Reads && !Unreadable.contains(name) ? Memory->Read(name) : CSettingRead::Unreadable();
    }
    bool Write(std::string_view name, const SettingValue& value) override
    {
        return Writes && Memory->Write(name, value);
    }
    bool Delete(std::string_view name) override { return Writes && Memory->Delete(name); }
    std::vector<std::pair<std::string, SettingValue>> List() override { return Memory->List(); }
};

} // namespace zantroq::test
