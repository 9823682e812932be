#include "SwitchNotice.h"

#include "PluginObjects.h"

#include <BidiText.h>
#include <DashboardText.h>
#include <ListRules.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

SwitchNotice::SwitchNotice()
{
    if (const QObject *service = PluginObjects::OrderService()) {
        // The service is of a plug-in, and known by the names of its signals alone.
        connect(service, SIGNAL(OnSwitched(QString, QString)), this, SLOT(Tell(QString, QString)));
    }
}

QString SwitchNotice::Title(const QString &name)
{
    return DashboardText("IDS_NOTIFY_SWITCHED").arg(InOwnDirection(name));
}

QString SwitchNotice::Body(const QString &former)
{
    return DashboardText("IDS_NOTIFY_HIGHER").arg(InOwnDirection(former).toHtmlEscaped());
}

void SwitchNotice::Tell(const QString &name, const QString &former)
{
    if (!ListRules::IsNotifying()) {
        return;
    }
    const QString service = QLatin1String("org.freedesktop.Notifications");
    const QString application = QLatin1String("com.torvik.netquillforge.PriorityDashboard");
    const quint32 replacesNone = 0;
    const int expiresAsUsual = -1;
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, QLatin1String("/org/freedesktop/Notifications"), service, QLatin1String("Notify"));
    call << DashboardText("IDS_WINDOW_TITLE") << replacesNone << application << Title(name) << Body(former)
         << QStringList() << QVariantMap{{QLatin1String("desktop-entry"), application}} << expiresAsUsual;
    QDBusConnection::sessionBus().send(call);
}
