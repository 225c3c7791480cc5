// The four exported functions and the class factory.
#include "control/module/ControlObject.h"
#include "control/module/ControlTable.h"
#include "control/module/Guarded.h"
#include "control/module/Registration.h"

#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <system_error>

namespace zantroq {
namespace {

std::uint32_t factoryReferences = 0;

std::uint32_t AddRef(sZantroqFactory*)
{
    return ++factoryReferences;
}

std::uint32_t Release(sZantroqFactory*)
{
    return --factoryReferences;
}

std::int32_t Create(sZantroqFactory*, sZantroqControl** control)
{
    return Guarded([control]() -> std::int32_t {
        if (control == nullptr)
            return ZANTROQ_BAD_POINTER;
        *control = nullptr;
        const std::int32_t result = NeedApplication();
        if (result == ZANTROQ_OK)
            *control = new CControlObject(ControlTable());
        return result;
    });
}

std::int32_t Pump(sZantroqFactory*, std::int32_t milliseconds)
{
    return Guarded([milliseconds]() -> std::int32_t {
        if (milliseconds < 0)
            return ZANTROQ_BAD_VALUE;
        if (CControlObject::Notifying())
            return ZANTROQ_BUSY;
        PumpApplication(milliseconds);
        return ZANTROQ_OK;
    });
}

constexpr sZantroqFactoryTable FactoryTable{sizeof FactoryTable, AddRef, Release, Create, Pump};
sZantroqFactory factoryObject{&FactoryTable};

bool Same(const sZantroqId& a, const sZantroqId& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

std::unique_ptr<ISettingsKey> UsersKey(const std::string& path)
{
    return OpenSettingsKey(path);
}

// The absolute path, even if the host loaded the module by a relative path. Empty if the file no longer exists.
std::string ModulePath()
{
    Dl_info info{};
    if (dladdr(&factoryObject, &info) == 0 || info.dli_fname == nullptr)
        return {};
    std::error_code error;
    const std::filesystem::path path = std::filesystem::canonical(info.dli_fname, error);
    return error ? std::string() : path.string();
}

} // namespace
} // namespace zantroq

std::int32_t DllRegisterServer()
{
    return zantroq::Guarded([] {
        return static_cast<std::int32_t>(zantroq::RegisterModule(zantroq::UsersKey, zantroq::ModulePath()));
    });
}

std::int32_t DllUnregisterServer()
{
    return zantroq::Guarded(
        [] { return static_cast<std::int32_t>(zantroq::UnregisterModule(zantroq::UsersKey)); });
}

std::int32_t DllGetClassObject(const sZantroqId* type, const sZantroqId* offered, sZantroqFactory** factory)
{
    constexpr sZantroqId chart = ZANTROQ_CHART_CLASS, dispatch = ZANTROQ_CHART_INTERFACE;
    if (factory != nullptr)
        *factory = nullptr;
    if (type == nullptr || offered == nullptr || factory == nullptr)
        return ZANTROQ_BAD_POINTER;
    if (!zantroq::Same(*type, chart))
        return ZANTROQ_NO_CLASS;
    if (!zantroq::Same(*offered, dispatch))
        return ZANTROQ_NO_INTERFACE;
    ++zantroq::factoryReferences;
    *factory = &zantroq::factoryObject;
    return ZANTROQ_OK;
}

std::int32_t DllCanUnloadNow()
{
    if (zantroq::factoryReferences > 0 || zantroq::CControlObject::Alive() > 0)
        return ZANTROQ_IN_USE;
    return zantroq::Guarded([]() -> std::int32_t {
        zantroq::EndOwnApplication();
        return ZANTROQ_OK;
    });
}
