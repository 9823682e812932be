#include "SystemBus.h"

#include <QThread>

namespace
{

const int pauseMilliseconds = 1000;
// A bus that is started anew is back within seconds. Where there is none, the computer is left alone.
const int quickTries = 20;
const int longPauseMilliseconds = 30000;

/**
 * There is one connection for all. It stays open as long as the program runs: Qt damages its memory when a
 * connection is closed while a call waits for its answer. When the bus has closed a connection, no call
 * waits.
 */
QString ConnectionName()
{
    return QLatin1String("WLANNetworkManager");
}

class CGreeter : public QThread
{
protected:
    void run() override { QDBusConnection::connectToBus(QDBusConnection::SystemBus, ConnectionName()); }
};

} // namespace

CSystemBus::CSystemBus(QObject *parent) : QObject(parent), m_connection(ConnectionName())
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pauseMilliseconds);
    connect(&m_pause, SIGNAL(timeout()), this, SLOT(Seek()));
    if (m_connection.isConnected()) {
        WatchForLoss();
    } else {
        Seek();
    }
}

void CSystemBus::Seek()
{
    QDBusConnection::disconnectFromBus(ConnectionName());
    // Without a parent, as it can't be stopped and may outlive this object.
    CGreeter *greeter = new CGreeter;
    connect(greeter, &QThread::finished, this, &CSystemBus::TakeConnection);
    connect(greeter, &QThread::finished, greeter, &QObject::deleteLater);
    greeter->start();
}

void CSystemBus::TakeConnection()
{
    m_connection = QDBusConnection(ConnectionName());
    if (m_connection.isConnected()) {
        m_tries = 0;
        m_pause.setInterval(pauseMilliseconds);
        WatchForLoss();
        emit Found();
    } else {
        ++m_tries;
        m_pause.start(m_tries < quickTries ? pauseMilliseconds : longPauseMilliseconds);
        emit Lost();
    }
}

void CSystemBus::WatchForLoss()
{
    // Comes when the answers to all calls that were under way have come.
    m_connection.connect(QString(), QLatin1String("/org/freedesktop/DBus/Local"),
                         QLatin1String("org.freedesktop.DBus.Local"), QLatin1String("Disconnected"), &m_pause,
                         SLOT(start()));
    m_connection.connect(QString(), QLatin1String("/org/freedesktop/DBus/Local"),
                         QLatin1String("org.freedesktop.DBus.Local"), QLatin1String("Disconnected"), this,
                         SIGNAL(Lost()));
    if (!m_connection.isConnected()) {
        m_pause.start();
    }
}
