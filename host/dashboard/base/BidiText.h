#ifndef BIDITEXT_H
#define BIDITEXT_H

#include <QApplication>
#include <QChar>
#include <QString>

/** Whether text has a letter or a sign that makes what is beside it read from right to left. */
inline bool HasRightToLeft(const QString &text)
{
    const auto characters = text.toUcs4();
    for (const uint character : characters) {
        switch (QChar::direction(character)) {
        case QChar::DirR:
        case QChar::DirAL:
        case QChar::DirAN:
        case QChar::DirRLE:
        case QChar::DirRLO:
        case QChar::DirRLI:
            return true;
        default:
            break;
        }
    }
    return false;
}

/**
 * A name that reads in its own direction among the program's texts, and leaves these theirs: without the
 * signs around it digits and brackets that follow would be drawn into the name. Where all reads from left to
 * right it is left as it is, so that a path can be copied.
 */
inline QString InOwnDirection(const QString &name)
{
    if (QApplication::layoutDirection() == Qt::LeftToRight && !HasRightToLeft(name)) {
        return name;
    }
    const QChar firstStrongIsolate(0x2068);
    const QChar popDirectionalIsolate(0x2069);
    return firstStrongIsolate + name + popDirectionalIsolate;
}

#endif
