#ifndef USERNOTICE_H
#define USERNOTICE_H

#include <QList>
#include <QObject>
#include <QString>

class QDialog;

/**
 * Tells the user, through the host, what became of an order that its caller doesn't ask about, or of the
 * list.
 *
 * The order comes from a dialog that goes on as if all had gone well. A notice in the middle of that would
 * run an event loop in which the dialog can be deleted; so it is shown when the caller is back in its event
 * loop, one notice after the other. Where no window is open, as for a script, there is nobody to be told.
 */
class CUserNotice : public QObject
{
    Q_OBJECT

public:
    /** @param title  the id of the notices' title, in the context "WLAN". */
    explicit CUserNotice(const char *title = "IDS_WLAN_TITLE");

    /** Closes the notice that is open and drops those that wait. */
    ~CUserNotice() override;

    /** Whether a notice would be seen now. */
    static bool HasAudience();

    /**
     * @param id     of a text in the context "WLAN".
     * @param name   for its %1, of a network.
     * @param other  for its %2, where it has one.
     */
    void Tell(const char *id, const QString &name, const QString &other = QString());

private slots:
    void Show();

private:
    Q_DISABLE_COPY(CUserNotice)

    struct Notice {
        const char *id;
        QString name;
        QString other;
    };

    const char *const m_title;
    QList<Notice> m_waiting;
    QDialog *m_open;
};

#endif
