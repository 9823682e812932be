#ifndef LISTWATCHER_H
#define LISTWATCHER_H

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/** Tells when a file changes, appears or disappears, whoever did it. */
class ListWatcher : public QObject
{
    Q_OBJECT

public:
    /** @param file  absolute path; its directory exists. Empty: nothing is watched. */
    ListWatcher(const QString &file, QObject *parent);

signals:
    /** Once for changes that come close together. */
    void Changed();

private slots:
    void Follow();

private:
    const QString m_file;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};

#endif
