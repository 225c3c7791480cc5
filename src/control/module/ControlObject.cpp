#include "control/module/ControlObject.h"

#include "control/StoredProperties.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <cstring>

namespace zantroq {
namespace {

int alive = 0;
int notifying = 0;

constexpr std::array Properties{
    sModuleProperty{"StockSymbol", ZANTROQ_STOCK_SYMBOL, ZANTROQ_TEXT},
    sModuleProperty{"ResizeParentWindow", ZANTROQ_RESIZE_PARENT_WINDOW, ZANTROQ_BOOLEAN},
    sModuleProperty{"Appearance", ZANTROQ_APPEARANCE, ZANTROQ_INTEGER},
    sModuleProperty{"BorderStyle", ZANTROQ_BORDER_STYLE, ZANTROQ_INTEGER},
    sModuleProperty{"Enabled", ZANTROQ_ENABLED, ZANTROQ_BOOLEAN}};

template<class TMatch> const sModuleProperty* FindWhere(TMatch match)
{
    const auto* const found = std::find_if(Properties.begin(), Properties.end(), match);
    return found == Properties.end() ? nullptr : found;
}

} // namespace

const sModuleProperty* FindProperty(const char* name)
{
    return FindWhere([name](const sModuleProperty& row) { return std::strcmp(row.Name, name) == 0; });
}

const sModuleProperty* FindProperty(std::int32_t number)
{
    return FindWhere([number](const sModuleProperty& row) { return row.Number == number; });
}

CControlObject::CControlObject(const sZantroqControlTable& table) : sZantroqControl{&table}
{
    ++alive;
    QObject::connect(&m_chart, &CChartCtrl::StockSymbolChanged, &m_chart,
                     [this] { Tell(ZANTROQ_STOCK_SYMBOL); });
    QObject::connect(&m_chart, &CChartCtrl::ResizeParentWindowChanged, &m_chart,
                     [this] { Tell(ZANTROQ_RESIZE_PARENT_WINDOW); });
    QObject::connect(&m_chart, &CChartCtrl::AppearanceChanged, &m_chart,
                     [this] { Tell(ZANTROQ_APPEARANCE); });
    QObject::connect(&m_chart, &CChartCtrl::BorderStyleChanged, &m_chart,
                     [this] { Tell(ZANTROQ_BORDER_STYLE); });
    QObject::connect(&m_chart, &CChartCtrl::EnabledChanged, &m_chart, [this] { Tell(ZANTROQ_ENABLED); });
}

CControlObject::~CControlObject()
{
    --alive;
}

int CControlObject::Alive()
{
    return alive;
}

bool CControlObject::Notifying()
{
    return notifying > 0;
}

std::uint32_t CControlObject::Release()
{
    const std::uint32_t left = --m_references;
    if (left == 0 && m_uses == 0)
        delete this;
    return left;
}

CControlObject::CUse::~CUse()
{
    if (--m_control.m_uses == 0 && m_control.m_references == 0)
        delete &m_control;
}

void CControlObject::Tell(std::int32_t number)
{
    if (m_changed == nullptr || m_references == 0)
        return;
    ++m_uses;
    ++notifying;
    try {
        m_changed(m_user, number);
    } catch (...) { // the toolkit calls this function and does not let exceptions pass
    }
    --notifying;
    if (--m_uses == 0 && m_references == 0)
        EndLater(); // the chart is still handling the change
}

void CControlObject::EndLater()
{
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [this] { delete this; }, Qt::QueuedConnection);
}

std::int32_t CControlObject::Get(const sModuleProperty* property, sZantroqValue* value)
{
    if (value == nullptr)
        return ZANTROQ_BAD_POINTER;
    if (property == nullptr)
        return ZANTROQ_NO_PROPERTY;
    const QVariant now = m_chart.property(property->Name);
    *value = {property->Type, 0, nullptr};
    if (property->Type == ZANTROQ_TEXT) {
        m_text = now.toString().toUtf8();
        value->Text = m_text.constData();
    } else {
        value->Number = now.toInt();
    }
    return ZANTROQ_OK;
}

std::int32_t CControlObject::Put(const sModuleProperty* property, const sZantroqValue* value)
{
    if (value == nullptr)
        return ZANTROQ_BAD_POINTER;
    if (property == nullptr)
        return ZANTROQ_NO_PROPERTY;
    if (value->Type != property->Type)
        return ZANTROQ_WRONG_TYPE;
    if (property->Type == ZANTROQ_TEXT) {
        if (value->Text == nullptr)
            return ZANTROQ_BAD_POINTER;
        m_chart.setProperty(property->Name, QString::fromUtf8(value->Text));
        return ZANTROQ_OK;
    }
    if (value->Number != 0 && value->Number != 1)
        return ZANTROQ_BAD_VALUE;
    m_chart.setProperty(property->Name, value->Number);
    return ZANTROQ_OK;
}

std::int32_t CControlObject::Place(std::uint32_t window)
{
    if (window == 0) {
        m_foreign.reset();
        m_chart.show();
        return ZANTROQ_OK;
    }
    QString wrong;
    std::unique_ptr<CForeignWindow> foreign = CForeignWindow::Find(window, wrong);
    if (foreign == nullptr)
        return ZANTROQ_NO_WINDOW;
    m_foreign.reset(); // leaves its window first
    m_foreign = std::move(foreign);
    m_foreign->Take(m_chart);
    return ZANTROQ_OK;
}

std::int32_t CControlObject::Save(std::uint8_t* bytes, std::size_t room, std::size_t* size) const
{
    if (size == nullptr)
        return ZANTROQ_BAD_POINTER;
    const auto stored = WriteProperties({m_chart.Appearance(), m_chart.BorderStyle(), m_chart.isEnabled()});
    *size = stored.size();
    if (bytes == nullptr)
        return ZANTROQ_OK;
    if (room < stored.size())
        return ZANTROQ_NO_ROOM;
    std::memcpy(bytes, stored.data(), stored.size());
    return ZANTROQ_OK;
}

std::int32_t CControlObject::Load(const std::uint8_t* bytes, std::size_t size)
{
    if (bytes == nullptr)
        return ZANTROQ_BAD_POINTER;
    sStoredProperties stored;
    if (!ReadProperties({bytes, size}, stored))
        return ZANTROQ_BAD_VALUE;
    m_chart.SetAppearance(stored.Appearance);
    m_chart.SetBorderStyle(stored.BorderStyle);
    m_chart.setEnabled(stored.Enabled);
    return ZANTROQ_OK;
}

void CControlObject::Notify(ZantroqChanged changed, void* user)
{
    m_changed = changed;
    m_user = user;
}

} // namespace zantroq
