#include "ChartService.h"

#include "control/ChartBody.h"
#include "window/ChartDlg.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>

#include <array>
#include <optional>

namespace zantroq {
namespace {

constexpr const char* ObjectPath = "/org/zantroq/Chart/1";
constexpr const char* Interface = "org.zantroq.Chart1";
constexpr const char* PropertiesInterface = "org.freedesktop.DBus.Properties";
constexpr int SnapshotPatience = 20'000,
              LookAgain = 20; // milliseconds; bus libraries abandon a call after 25 s

constexpr const char* Description = R"( <interface name="org.zantroq.Chart1">
  <property name="StockSymbol" type="s" access="readwrite"/>
  <property name="ResizeParentWindow" type="b" access="readwrite"/>
  <property name="Appearance" type="n" access="readwrite"/>
  <property name="BorderStyle" type="n" access="readwrite"/>
  <property name="Enabled" type="b" access="readwrite"/>
  <method name="Snapshot"><arg name="path" type="s" direction="in"/></method>
 </interface>
)";

constexpr std::array PropertyNames{"StockSymbol", "ResizeParentWindow", "Appearance", "BorderStyle",
                                   "Enabled"};

bool IsProperty(const QString& name)
{
    for (const char* const known : PropertyNames)
        if (name == known)
            return true;
    return false;
}

// Without a bus, its library would start one.
bool HasSessionBus()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !folder.isEmpty() && QFileInfo::exists(folder + "/bus");
}

// Clients in some languages cannot choose the width of integers.
std::optional<int> WholeNumber(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong: {
        const qlonglong number = value.toLongLong();
        return number == static_cast<int>(number) ? std::optional(static_cast<int>(number)) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

// Sets a property. Returns an empty text, or what is wrong with the value.
QString Put(CChartCtrl& control, const QString& name, const QVariant& value)
{
    if (name == "StockSymbol") {
        if (value.typeId() != QMetaType::QString)
            return "StockSymbol: takes a text";
        control.SetStockSymbol(value.toString());
    } else if (name == "ResizeParentWindow" || name == "Enabled") {
        if (value.typeId() != QMetaType::Bool)
            return name + ": takes true or false";
        if (name == "Enabled")
            control.setEnabled(value.toBool());
        else
            control.SetResizeParentWindow(value.toBool());
    } else {
        const std::optional<int> number = WholeNumber(value);
        if (!number || *number < 0 || *number > 1)
            return name + ' ' + value.toString() + ": takes the numbers 0 and 1";
        if (name == "Appearance")
            control.SetAppearance(*number);
        else
            control.SetBorderStyle(*number);
    }
    return {};
}

} // namespace

CChartService::CChartService(CChartCtrl& control) : m_control(control)
{
    if (!HasSessionBus())
        return;
    Register();
    if (!m_service.isEmpty())
        FollowChanges();
}

CChartService::~CChartService()
{
    if (m_service.isEmpty())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterObject(ObjectPath);
    bus.unregisterService(m_service);
}

void CChartService::Register()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    const QString service = QString("org.zantroq.Chart.pid%1").arg(QCoreApplication::applicationPid());
    // Registers the object first, so that a client that waits for the name finds it.
    if (bus.isConnected() && bus.registerVirtualObject(ObjectPath, this) && bus.registerService(service))
        m_service = service;
}

void CChartService::FollowChanges()
{
    connect(&m_control, &CChartCtrl::StockSymbolChanged, this, [this] { TellChanged("StockSymbol"); });
    connect(&m_control, &CChartCtrl::ResizeParentWindowChanged, this,
            [this] { TellChanged("ResizeParentWindow"); });
    connect(&m_control, &CChartCtrl::AppearanceChanged, this, [this] { TellChanged("Appearance"); });
    connect(&m_control, &CChartCtrl::BorderStyleChanged, this, [this] { TellChanged("BorderStyle"); });
    connect(&m_control, &CChartCtrl::EnabledChanged, this, [this] { TellChanged("Enabled"); });
}

