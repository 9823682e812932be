#ifndef MOCKNETWORKMANAGER_H
#define MOCKNETWORKMANAGER_H

#include "ChildProcess.h"

#include <NetworkManagerQt/GenericTypes>

#include <QList>
#include <QString>
#include <QVariant>

class PrivateBus;

/**
 * NetworkManager as python3-dbusmock's template has it, a program of its own on the private bus: its objects,
 * answers and signals as others know them. What the template lacks is added to it as it runs. What it tells
 * has arrived at a plug-in in this process when an operation here returns.
 */
class MockNetworkManager
{
public:
    /** @param bus  outlives this. */
    explicit MockNetworkManager(PrivateBus *bus);

    /** Its name is gone from the bus afterwards. */
    ~MockNetworkManager();

    /** With no devices and no profiles; false when it can't be had here, WhyNot tells. */
    bool Start();
    QString WhyNot() const { return m_whyNot; }

    /** The new object's path. A Wi-Fi device hasn't looked for networks yet. */
    QString AddWifiDevice(const QString &name);
    QString AddModem(const QString &name);
    /** @param security  flags that it has for both kinds of WPA. */
    QString AddAccessPoint(const QString &device, const QString &ssid, int strength,
                           unsigned int security = 0);
    QString AddProfile(const NMVariantMapMap &settings);
    QString AddActiveConnection(const QString &device, const QString &profile, unsigned int state);

    void RemoveActiveConnection(const QString &device, const QString &activeConnection);
    void RemoveAccessPoint(const QString &device, const QString &accessPoint);
    void DeleteProfile(const QString &profile);

    /** One that the template lacks, before anybody asks. */
    void AddManagerProperty(const QString &property, const QVariant &value);
    void SetManagerProperty(const QString &property, const QVariant &value);

    /** Others are told. */
    void SetProperty(const QString &path, const QString &interface, const QString &property,
                     const QVariant &value);

    /** The template has no Update2, as NetworkManager before 1.12 had none. */
    void AddUpdate2(const QString &profile);

    /** Has the profile go away once all objects have been told, before anybody can ask for it. */
    void DeleteAfterListing(const QString &profile);

    NMVariantMapMap SettingsOf(const QString &profile);
    QStringList ProfilePaths();

    /** Calls of what the template has as a method of that object. */
    int CallCount(const QString &path, const QString &method);

private:
    Q_DISABLE_COPY(MockNetworkManager)

    PrivateBus *const m_bus;
    ChildProcess m_program;
    QString m_whyNot;
    int m_count;
};

#endif
