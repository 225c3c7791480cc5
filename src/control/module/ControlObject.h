// A control of the module: a chart with references, property access, a place in a window, stored properties and
// one function to notify. Thread of the application's widgets.
#pragma once

#include "control/ForeignWindow.h"

#include <zantroq/ChartCtrl.h>
#include <zantroq/module.h>

#include <QByteArray>

#include <memory>

namespace zantroq {

struct sModuleProperty
{
    const char* Name;
    std::int32_t Number;
    std::int32_t Type; // the type of its values
};

// Null if no property has the name or number.
const sModuleProperty* FindProperty(const char* name);
const sModuleProperty* FindProperty(std::int32_t number);

class CControlObject : public sZantroqControl
{
public:
    // The control starts with one reference.
    explicit CControlObject(const sZantroqControlTable& table);
    CControlObject(const CControlObject&) = delete;
    CControlObject& operator=(const CControlObject&) = delete;

    static int Alive();      // number of controls
    static bool Notifying(); // whether a host's function is being called

    std::uint32_t AddRef() { return ++m_references; }
    // The control ends with its last reference, but not before the last CUse of it.
    std::uint32_t Release();

    // A call of the host on the control. The control outlives the call, even if the host releases the control
    // in a notification.
    class CUse
    {
    public:
        explicit CUse(CControlObject& control) : m_control(control) { ++m_control.m_uses; }
        ~CUse();
        CUse(const CUse&) = delete;
        CUse& operator=(const CUse&) = delete;

    private:
        CControlObject& m_control;
    };

    // All return a result of zantroq/module.h. The property may be null.
    std::int32_t Get(const sModuleProperty* property, sZantroqValue* value);
    std::int32_t Put(const sModuleProperty* property, const sZantroqValue* value);
    std::int32_t Place(std::uint32_t window);
    std::int32_t Save(std::uint8_t* bytes, std::size_t room, std::size_t* size) const;
    std::int32_t Load(const std::uint8_t* bytes, std::size_t size);
    void Notify(ZantroqChanged changed, void* user);

private:
    ~CControlObject();
    void Tell(std::int32_t number);
    void EndLater();

    CChartCtrl m_chart;
    std::unique_ptr<CForeignWindow> m_foreign;
    std::uint32_t m_references = 1;
    int m_uses = 0;
    ZantroqChanged m_changed = nullptr;
    void* m_user = nullptr; // passed to the notification
    QByteArray m_text;      // the text that Get returned last
};

} // namespace zantroq
