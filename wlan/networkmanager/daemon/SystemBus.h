#ifndef SYSTEMBUS_H
#define SYSTEMBUS_H

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

/**
 * The plug-in's connection to the system bus, which is sought again for as long as it takes when it is lost.
 *
 * A bus is greeted with a call that has no time limit of ours, so that is done in a thread of its own: nobody
 * is kept waiting by a bus that does not answer.
 */
class CSystemBus : public QObject
{
    Q_OBJECT

public:
    explicit CSystemBus(QObject *parent);

    /** Stays the same until Found; that of a lost bus answers every call with an error at once. */
    const QDBusConnection &Connection() const { return m_connection; }

signals:
    /** There is a connection, which is another one than before. */
    void Found();

    /** The connection is of no use any more, or there is none now. */
    void Lost();

private slots:
    void Seek();
    void TakeConnection();

private:
    Q_DISABLE_COPY(CSystemBus)

    void WatchForLoss();

    QDBusConnection m_connection;
    QTimer m_pause;
    /** Since it was last connected. */
    int m_tries = 0;
};

#endif
