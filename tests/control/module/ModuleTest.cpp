// The functions, factory and controls of the in-process module, without a display.
#include "control/module/LoadedModule.h"

#include <array>
#include <clocale>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zantroq::test {
namespace {

class Module : public CLoadedModule
{
};

struct sHeard
{
    sZantroqControl* Control = nullptr;
    sZantroqFactory* Factory = nullptr;
    std::vector<std::int32_t> Numbers;
    std::int32_t Result = ZANTROQ_OK;
};

void Hear(void* user, std::int32_t number)
{
    static_cast<sHeard*>(user)->Numbers.push_back(number);
}

void HearAndRelease(void* user, std::int32_t number)
{
    auto& heard = *static_cast<sHeard*>(user);
    heard.Numbers.push_back(number);
    heard.Control->Table->Release(heard.Control);
}

} // namespace

TEST_F(Module, OffersTheControlClassWithItsInterfaceAndNothingElse)
{
    sZantroqId other = ChartClass;
    other.Data4[7] ^= 1;
    sZantroqFactory* factory = m_factory;
    EXPECT_EQ(GetClassObject(other, ChartInterface, &factory), ZANTROQ_NO_CLASS);
    EXPECT_EQ(factory, nullptr);
    EXPECT_EQ(GetClassObject(ChartClass, other, &factory), ZANTROQ_NO_INTERFACE);
    EXPECT_EQ(GetClassObject(ChartClass, ChartInterface, nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(m_factory->Table->Create(m_factory, nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(m_factory->Table->Size, sizeof(sZantroqFactoryTable));
    EXPECT_EQ(m_factory->Table->AddRef(m_factory), 2u);
    EXPECT_EQ(m_factory->Table->Release(m_factory), 1u);
}

TEST_F(Module, HasFivePropertiesByNameAndByDispatchNumber)
{
    sZantroqControl* const control = Create();
    const std::array<std::pair<const char*, std::int32_t>, 5> rows{{{"StockSymbol", 1},
                                                                    {"ResizeParentWindow", 2},
                                                                    {"Appearance", -520},
                                                                    {"BorderStyle", -504},
                                                                    {"Enabled", -514}}};
    for (const auto& [name, expected] : rows) {
        std::int32_t number = 0;
        EXPECT_EQ(control->Table->NumberOf(control, name, &number), ZANTROQ_OK) << name;
        EXPECT_EQ(number, expected) << name;
        sZantroqValue byName{}, byNumber{};
        EXPECT_EQ(control->Table->GetByName(control, name, &byName), ZANTROQ_OK);
        EXPECT_EQ(control->Table->Get(control, expected, &byNumber), ZANTROQ_OK);
        EXPECT_EQ(byName.Type, byNumber.Type);
        EXPECT_EQ(byName.Number, byNumber.Number);
    }
    std::int32_t number = 77;
    sZantroqValue value{ZANTROQ_INTEGER, 1, nullptr};
    EXPECT_EQ(control->Table->NumberOf(control, "enabled", &number), ZANTROQ_NO_PROPERTY);
    EXPECT_EQ(number, 77);
    EXPECT_EQ(control->Table->Get(control, 3, &value), ZANTROQ_NO_PROPERTY);
    EXPECT_EQ(control->Table->Put(control, -501, &value), ZANTROQ_NO_PROPERTY);
    EXPECT_EQ(control->Table->PutByName(control, "windowTitle", &value), ZANTROQ_NO_PROPERTY);
    EXPECT_EQ(control->Table->Size, sizeof(sZantroqControlTable));
    EXPECT_EQ(control->Table->Release(control), 0u);
}

TEST_F(Module, PropertiesStartEmptyFlatWithoutABorderAndEnabledAndKeepWhatIsPut)
{
    sZantroqControl* const control = Create();
    EXPECT_EQ(SymbolIn(control), "");
    EXPECT_EQ(NumberIn(control, "ResizeParentWindow"), 0);
    EXPECT_EQ(NumberIn(control, "Appearance"), 0);
    EXPECT_EQ(NumberIn(control, "BorderStyle"), 0);
    EXPECT_EQ(NumberIn(control, "Enabled"), 1);
    EXPECT_EQ(PutSymbol(control, "H\xC3\x84\xC3\x9F"), ZANTROQ_OK);
    EXPECT_EQ(PutNumber(control, "ResizeParentWindow", ZANTROQ_BOOLEAN, 1), ZANTROQ_OK);
    EXPECT_EQ(PutNumber(control, "Appearance", ZANTROQ_INTEGER, 1), ZANTROQ_OK);
    EXPECT_EQ(PutNumber(control, "BorderStyle", ZANTROQ_INTEGER, 1), ZANTROQ_OK);
    EXPECT_EQ(PutNumber(control, "Enabled", ZANTROQ_BOOLEAN, 0), ZANTROQ_OK);
    EXPECT_EQ(SymbolIn(control), "H\xC3\x84\xC3\x9F");
    EXPECT_EQ(NumberIn(control, "ResizeParentWindow"), 1);
    EXPECT_EQ(NumberIn(control, "Appearance"), 1);
    EXPECT_EQ(NumberIn(control, "BorderStyle"), 1);
    EXPECT_EQ(NumberIn(control, "Enabled"), 0);
    control->Table->Release(control);
}

TEST_F(Module, AValueOfAnotherTypeOrOutOfRangeIsAFailureAndChangesNothing)
{
    sZantroqControl* const control = Create();
    EXPECT_EQ(PutNumber(control, "Appearance", ZANTROQ_INTEGER, 2), ZANTROQ_BAD_VALUE);
    EXPECT_EQ(PutNumber(control, "BorderStyle", ZANTROQ_INTEGER, -1), ZANTROQ_BAD_VALUE);
    EXPECT_EQ(PutNumber(control, "Enabled", ZANTROQ_BOOLEAN, -1), ZANTROQ_BAD_VALUE);
    EXPECT_EQ(PutNumber(control, "Appearance", ZANTROQ_BOOLEAN, 1), ZANTROQ_WRONG_TYPE);
    EXPECT_EQ(PutNumber(control, "StockSymbol", ZANTROQ_INTEGER, 1), ZANTROQ_WRONG_TYPE);
    EXPECT_EQ(NumberIn(control, "Appearance"), 0);
    EXPECT_EQ(NumberIn(control, "BorderStyle"), 0);
    EXPECT_EQ(NumberIn(control, "Enabled"), 1);
    EXPECT_EQ(SymbolIn(control), "");
    control->Table->Release(control);
}

TEST_F(Module, NullPointersAreFailures)
{
    sZantroqControl* const control = Create();
    const sZantroqControlTable& table = *control->Table;
    sZantroqValue value{};
    std::int32_t number = 0;
    EXPECT_EQ(table.NumberOf(control, nullptr, &number), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.NumberOf(control, "Enabled", nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.Get(control, ZANTROQ_ENABLED, nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.Put(control, ZANTROQ_ENABLED, nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.GetByName(control, nullptr, &value), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.PutByName(control, nullptr, &value), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(PutSymbol(control, nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.Save(control, nullptr, 0, nullptr), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.Load(control, nullptr, 10), ZANTROQ_BAD_POINTER);
    EXPECT_EQ(table.Get(nullptr, ZANTROQ_ENABLED, &value), ZANTROQ_BAD_POINTER);
    table.Release(control);
}

TEST_F(Module, AChangeIsNotifiedOnceWithItsDispatchNumber)
{
    sZantroqControl* const control = Create();
    sHeard heard;
    EXPECT_EQ(control->Table->Notify(control, Hear, &heard), ZANTROQ_OK);
    for (int twice = 0; twice < 2; ++twice) {
        PutSymbol(control, "AAA");
        PutNumber(control, "ResizeParentWindow", ZANTROQ_BOOLEAN, 1);
        PutNumber(control, "Appearance", ZANTROQ_INTEGER, 1);
        PutNumber(control, "BorderStyle", ZANTROQ_INTEGER, 1);
        PutNumber(control, "Enabled", ZANTROQ_BOOLEAN, 0);
    }
    EXPECT_EQ(heard.Numbers, (std::vector<std::int32_t>{1, 2, -520, -504, -514}));
    control->Table->Notify(control, nullptr, nullptr);
    PutSymbol(control, "BBB");
    EXPECT_EQ(heard.Numbers.size(), 5u);
    control->Table->Release(control);
}

TEST_F(Module, AControlReleasedInItsNotificationEndsAfterTheCall)
{
    for (const char* name : {"Appearance", "BorderStyle", "Enabled"}) {
        sHeard heard;
        heard.Control = Create();
        heard.Control->Table->Notify(heard.Control, HearAndRelease, &heard);
        const bool isEnabled = std::string(name) == "Enabled";
        EXPECT_EQ(PutNumber(heard.Control, name, isEnabled ? ZANTROQ_BOOLEAN : ZANTROQ_INTEGER, !isEnabled),
                  ZANTROQ_OK);
        EXPECT_EQ(heard.Numbers.size(), 1u) << name;
    }
    sHeard heard;
    heard.Control = Create();
    heard.Control->Table->Notify(heard.Control, HearAndRelease, &heard);
    EXPECT_EQ(PutSymbol(heard.Control, "AAA"), ZANTROQ_OK);
    EXPECT_EQ(heard.Numbers.size(), 1u);
    // Stored properties change three times; the host is not notified after it has released the control.
    heard = {};
    heard.Control = Create();
    heard.Control->Table->Notify(heard.Control, HearAndRelease, &heard);
    const std::array<std::uint8_t, 10> bytes{0, 0, 1, 0, 1, 0, 1, 0, 0, 0};
    EXPECT_EQ(heard.Control->Table->Load(heard.Control, bytes.data(), bytes.size()), ZANTROQ_OK);
    EXPECT_EQ(heard.Numbers.size(), 1u);
}

TEST_F(Module, AnExceptionOfTheHostsFunctionEndsInTheModule)
{
    sZantroqControl* const control = Create();
    const ZantroqChanged thrower = [](void*, std::int32_t) { throw std::runtime_error("the host's"); };
    control->Table->Notify(control, thrower, nullptr);
    EXPECT_NO_THROW(PutNumber(control, "Appearance", ZANTROQ_INTEGER, 1));
    EXPECT_NO_THROW(PutNumber(control, "Enabled", ZANTROQ_BOOLEAN, 0));
    EXPECT_EQ(NumberIn(control, "Enabled"), 0);
    control->Table->Release(control);
}

TEST_F(Module, PumpIsRefusedInANotificationAndForANegativeTime)
{
    EXPECT_EQ(m_factory->Table->Pump(m_factory, -1), ZANTROQ_BAD_VALUE);
    sHeard heard;
    heard.Control = Create();
    heard.Factory = m_factory;
    const ZantroqChanged pumping = [](void* user, std::int32_t) {
        auto& asked = *static_cast<sHeard*>(user);
        asked.Result = asked.Factory->Table->Pump(asked.Factory, 0);
    };
    heard.Control->Table->Notify(heard.Control, pumping, &heard);
    PutNumber(heard.Control, "Appearance", ZANTROQ_INTEGER, 1);
    EXPECT_EQ(heard.Result, ZANTROQ_BUSY);
    EXPECT_EQ(m_factory->Table->Pump(m_factory, 0), ZANTROQ_OK);
    heard.Control->Table->Release(heard.Control);
}

TEST_F(Module, StoredPropertiesHaveAVersionAndNeitherSymbolNorResizeParentWindow)
{
    sZantroqControl* const control = Create();
    PutSymbol(control, "AAA");
    PutNumber(control, "ResizeParentWindow", ZANTROQ_BOOLEAN, 1);
    PutNumber(control, "Appearance", ZANTROQ_INTEGER, 1);
    PutNumber(control, "Enabled", ZANTROQ_BOOLEAN, 0);
    std::size_t size = 0;
    EXPECT_EQ(control->Table->Save(control, nullptr, 0, &size), ZANTROQ_OK);
    ASSERT_EQ(size, 10u);
    std::array<std::uint8_t, 10> bytes{};
    size = 0;
    EXPECT_EQ(control->Table->Save(control, bytes.data(), 9, &size), ZANTROQ_NO_ROOM);
    EXPECT_EQ(size, 10u);
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 10>{}));
    EXPECT_EQ(control->Table->Save(control, bytes.data(), bytes.size(), &size), ZANTROQ_OK);
    EXPECT_EQ(bytes, (std::array<std::uint8_t, 10>{0, 0, 1, 0, 1, 0, 0, 0, 0, 0})); // version 0x10000
    sZantroqControl* const other = Create();
    PutNumber(other, "BorderStyle", ZANTROQ_INTEGER, 1);
    EXPECT_EQ(other->Table->Load(other, bytes.data(), bytes.size()), ZANTROQ_OK);
    EXPECT_EQ(NumberIn(other, "Appearance"), 1);
    EXPECT_EQ(NumberIn(other, "BorderStyle"), 0);
    EXPECT_EQ(NumberIn(other, "Enabled"), 0);
    EXPECT_EQ(NumberIn(other, "ResizeParentWindow"), 0);
    EXPECT_EQ(SymbolIn(other), "");
    bytes[2] = 2; // another version
    bytes[4] = 0;
    EXPECT_EQ(other->Table->Load(other, bytes.data(), bytes.size()), ZANTROQ_BAD_VALUE);
    EXPECT_EQ(other->Table->Load(other, bytes.data(), 4), ZANTROQ_BAD_VALUE);
    EXPECT_EQ(NumberIn(other, "Appearance"), 1);
    control->Table->Release(control);
    other->Table->Release(other);
}

TEST_F(Module, ASymbolIsAskedOfTheFeedAndTwoControlsShareItsConnections)
{
    sZantroqControl* const first = Create();
    sZantroqControl* const second = Create();
    EXPECT_EQ(PutSymbol(first, "AAA"), ZANTROQ_OK);
    EXPECT_EQ(PutSymbol(second, "BBB"), ZANTROQ_OK);
    EXPECT_TRUE(m_feed.Lookup.AwaitReceived("HTX,AAA,"));
    EXPECT_TRUE(m_feed.Lookup.AwaitReceived("HTX,BBB,"));
    EXPECT_EQ(m_feed.Lookup.Connections(), 1);
    first->Table->Release(first);
    EXPECT_EQ(m_factory->Table->Pump(m_factory, 10), ZANTROQ_OK);
    EXPECT_FALSE(m_feed.Lookup.PeerClosed());
    second->Table->Release(second);
    EXPECT_TRUE(PumpUntil([this] { return m_feed.Lookup.PeerClosed() && m_feed.Level1.PeerClosed(); }));
}

TEST_F(Module, AnEmptySymbolStartsNoChart)
{
    sZantroqControl* const control = Create();
    EXPECT_EQ(PutSymbol(control, ""), ZANTROQ_OK);
    EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
    ASSERT_TRUE(m_feed.Lookup.AwaitReceived("HTX,AAA,"));
    EXPECT_EQ(m_feed.Lookup.Received().find("HTX,"), m_feed.Lookup.Received().rfind("HTX,"));
    control->Table->Release(control);
}

TEST_F(Module, MayBeUnloadedWhenNeitherAControlNorAReferenceToTheFactoryExists)
{
    EXPECT_EQ(Call("DllCanUnloadNow"), ZANTROQ_IN_USE);
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->AddRef(control), 2u);
    EXPECT_EQ(m_factory->Table->Release(m_factory), 0u);
    EXPECT_EQ(Call("DllCanUnloadNow"), ZANTROQ_IN_USE);
    EXPECT_EQ(control->Table->Release(control), 1u);
    EXPECT_EQ(Call("DllCanUnloadNow"), ZANTROQ_IN_USE);
    EXPECT_EQ(control->Table->Release(control), 0u);
    EXPECT_EQ(Call("DllCanUnloadNow"), ZANTROQ_OK);
    EXPECT_EQ(GetClassObject(ChartClass, ChartInterface, &m_factory), ZANTROQ_OK);
}

TEST_F(Module, LeavesTheProcessWhenItIsUnloadedAndWorksWhenItIsLoadedAgain)
{
    for (int round = 0; round < 3; ++round) {
        sZantroqControl* const control = Create();
        EXPECT_EQ(control->Table->Place(control, 0), ZANTROQ_OK);
        EXPECT_EQ(PutSymbol(control, "AAA"), ZANTROQ_OK);
        EXPECT_TRUE(PumpUntil([&] { return m_feed.Level1.Received().find("wAAA") != std::string::npos; }));
        EXPECT_TRUE(IsMapped(FileName));
        control->Table->Release(control);
        Unload();
#if !defined(__SANITIZE_ADDRESS__)
        EXPECT_FALSE(IsMapped(FileName)) << round;
#endif
        Load();
        EXPECT_EQ(m_feed.Lookup.Connections(), round + 1);
    }
}

TEST_F(Module, LeavesNoThreadAndNoDescriptorBehind)
{
    const auto life = [this] {
        std::array<sZantroqControl*, 3> controls{Create(), Create(), Create()};
        for (sZantroqControl* const control : controls)
            control->Table->Place(control, 0);
        PutSymbol(controls[0], "AAA");
        PutSymbol(controls[1], "BBB");
        EXPECT_TRUE(m_feed.Lookup.AwaitReceived("HTX,BBB,"));
        EXPECT_TRUE(PumpUntil([this] { return m_feed.Level1.Connections() > 0; }));
        for (sZantroqControl* const control : controls)
            control->Table->Release(control);
        EXPECT_TRUE(PumpUntil([this] { return m_feed.Lookup.PeerClosed() && m_feed.Level1.PeerClosed(); }));
        Unload();
    };
    life(); // from here on everything that the toolkit keeps for good exists
    const sHeld before;
    for (int round = 0; round < 3; ++round) {
        Load();
        life();
        const sHeld after;
        // Each port of the feed keeps only its side of the newest connection.
        EXPECT_EQ(after, before) << round;
    }
}

TEST_F(Module, CallsFromAnotherThreadFail)
{
    sZantroqControl* const control = Create();
    std::int32_t put = 0, pump = 0;
    std::thread([&] {
        put = PutNumber(control, "Appearance", ZANTROQ_INTEGER, 1);
        pump = m_factory->Table->Pump(m_factory, 0);
    }).join();
    EXPECT_EQ(put, ZANTROQ_WRONG_THREAD);
    EXPECT_EQ(pump, ZANTROQ_WRONG_THREAD);
    EXPECT_EQ(NumberIn(control, "Appearance"), 0);
    control->Table->Release(control);
}

TEST_F(Module, AWindowThatCannotBeEnteredIsAFailure)
{
    sZantroqControl* const control = Create();
    EXPECT_EQ(control->Table->Place(control, 12), ZANTROQ_NO_WINDOW); // no X11 here
    EXPECT_EQ(control->Table->Place(control, 0), ZANTROQ_OK);
    control->Table->Release(control);
}

// In a separate process, because the toolkit changes the locale with the first application of a process.
TEST_F(Module, KeepsTheHostsLocale)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    setenv("LC_ALL", "C.UTF-8", 1);
    const auto create = [this] {
        const std::string before = std::setlocale(LC_ALL, nullptr);
        Create();
        std::filesystem::remove_all(m_folder);
        std::_Exit(before == std::setlocale(LC_ALL, nullptr) ? 0 : 1);
    };
    EXPECT_EXIT(create(), testing::ExitedWithCode(0), "");
    unsetenv("LC_ALL");
}

TEST_F(Module, AHostThatExitsWithAControlAliveEndsNormally)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto exitEarly = [this] {
        sZantroqControl* const control = Create();
        control->Table->Place(control, 0);
        PutSymbol(control, "AAA");
        m_factory->Table->Pump(m_factory, 10);
        std::filesystem::remove_all(m_folder);
        std::exit(0);
    };
    EXPECT_EXIT(exitEarly(), testing::ExitedWithCode(0), "");
}

TEST_F(Module, RegistersItselfByItsWholePathAlsoWhenLoadedByARelativeOne)
{
    Unload();
    Load(std::filesystem::relative(ZANTROQ_CHART_MODULE).string());
    EXPECT_EQ(Call("DllRegisterServer"), ZANTROQ_OK);
    const std::string number = Record("Brivane.Chart.1\\CLSID");
    EXPECT_EQ(number, "{48876666-91D5-11D1-8A25-00AA00B7CA93}");
    EXPECT_EQ(Record("CLSID\\" + number + "\\InprocServer32"),
              std::filesystem::canonical(ZANTROQ_CHART_MODULE).string());
    EXPECT_EQ(Record("Component Categories\\{7DD95801-9882-11CF-9FA9-00AA006C42C4}"),
              "Controls that are safely scriptable");
}

TEST_F(Module, UnregisteringLeavesTheTwoCategoriesInPlace)
{
    EXPECT_EQ(Call("DllRegisterServer"), ZANTROQ_OK);
    EXPECT_EQ(Call("DllUnregisterServer"), ZANTROQ_OK);
    EXPECT_EQ(Record("Brivane.Chart.1\\CLSID"), "missing");
    EXPECT_EQ(Record("TypeLib\\{48876663-91D5-11D1-8A25-00AA00B7CA93}\\1.0"), "missing");
    EXPECT_EQ(Record("Component Categories\\{7DD95801-9882-11CF-9FA9-00AA006C42C4}"),
              "Controls that are safely scriptable");
    EXPECT_EQ(Record("Component Categories\\{7DD95802-9882-11CF-9FA9-00AA006C42C4}"),
              "Controls safely initializable from persistent data");
    EXPECT_EQ(Call("DllUnregisterServer"), ZANTROQ_OK); // no record exists any more
}

TEST_F(Module, ASettingsFileThatTakesNothingGivesTheTypeLibrarysFailure)
{
    std::ofstream(SettingsPath(), std::ios::trunc) << "not a settings file";
    EXPECT_EQ(Call("DllRegisterServer"), ZANTROQ_NO_TYPE_LIBRARY);
    EXPECT_EQ(Call("DllUnregisterServer"), ZANTROQ_NO_TYPE_LIBRARY);
}

} // namespace zantroq::test
