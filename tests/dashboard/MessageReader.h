#ifndef MESSAGEREADER_H
#define MESSAGEREADER_H

#include <QObject>
#include <QString>

/** Answers the next message box with its first button, and keeps its text. */
class MessageReader : public QObject
{
    Q_OBJECT

public:
    MessageReader();

    QString text;

private slots:
    void Look();
};

#endif
