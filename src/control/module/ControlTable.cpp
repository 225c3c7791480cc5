#include "control/module/ControlTable.h"

#include "control/module/ControlObject.h"
#include "control/module/Guarded.h"

namespace zantroq {
namespace {

CControlObject& Of(sZantroqControl* control)
{
    return *static_cast<CControlObject*>(control);
}

template<class TCall> std::int32_t Use(sZantroqControl* control, TCall call) noexcept
{
    return Guarded([&]() -> std::int32_t {
        if (control == nullptr)
            return ZANTROQ_BAD_POINTER;
        const CControlObject::CUse use(Of(control));
        return call(Of(control));
    });
}

std::uint32_t AddRef(sZantroqControl* control)
{
    return Of(control).AddRef();
}

std::uint32_t Release(sZantroqControl* control)
{
    return Of(control).Release();
}

std::int32_t NumberOf(sZantroqControl*, const char* name, std::int32_t* number)
{
    if (name == nullptr || number == nullptr)
        return ZANTROQ_BAD_POINTER;
    const sModuleProperty* const property = FindProperty(name);
    if (property == nullptr)
        return ZANTROQ_NO_PROPERTY;
    *number = property->Number;
    return ZANTROQ_OK;
}

std::int32_t Get(sZantroqControl* control, std::int32_t number, sZantroqValue* value)
{
    return Use(control, [=](CControlObject& object) { return object.Get(FindProperty(number), value); });
}

std::int32_t Put(sZantroqControl* control, std::int32_t number, const sZantroqValue* value)
{
    return Use(control, [=](CControlObject& object) { return object.Put(FindProperty(number), value); });
}

std::int32_t GetByName(sZantroqControl* control, const char* name, sZantroqValue* value)
{
    return Use(control, [=](CControlObject& object) {
        return name == nullptr ? ZANTROQ_BAD_POINTER : object.Get(FindProperty(name), value);
    });
}

std::int32_t PutByName(sZantroqControl* control, const char* name, const sZantroqValue* value)
{
    return Use(control, [=](CControlObject& object) {
        return name == nullptr ? ZANTROQ_BAD_POINTER : object.Put(FindProperty(name), value);
    });
}

std::int32_t Place(sZantroqControl* control, std::uint32_t window)
{
    return Use(control, [=](CControlObject& object) { return object.Place(window); });
}

std::int32_t Save(sZantroqControl* control, std::uint8_t* bytes, std::size_t room, std::size_t* size)
{
    return Use(control, [=](CControlObject& object) { return object.Save(bytes, room, size); });
}

std::int32_t Load(sZantroqControl* control, const std::uint8_t* bytes, std::size_t size)
{
    return Use(control, [=](CControlObject& object) { return object.Load(bytes, size); });
}

std::int32_t Notify(sZantroqControl* control, ZantroqChanged changed, void* user)
{
    return Use(control, [=](CControlObject& object) -> std::int32_t {
        object.Notify(changed, user);
        return ZANTROQ_OK;
    });
}

} // namespace

const sZantroqControlTable& ControlTable()
{
    static constexpr sZantroqControlTable table{sizeof table, AddRef,    Release, NumberOf, Get,  Put,
                                                GetByName,    PutByName, Place,   Save,     Load, Notify};
    return table;
}

} // namespace zantroq
