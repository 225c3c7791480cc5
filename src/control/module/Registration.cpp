#include "control/module/Registration.h"

#include <algorithm>

namespace zantroq {
namespace {

constexpr const char* Root = "Software\\Classes\\";
constexpr const char* Library = "{48876663-91D5-11D1-8A25-00AA00B7CA93}";
constexpr const char* Dispatch = "{48876664-91D5-11D1-8A25-00AA00B7CA93}";
constexpr const char* Events = "{48876665-91D5-11D1-8A25-00AA00B7CA93}";
constexpr const char* Class = "{48876666-91D5-11D1-8A25-00AA00B7CA93}";
constexpr const char* Scriptable = "{7DD95801-9882-11CF-9FA9-00AA006C42C4}";
constexpr const char* Initializable = "{7DD95802-9882-11CF-9FA9-00AA006C42C4}";
constexpr const char* ProgId = "Brivane.Chart.1";
constexpr const char* ClassName = "Chart Control";
constexpr const char* MiscStatus = "131473"; // 0x20191
constexpr const char* LibraryVersion = "1.0";

std::string Key(const std::string& path)
{
    return Root + path;
}

bool WriteAll(const OpenKey& open, const RegistrationRecords& records)
{
    return std::all_of(records.begin(), records.end(), [&open](const sRegistrationRecord& record) {
        return open(record.Key)->Write(record.Name, record.Value);
    });
}

bool RemoveAll(const OpenKey& open, const RegistrationRecords& records)
{
    return std::all_of(records.begin(), records.end(), [&open](const sRegistrationRecord& record) {
        const std::unique_ptr<ISettingsKey> key = open(record.Key);
        return key->Delete(record.Name) || key->Read(record.Name).Result() == ReadResult::Missing;
    });
}

} // namespace

RegistrationRecords TypeLibraryRecords(const std::string& modulePath)
{
    const std::string library = Key(std::string("TypeLib\\") + Library + "\\1.0");
    RegistrationRecords records{{library, "", "Chart ActiveX Control module"},
                                {library, "Name", "CHARTLib"},
                                {library, "HelpFile", "Chart.hlp"},
                                {library, "Module", modulePath}};
    const auto interface = [&records](const char* id, const char* name, const char* help) {
        const std::string key = Key(std::string("Interface\\") + id);
        records.push_back({key, "", name});
        records.push_back({key, "Description", help});
        records.push_back({key + "\\TypeLib", "", Library});
        records.push_back({key + "\\TypeLib", "Version", LibraryVersion});
    };
    interface(Dispatch, "_DChart", "Dispatch interface for Chart Control");
    interface(Events, "_DChartEvents", "Event interface for Chart Control");
    return records;
}

RegistrationRecords ClassRecords(const std::string& modulePath)
{
    const std::string key = Key(std::string("CLSID\\") + Class), program = Key(ProgId);
    return {{key, "", ClassName},
            {key + "\\ProgID", "", ProgId},
            {key + "\\InprocServer32", "", modulePath},
            {key + "\\InprocServer32", "ThreadingModel", "Apartment"},
            {key + "\\ToolboxBitmap32", "", modulePath + ", 1"},
            {key + "\\Insertable", "", ""},
            {key + "\\Control", "", ""},
            {key + "\\MiscStatus", "", "0"},
            {key + "\\MiscStatus\\1", "", MiscStatus},
            {key + "\\TypeLib", "", Library},
            {key + "\\Version", "", LibraryVersion},
            {program, "", ClassName},
            {program + "\\CLSID", "", Class},
            {program + "\\Insertable", "", ""}};
}

RegistrationRecords CategoryRecords()
{
    const std::string categories = Key("Component Categories\\");
    return {{categories + Scriptable, "", "Controls that are safely scriptable"},
            {categories + Initializable, "", "Controls safely initializable from persistent data"}};
}

RegistrationRecords ImplementedRecords()
{
    const std::string implemented = Key(std::string("CLSID\\") + Class + "\\Implemented Categories\\");
    return {{implemented + Scriptable, "", ""}, {implemented + Initializable, "", ""}};
}

RegistrationResult RegisterModule(const OpenKey& open, const std::string& modulePath)
{
    if (modulePath.empty() || !WriteAll(open, TypeLibraryRecords(modulePath)))
        return NoTypeLibrary;
    if (!WriteAll(open, ClassRecords(modulePath)))
        return NoClass;
    if (WriteAll(open, CategoryRecords()))
        WriteAll(open, ImplementedRecords());
    return Registered;
}

RegistrationResult UnregisterModule(const OpenKey& open)
{
    if (!RemoveAll(open, TypeLibraryRecords("")))
        return NoTypeLibrary;
    if (!RemoveAll(open, ClassRecords("")) || !RemoveAll(open, ImplementedRecords()))
        return NoClass;
    return Registered;
}

} // namespace zantroq
