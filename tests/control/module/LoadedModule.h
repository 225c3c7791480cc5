// The built module, loaded with dlopen for each test and unloaded after it, with settings in a file of the
// test's own and a feed that answers each request for ticks with one tick. The test program runs once in a
// process without Qt and once in a process with a QApplication.
#pragma once

#include "platform/settings/SettingsKey.h"
#include "support/ScriptedFeed.h"

#include <zantroq/module.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <ostream>
#include <string>

namespace zantroq::test {

constexpr sZantroqId ChartClass = ZANTROQ_CHART_CLASS;
constexpr sZantroqId ChartInterface = ZANTROQ_CHART_INTERFACE;

inline std::string OneTick(std::string_view command)
{
    if (!command.starts_with("HTX,"))
        return {};
    const std::string id(command.substr(command.rfind(',') + 1));
    return id + ",2014-01-02 09:30:00.000,100.25,100,5000,101.20,101.30,1,C\r\n" + id + ",!ENDMSG!,\r\n";
}

// Whether a file of this name is mapped into the process.
inline bool IsMapped(const std::string& name)
{
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);)
        if (line.ends_with('/' + name))
            return true;
    return false;
}

inline std::ptrdiff_t EntriesOf(const char* folder)
{
    return std::distance(std::filesystem::directory_iterator(folder), std::filesystem::directory_iterator());
}

// The threads and file descriptors of the process, sockets included.
struct sHeld
{
    std::ptrdiff_t Threads = EntriesOf("/proc/self/task");
    std::ptrdiff_t Descriptors = EntriesOf("/proc/self/fd");
    bool operator==(const sHeld&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const sHeld& held)
{
    return out << held.Threads << " threads, " << held.Descriptors << " descriptors";
}

class CLoadedModule : public testing::Test
{
protected:
    static constexpr const char* FileName = "libzantroq-chart-module.so";

    CLoadedModule()
    {
        std::string folder = std::filesystem::temp_directory_path() / "zantroq-module-XXXXXX";
        m_folder = mkdtemp(folder.data());
        setenv("ZANTROQ_SETTINGS", SettingsPath().c_str(), 1);
        m_feed.Lookup.SetResponder(OneTick);
        const auto key = OpenSettingsKey(SettingsPath(), FeedSettingsKey);
        key->Write("LookupPort", std::to_string(m_feed.Lookup.Port()));
        key->Write("Level1Port", std::to_string(m_feed.Level1.Port()));
    }
    ~CLoadedModule() override { std::filesystem::remove_all(m_folder); }

    void SetUp() override { Load(); }
    void TearDown() override
    {
        if (m_module != nullptr)
            Unload();
    }

    void Load(const std::string& path = ZANTROQ_CHART_MODULE)
    {
        m_module = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(m_module, nullptr) << dlerror();
        ASSERT_EQ(GetClassObject(ChartClass, ChartInterface, &m_factory), ZANTROQ_OK);
    }
    void Unload()
    {
        EXPECT_EQ(m_factory->Table->Release(m_factory), 0u);
        EXPECT_EQ(Call("DllCanUnloadNow"), ZANTROQ_OK);
        EXPECT_EQ(dlclose(m_module), 0);
        m_module = nullptr;
    }

    std::int32_t Call(const char* name) const
    {
        return reinterpret_cast<ZantroqDllFunction>(dlsym(m_module, name))();
    }
    std::int32_t GetClassObject(const sZantroqId& type, const sZantroqId& offered,
                                sZantroqFactory** factory) const
    {
        return reinterpret_cast<ZantroqGetClassObject>(dlsym(m_module, "DllGetClassObject"))(&type, &offered,
                                                                                             factory);
    }

    sZantroqControl* Create() const
    {
        sZantroqControl* control = nullptr;
        EXPECT_EQ(m_factory->Table->Create(m_factory, &control), ZANTROQ_OK);
        return control;
    }
    bool PumpUntil(const std::function<bool()>& done) const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while (!done() && std::chrono::steady_clock::now() < end)
            m_factory->Table->Pump(m_factory, 10);
        return done();
    }

    static std::int32_t PutNumber(sZantroqControl* control, const char* name, std::int32_t type,
                                  std::int32_t number)
    {
        const sZantroqValue value{type, number, nullptr};
        return control->Table->PutByName(control, name, &value);
    }
    static std::int32_t PutSymbol(sZantroqControl* control, const char* symbol)
    {
        const sZantroqValue value{ZANTROQ_TEXT, 0, symbol};
        return control->Table->Put(control, ZANTROQ_STOCK_SYMBOL, &value);
    }
    static std::int32_t NumberIn(sZantroqControl* control, const char* name)
    {
        sZantroqValue value{};
        EXPECT_EQ(control->Table->GetByName(control, name, &value), ZANTROQ_OK) << name;
        return value.Number;
    }
    static std::string SymbolIn(sZantroqControl* control)
    {
        sZantroqValue value{};
        EXPECT_EQ(control->Table->Get(control, ZANTROQ_STOCK_SYMBOL, &value), ZANTROQ_OK);
        return value.Text == nullptr ? "null" : value.Text;
    }

    std::string SettingsPath() const { return m_folder + "/settings.db"; }
    // The text of a registration record, or "missing".
    std::string Record(const std::string& key, const std::string& name = "") const
    {
        const CSettingRead read = OpenSettingsKey(SettingsPath(), "Software\\Classes\\" + key)->Read(name);
        const auto* const text = read.As<std::string>();
        return text == nullptr ? "missing" : *text;
    }

    std::string m_folder;
    CScriptedFeed m_feed;
    void* m_module = nullptr;
    sZantroqFactory* m_factory = nullptr;
};

} // namespace zantroq::test
