#ifndef RECORDS_H
#define RECORDS_H

#include "Apart.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/* The values that cross the boundary, as somebody who has only their layout writes them down. */

struct Entry {
    QString name;
    QString type;
};

struct Profile {
    QString texts[18];
};

enum ProfileText {
    ProfileName = 0,
    ProfileSsid = 5,
    ProfileAuthentication = 8,
    ProfileEncryption = 9,
    ProfileKeyType = 10,
    ProfileKeyMaterial = 12,
    ProfileKeyIndex = 13,
    ProfileReadOnly = 15,
    ProfileTextCount = 18
};

struct Network {
    QString name;
    int values[5];
};

const int networkValueCount = 5;

struct SignOn {
    QString texts[3];
};

struct Configuration {
    QHash<QString, QString> settings;
    QList<QString> methods;
    QList<QString> texts2;
    QList<QString> texts3;
    QList<SignOn> signOns;
};

enum ActiveText { ActiveName = 2, ActiveTextCount = 6 };

struct Active {
    QString texts[ActiveTextCount];
    int stage;
    int signal;
    bool carriesTraffic;
    bool isVpn;
};

struct Visible {
    QString id;
    QString name;
    QString security;
    int protection;
    int signal;
    QStringList profileIds;
    bool isInUse;
};

struct Attempt {
    QString name;
    QString profileId;
    int numbers[3];
};

#endif
