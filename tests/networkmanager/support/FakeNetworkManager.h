#ifndef FAKENETWORKMANAGER_H
#define FAKENETWORKMANAGER_H

#include <NetworkManagerQt/GenericTypes>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QHash>
#include <QMap>
#include <QMutex>
#include <QStringList>
#include <QThread>

/**
 * NetworkManager's objects, operations and signals as far as the plug-in uses them, as a plain object on the
 * private bus. It answers in a thread of its own, as the plug-in waits in the test's; each operation here may
 * be called from the test. When it returns, a plug-in in this process has taken in what it was told.
 */
class FakeNetworkManager : public QDBusVirtualObject
{
    Q_OBJECT

public:
    /** Has no devices, no profiles and no name on the bus yet. */
    FakeNetworkManager();
    ~FakeNetworkManager() override;

    /** Takes NetworkManager's name on the bus, or gives it back. */
    bool Appear();
    void Vanish();

    /** The new object's path. A device can do everything unless it is told otherwise. */
    QString AddDevice(unsigned int capabilities = 0xffff);
    QString AddModem();
    /** Received by the device that was added last. */
    QString AddAccessPoint(const QByteArray &ssid, int strength, unsigned int flags = 0,
                           unsigned int wpaFlags = 0, unsigned int rsnFlags = 0);
    QString AddProfile(const QString &name, const QString &type = QLatin1String("802-11-wireless"));
    QString AddProfile(const NMVariantMapMap &settings);
    static NMVariantMapMap Settings(const QString &name,
                                    const QString &type = QLatin1String("802-11-wireless"));

    /** As a device that gets connected by the profile; others are told. */
    QString Connect(const QString &profile, unsigned int state, const QString &device = QString());
    void SetConnectionState(const QString &activeConnection, unsigned int state);
    void SetDeviceState(const QString &device, unsigned int state, unsigned int reason = 0);
    /** As another program changes what a device is connected by. */
    void SetApplied(const QString &device, const QString &section, const QString &key, const QVariant &value);
    NMVariantMapMap AppliedTo(const QString &device);
    /** The route metrics for both kinds of addresses by which a device is connected; -1 where it has none. */
    QList<int> MetricsOf(const QString &device);
    /** As a device fails: it, its connection and what was made for it alone go their way. */
    void Fail(const QString &activeConnection, unsigned int reason);
    /** The connections that there are, in the order of their paths. */
    QStringList ConnectionPaths();
    void SetManagerProperty(const QString &property, const QVariant &value);

    void Remove(const QString &path);
    void SetProperty(const QString &path, const QString &interface, const QString &property,
                     const QVariant &value);
    void SetSetting(const QString &profile, const QString &section, const QString &key,
                    const QVariant &value);
    /** How many changes of a profile a question for its keys counts as; one is NetworkManager's own. */
    void SetChangesByKeyQuestion(qulonglong changes);
    void SetRight(const QString &right, const QString &value);

    /** What was stored last, keys included. */
    NMVariantMapMap SettingsOf(const QString &profile);
    QStringList ProfilePaths();
    /** What came with the settings of the last change of a profile. */
    QVariantMap ConditionsOfTheLastChange();
    /** What came with the last profile that was made and connected in one. */
    QVariantMap OptionsOfTheLastNewConnection();
    /** The autoconnect-priority of a profile; 0 when none is stored. */
    int PriorityOf(const QString &profile);

    /** Has every call of that method, or of one object's, answered like that instead, until Behave. */
    void AnswerWith(const QString &method, const QList<QVariant> &arguments, const QString &path = QString());
    void AnswerWithError(const QString &method, const QString &error, const QString &path = QString());
    void DoNotAnswer(const QString &method, const QString &path = QString());
    /** For each method. */
    void DoNotAnswerAnything();
    /** From now on as it should, with the answers that it has not given first. */
    void Behave();

    /** Takes that many calls from now on, until Behave: later ones are counted and left. The last one that is
     * taken is done, and perhaps not answered. */
    void TakeOnly(int calls, bool isLastAnswered);

    /** Keeps the answers to that method, as they are now, until Release; to none from Hold(QString()) on. */
    void Hold(const QString &method);
    void Release();

    /** Has the profile go away at the moment that it is asked for. */
    void RemoveWhenAsked(const QString &profile);

    int CallCount(const QString &method);
    /** All of them. */
    int CallCount();
    void ForgetCalls();

    /** Returns when all that is under way between this and the plug-in has arrived. */
    void Settle();

    /** Does nothing, in the thread that answers. */
    Q_INVOKABLE void Rest() {}

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
    QString introspect(const QString &) const override { return QString(); }

private:
    Q_DISABLE_COPY(FakeNetworkManager)

    struct Misbehaviour {
        bool isSilent;
        QString error;
        QList<QVariant> arguments;
    };

    QString Add(const QString &kind, const QString &interface, const QVariantMap &properties);
    void SetAnswer(const QString &method, const QString &path, bool isSilent, const QString &error,
                   const QList<QVariant> &arguments);
    QDBusMessage Answer(const QDBusMessage &call);
    QDBusMessage AnswerOfProfile(const QDBusMessage &call);
    QDBusMessage AnswerOfDevice(const QDBusMessage &call);
    QString Store(const NMVariantMapMap &settings);
    QString MakeConnection(const QString &profile, unsigned int state, const QString &device);
    QDBusMessage AnswerOfManager(const QDBusMessage &call);
    void EndConnection(const QString &activeConnection);
    /** Not valid where it is not told. */
    QVariant VersionOf(const QString &profile) const;
    void TellOfChange(const QString &profile);
    void TellOfObject(const QString &path);
    void TakeAway(const QString &path);
    void Put(const QString &path, const QString &interface, const QString &property, const QVariant &value);
    void Signal(const QString &path, const QString &interface, const QString &name,
                const QList<QVariant> &arguments);

    QMutex m_mutex;
    QThread m_thread;
    QDBusConnection m_connection;
    QMap<QString, NMVariantMapMap> m_objects;
    QMap<QString, NMVariantMapMap> m_settings;
    /** By device: what it is connected by, and how often that has changed. */
    QMap<QString, NMVariantMapMap> m_applied;
    QMap<QString, qulonglong> m_appliedVersions;
    QVariantMap m_conditions;
    qulonglong m_changesByKeyQuestion = 1;
    QVariantMap m_options;
    QString m_lastDevice;
    QMap<QString, QStringList> m_points;
    QMap<QString, QString> m_rights;
    QHash<QString, Misbehaviour> m_misbehaviour;
    QStringList m_calls;
    int m_mostCalls;
    bool m_isLastAnswered = true;
    QString m_leaving;
    QString m_held;
    QList<QDBusMessage> m_heldAnswers;
    QList<QDBusMessage> m_unanswered;
    int m_count;
};

#endif
