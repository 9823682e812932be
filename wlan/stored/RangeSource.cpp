#include "RangeSource.h"

#include "XmlRecords.h"
#include <UserData.h>

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace
{

const int strongestSignal = 100;

NetworkInRange SampleNetwork(const QString &name, int signal, int channel, const char *authentication,
                             const char *encryption)
{
    NetworkInRange network;
    network.name = name;
    network.signal = signal;
    network.channel = channel;
    network.authentication = QLatin1String(authentication);
    network.encryption = QLatin1String(encryption);
    return network;
}

QList<NetworkInRange> SampleNetworks()
{
    QList<NetworkInRange> networks;
    networks.append(SampleNetwork(QLatin1String("Home"), 92, 6, "WPA2PSK", "CCMP"));
    networks.append(SampleNetwork(QLatin1String("Neighbour"), 71, 11, "WPAPSK", "TKIP"));
    networks.append(SampleNetwork(QString::fromUtf8("Café"), 64, 1, "open", "none"));
    networks.append(SampleNetwork(QLatin1String("Company"), 55, 36, "WPA2PSK", "CCMP"));
    networks.append(SampleNetwork(QLatin1String("Library"), 38, 13, "open", "none"));
    networks.append(SampleNetwork(QLatin1String("Workshop"), 27, 3, "shared", "WEP"));
    networks.append(SampleNetwork(QLatin1String("Campus"), 19, 44, "WPA2(EAP)", "CCMP"));
    return networks;
}

XmlRecordFormat NetworkFormat()
{
    XmlRecordFormat format;
    format.rootElement = QLatin1String("wlannetworks");
    format.recordElement = QLatin1String("network");
    format.attributes << QLatin1String("name") << QLatin1String("signal") << QLatin1String("channel")
                      << QLatin1String("authentication") << QLatin1String("encryption")
                      << QLatin1String("failure");
    return format;
}

struct FailureWord {
    const char *word;
    int failure;
};

const FailureWord failureWords[] = {
    {"", FailureNone},           {"key", FailureWrongKey},
    {"answer", FailureNoAnswer}, {"address", FailureNoAddress},
    {"refused", FailureRefused},
};

/** False when there is no such word. */
bool ReadFailure(const QString &text, int *failure)
{
    for (const FailureWord &entry : failureWords) {
        if (text == QLatin1String(entry.word)) {
            *failure = entry.failure;
            return true;
        }
    }
    return false;
}

/** Appends the network of record, unless its signal can't be used. */
void AppendNetwork(const XmlRecord &record, const QString &path, QList<NetworkInRange> *networks,
                   QStringList *complaints)
{
    const QString place = QString::fromLatin1("%1, line %2: ").arg(path).arg(record.line);
    NetworkInRange network;
    network.name = record.values.value(QLatin1String("name"));
    bool usable = false;
    network.signal = record.values.value(QLatin1String("signal")).toInt(&usable);
    if (!usable || network.signal < 0 || network.signal > strongestSignal) {
        complaints->append(
            place + QLatin1String("the signal is not a whole number from 0 to 100, the network is left out"));
        return;
    }
    network.channel = record.values.value(QLatin1String("channel"), QLatin1String("0")).toInt(&usable);
    if (!usable || network.channel < 0) {
        complaints->append(place +
                           QLatin1String("the channel is not a whole number, it is taken as unknown"));
        network.channel = 0;
    }
    network.authentication = record.values.value(QLatin1String("authentication"), QLatin1String("open"));
    network.encryption = record.values.value(QLatin1String("encryption"), QLatin1String("none"));
    if (!ReadFailure(record.values.value(QLatin1String("failure")), &network.failure)) {
        complaints->append(place + QLatin1String("there is no such failure, it is taken as none"));
    }
    networks->append(network);
}

WLANResult ReadNetworks(QList<NetworkInRange> *networks, QStringList *complaints)
{
    const QString directory = UserData::Directory();
    const QString path = directory + QLatin1String("WLANNetworks.xml");
    if (directory.isEmpty() || !QFileInfo(path).exists()) {
        *networks = SampleNetworks();
        return WLANResultSuccess;
    }
    QFile file(path);
    if (!QFileInfo(path).isFile() || QFileInfo(path).size() > XmlRecords::largestFile ||
        !file.open(QIODevice::ReadOnly)) {
        complaints->append(QString::fromLatin1("%1 can't be read, no networks are in range").arg(path));
        return WLANResultFileNotReadable;
    }
    QList<XmlRecord> records;
    const qint64 damagedLine = XmlRecords::Read(file.readAll(), NetworkFormat(), &records);
    for (int i = 0; i < records.size(); ++i) {
        AppendNetwork(records.at(i), path, networks, complaints);
    }
    if (damagedLine != 0) {
        complaints->append(QString::fromLatin1("%1 is damaged at line %2, the networks before it are used")
                               .arg(path)
                               .arg(damagedLine));
        return WLANResultFileDamaged;
    }
    return WLANResultSuccess;
}

bool IsStronger(const NetworkInRange &left, const NetworkInRange &right)
{
    return left.signal > right.signal;
}

} // namespace

WLANResult CRangeSource::List(QList<NetworkInRange> *networks)
{
    QList<NetworkInRange> found;
    QStringList complaints;
    const WLANResult result = ReadNetworks(&found, &complaints);
    m_complaints.Tell(complaints);

    std::stable_sort(found.begin(), found.end(), IsStronger);
    QSet<QString> names;
    for (int i = 0; i < found.size(); ++i) {
        const NetworkInRange &network = found.at(i);
        if (!network.name.isEmpty() && !names.contains(network.name)) {
            names.insert(network.name);
            networks->append(network);
        }
    }
    return result;
}
