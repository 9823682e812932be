#include "Searchable.h"

QString Searchable(const QString &name)
{
    QString plain;
    const QString apart = name.normalized(QString::NormalizationForm_KD);
    for (const QChar letter : apart) {
        if (!letter.isMark()) {
            plain.append(letter);
        }
    }
    return plain.toCaseFolded();
}
