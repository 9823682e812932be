#ifndef RECORDS_H
#define RECORDS_H

#include "Apart.h"

#include <QHash>
#include <QList>
#include <QString>

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

#endif
