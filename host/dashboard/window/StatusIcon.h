#ifndef STATUSICON_H
#define STATUSICON_H

#include "ConnectionOrder.h"

#include <QObject>
#include <QScopedPointer>
#include <QStringList>

class ListKeeper;
class QMenu;
class QSystemTrayIcon;
class QTimer;

/**
 * An icon in the desktop's panel while there is no window: which network is in use, the first of the list,
 * and a way to connect. It is there while the desktop shows such icons, by StatusNotifier; until it does, and
 * where it never does, nothing is shown and nobody is bothered.
 */
class StatusIcon : public QObject
{
    Q_OBJECT

public:
    static const int entriesTold = 5;

    /**
     * @param keeper   outlives this; whoever made it has it follow the list.
     * @param program  how a window is opened: a path and arguments.
     */
    StatusIcon(ListKeeper *keeper, const QStringList &program);
    ~StatusIcon() override;

    QMenu *Menu() const { return m_menu.data(); }

private slots:
    /** Asks whether somebody shows icons now. */
    void Look();
    void Show();

private:
    struct Line {
        QString text;
        QString name;
        /** Of the profile that choosing it connects; null: it can't be chosen. */
        QString profileId;
    };

    friend bool operator==(const Line &left, const Line &right);

    void FollowDesktop();
    void Appear();
    void Fill(const QString &headline);
    void Add(const char *name, const char *id, const QStringList &arguments);

    ListKeeper *const m_keeper;
    const QStringList m_program;
    const QScopedPointer<QMenu> m_menu;
    QScopedPointer<QSystemTrayIcon> m_icon;
    QTimer *const m_refreshTimer;
    ConnectionOrder m_order;
    QList<Line> m_lines;
    QString m_headline;
};

#endif