void CChartService::TellChanged(const char* name)
{
    QDBusMessage signal = QDBusMessage::createSignal(ObjectPath, PropertiesInterface, "PropertiesChanged");
    signal << Interface << QVariantMap{{name, Value(name)}} << QStringList();
    QDBusConnection::sessionBus().send(signal);
}

QVariant CChartService::Value(const QString& name) const
{
    if (name == "Appearance")
        return QVariant::fromValue(static_cast<short>(m_control.Appearance()));
    if (name == "BorderStyle")
        return QVariant::fromValue(static_cast<short>(m_control.BorderStyle()));
    return m_control.property(name.toLatin1());
}

QString CChartService::introspect(const QString&) const
{
    return Description;
}

bool CChartService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    if (message.type() != QDBusMessage::MethodCallMessage)
        return false;
    const QString interface = message.interface(), member = message.member();
    const QString signature = message.signature();
    if (member == "Snapshot" && signature == "s" && (interface.isEmpty() || interface == Interface)) {
        Snapshot(message);
        return true;
    }
    if (interface != PropertiesInterface)
        return false;
    if (member == "Get" && signature == "ss")
        return connection.send(Get(message));
    if (member == "GetAll" && signature == "s")
        return connection.send(GetAll(message));
    if (member == "Set" && signature == "ssv")
        return connection.send(Set(message));
    return false;
}

QDBusMessage CChartService::Get(const QDBusMessage& call) const
{
    const QString interface = call.arguments().at(0).toString(), name = call.arguments().at(1).toString();
    if (interface != Interface)
        return call.createErrorReply(QDBusError::UnknownInterface, interface + ": use " + Interface);
    if (!IsProperty(name))
        return call.createErrorReply(QDBusError::UnknownProperty, name + ": not a property of a chart");
    return call.createReply(QVariant::fromValue(QDBusVariant(Value(name))));
}

QDBusMessage CChartService::GetAll(const QDBusMessage& call) const
{
    const QString interface = call.arguments().at(0).toString();
    if (interface != Interface)
        return call.createErrorReply(QDBusError::UnknownInterface, interface + ": use " + Interface);
    QVariantMap values;
    for (const char* const name : PropertyNames)
        values[name] = Value(name);
    return call.createReply(values);
}

QDBusMessage CChartService::Set(const QDBusMessage& call)
{
    const QString interface = call.arguments().at(0).toString(), name = call.arguments().at(1).toString();
    if (interface != Interface)
        return call.createErrorReply(QDBusError::UnknownInterface, interface + ": use " + Interface);
    if (!IsProperty(name))
        return call.createErrorReply(QDBusError::UnknownProperty, name + ": not a property of a chart");
    const QVariant value = qvariant_cast<QDBusVariant>(call.arguments().at(2)).variant();
    if (const QString wrong = Put(m_control, name, value); !wrong.isEmpty())
        return call.createErrorReply(QDBusError::InvalidArgs, wrong);
    return call.createReply();
}

bool CChartService::Loading() const
{
    const CChartDlg& window = CChartBody::Of(m_control).Window();
    return window.Loading() != 0;
}

// Answers once the requested chart is drawn; the program continues meanwhile.
void CChartService::Snapshot(const QDBusMessage& call)
{
    const QString path = call.arguments().at(0).toString();
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (QFileInfo(path).isRelative()) {
        bus.send(call.createErrorReply(QDBusError::InvalidArgs,
                                       "Snapshot \"" + path + "\": name the file with its whole path"));
        return;
    }
    auto* const look = new QTimer(this);
    QElapsedTimer clock;
    clock.start();
    connect(look, &QTimer::timeout, this, [this, look, clock, call, path] {
        if (Loading() && clock.elapsed() < SnapshotPatience)
            return;
        look->deleteLater();
        look->stop();
        const QString wrong = Loading() ? "the feed gave no complete reply in 20 s; start zantroq-feed, or "
                                          "ask again"
                                        : CChartBody::Of(m_control).SavePicture(path);
        QDBusConnection::sessionBus().send(
            wrong.isEmpty() ? call.createReply()
                            : call.createErrorReply(Loading() ? QDBusError::Timeout : QDBusError::Failed,
                                                    "Snapshot " + wrong));
    });
    look->start(LookAgain);
}

} // namespace zantroq
