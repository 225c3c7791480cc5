// The records by which hosts find the module, in a store that can refuse keys.
#include "control/module/Registration.h"

#include <gtest/gtest.h>

#include <map>

namespace zantroq::test {
namespace {

const std::string Library = "Software\\Classes\\TypeLib\\{48876663-91D5-11D1-8A25-00AA00B7CA93}\\1.0";
const std::string Class = "Software\\Classes\\CLSID\\{48876666-91D5-11D1-8A25-00AA00B7CA93}";
const std::string Categories = "Software\\Classes\\Component Categories\\";
const std::string Scriptable = "{7DD95801-9882-11CF-9FA9-00AA006C42C4}";
const std::string Initializable = "{7DD95802-9882-11CF-9FA9-00AA006C42C4}";

class CStore
{
public:
    using Place = std::pair<std::string, std::string>; // key, name
    std::map<Place, std::string> Values;
    std::vector<std::string> Order; // the keys in the order in which they were written or deleted
    std::string Refused;            // keys that begin with this text refuse writes

    OpenKey Opener()
    {
        return [this](const std::string& path) { return std::make_unique<CKey>(*this, path); };
    }
    std::string At(const std::string& key, const std::string& name = "") const
    {
        const auto found = Values.find({key, name});
        return found == Values.end() ? "missing" : found->second;
    }

private:
    class CKey : public ISettingsKey
    {
    public:
        CKey(CStore& store, std::string path) : m_store(store), m_path(std::move(path)) {}
        CSettingRead Read(std::string_view name) override
        {
            const auto found = m_store.Values.find({m_path, std::string(name)});
            return found == m_store.Values.end() ? CSettingRead::Missing() : CSettingRead(found->second);
        }
        bool Write(std::string_view name, const SettingValue& value) override
        {
            if (Refuses())
                return false;
            m_store.Order.push_back(m_path);
            m_store.Values[{m_path, std::string(name)}] = std::get<std::string>(value);
            return true;
        }
        bool Delete(std::string_view name) override
        {
            if (Refuses())
                return false;
            m_store.Order.push_back(m_path);
            return m_store.Values.erase({m_path, std::string(name)}) > 0;
        }
        std::vector<std::pair<std::string, SettingValue>> List() override { return {}; }

    private:
        bool Refuses() const { return !m_store.Refused.empty() && m_path.starts_with(m_store.Refused); }

        CStore& m_store;
        const std::string m_path;
    };
};

std::size_t Last(const CStore& store, const std::string& beginning)
{
    std::size_t last = 0;
    for (std::size_t i = 0; i < store.Order.size(); ++i)
        if (store.Order[i].starts_with(beginning))
            last = i;
    return last;
}

} // namespace

TEST(Registration, AHostThatKnowsTheProgIdFindsTheModule)
{
    CStore store;
    EXPECT_EQ(RegisterModule(store.Opener(), "/p/module.so"), 0u);
    EXPECT_EQ(store.At("Software\\Classes\\Brivane.Chart.1\\CLSID"),
              "{48876666-91D5-11D1-8A25-00AA00B7CA93}");
    EXPECT_EQ(store.At(Class + "\\InprocServer32"), "/p/module.so");
    EXPECT_EQ(store.At(Class + "\\InprocServer32", "ThreadingModel"), "Apartment");
    EXPECT_EQ(store.At(Class), "Chart Control");
    EXPECT_EQ(store.At(Class + "\\ProgID"), "Brivane.Chart.1");
    EXPECT_EQ(store.At(Class + "\\MiscStatus\\1"), std::to_string(0x20191));
    EXPECT_EQ(store.At(Class + "\\ToolboxBitmap32"), "/p/module.so, 1");
    EXPECT_EQ(store.At(Class + "\\Insertable"), "");
    EXPECT_EQ(store.At(Class + "\\TypeLib"), "{48876663-91D5-11D1-8A25-00AA00B7CA93}");
    EXPECT_EQ(store.At(Library), "Chart ActiveX Control module");
    EXPECT_EQ(store.At(Library, "HelpFile"), "Chart.hlp");
    EXPECT_EQ(store.At("Software\\Classes\\Interface\\{48876664-91D5-11D1-8A25-00AA00B7CA93}"), "_DChart");
    EXPECT_EQ(store.At("Software\\Classes\\Interface\\{48876665-91D5-11D1-8A25-00AA00B7CA93}"),
              "_DChartEvents");
    EXPECT_EQ(store.At(Categories + Scriptable), "Controls that are safely scriptable");
    EXPECT_EQ(store.At(Categories + Initializable), "Controls safely initializable from persistent data");
    EXPECT_EQ(store.At(Class + "\\Implemented Categories\\" + Scriptable), "");
    EXPECT_EQ(store.At(Class + "\\Implemented Categories\\" + Initializable), "");
}

TEST(Registration, WritesTheLibraryTheClassTheCategoriesAndWhatIsImplementedInThisOrder)
{
    CStore store;
    RegisterModule(store.Opener(), "/p/module.so");
    EXPECT_LT(Last(store, Library), Last(store, Class + "\\InprocServer32"));
    EXPECT_LT(Last(store, Class + "\\InprocServer32"), Last(store, Categories));
    EXPECT_LT(Last(store, Categories), Last(store, Class + "\\Implemented Categories"));
}

TEST(Registration, WithoutATypeLibraryNothingElseIsWritten)
{
    CStore store;
    store.Refused = Library;
    EXPECT_EQ(RegisterModule(store.Opener(), "/p/module.so"), 0x80040200u);
    EXPECT_TRUE(store.Values.empty());
}

TEST(Registration, AClassThatCannotBeWrittenLeavesTheCategoriesOut)
{
    CStore store;
    store.Refused = Class;
    EXPECT_EQ(RegisterModule(store.Opener(), "/p/module.so"), 0x80040201u);
    EXPECT_EQ(store.At(Categories + Scriptable), "missing");
}

TEST(Registration, CategoriesThatFailSkipWhatIsImplementedAndAreNoFailure)
{
    CStore store;
    store.Refused = Categories + Initializable;
    EXPECT_EQ(RegisterModule(store.Opener(), "/p/module.so"), 0u);
    EXPECT_EQ(store.At(Categories + Scriptable), "Controls that are safely scriptable");
    EXPECT_EQ(store.At(Class + "\\Implemented Categories\\" + Scriptable), "missing");
}

TEST(Registration, UnregisteringLeavesTheTwoCategoriesAlone)
{
    CStore store;
    RegisterModule(store.Opener(), "/p/module.so");
    EXPECT_EQ(UnregisterModule(store.Opener()), 0u);
    const std::map<CStore::Place, std::string> left{
        {{Categories + Scriptable, ""}, "Controls that are safely scriptable"},
        {{Categories + Initializable, ""}, "Controls safely initializable from persistent data"}};
    EXPECT_EQ(store.Values, left);
    EXPECT_EQ(UnregisterModule(store.Opener()), 0u); // no record exists any more
}

TEST(Registration, UnregisteringReportsWhatStays)
{
    CStore store;
    RegisterModule(store.Opener(), "/p/module.so");
    store.Refused = Class;
    EXPECT_EQ(UnregisterModule(store.Opener()), 0x80040201u);
    EXPECT_EQ(store.At(Library), "missing");
    store.Values[{Library, ""}] = "Chart ActiveX Control module";
    store.Refused = Library;
    EXPECT_EQ(UnregisterModule(store.Opener()), 0x80040200u);
    EXPECT_EQ(store.At(Class), "Chart Control");
}

} // namespace zantroq::test
