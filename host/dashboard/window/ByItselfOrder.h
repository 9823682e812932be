#ifndef BYITSELFORDER_H
#define BYITSELFORDER_H

#include <QString>

/** The user's wish that a network connects by itself, or not any more, and what has become of it. */
class ByItselfOrder
{
public:
    /** Takes the place of the one before. */
    void Give(const QString &name, const QString &profileId, bool isOn);

    bool IsOpen() const { return m_number > 0; }

    /** Whether it has come to its end, which is told once; problem is empty where all is as it was wished. */
    bool TakeEnd(QString *problem);

private:
    QString m_name;
    bool m_isOn = false;
    /** As IOrderPlugin answers it; 0: none is open. */
    int m_number = 0;
};

#endif
