#ifndef BIDITEXT_H
#define BIDITEXT_H

#include <QApplication>
#include <QChar>
#include <QString>

/** A name that stays whole and reads in its own direction where the program's texts read in the other one. */
inline QString InOwnDirection(const QString &name)
{
    const bool isTextRightToLeft = QApplication::layoutDirection() == Qt::RightToLeft;
    if (name.isRightToLeft() == isTextRightToLeft) {
        return name;
    }
    const ushort leftToRightEmbedding = 0x202a;
    const ushort rightToLeftEmbedding = 0x202b;
    const ushort endOfEmbedding = 0x202c;
    return QChar(name.isRightToLeft() ? rightToLeftEmbedding : leftToRightEmbedding) + name +
           QChar(endOfEmbedding);
}

#endif
