// The chart on the D-Bus session bus, for programs in any language: service org.zantroq.Chart.pidN, where N
// is the process id, object /org/zantroq/Chart/1, interface org.zantroq.Chart1 with the control's five
// properties, PropertiesChanged and Snapshot. docs/embedding.md has the details.
//
// Window's thread. Does nothing and reports nothing if there is no session bus.
#pragma once

#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace zantroq {

class CChartCtrl;

class CChartService : public QDBusVirtualObject
{
public:
    explicit CChartService(CChartCtrl& control); // the control must outlive the service
    ~CChartService() override;

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    void Register();
    void FollowChanges();
    void TellChanged(const char* name);
    QVariant Value(const QString& name) const;
    QDBusMessage Get(const QDBusMessage& call) const;
    QDBusMessage GetAll(const QDBusMessage& call) const;
    QDBusMessage Set(const QDBusMessage& call);
    void Snapshot(const QDBusMessage& call);
    bool Loading() const;

    CChartCtrl& m_control;
    QString m_service; // empty while nothing is exported
};

} // namespace zantroq
