#ifndef LISTWATCHER_H
#define LISTWATCHER_H

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/** Tells when the content of a file changes, when it appears or disappears, whoever did it. */
class FileWatcher : public QObject
{
    Q_OBJECT

public:
    /** @param file  absolute path; its directory exists. Empty: nothing is watched. */
    FileWatcher(const QString &file, QObject *parent);

    /** The file is about to be read: it is told of again when it is another than now. */
    void Note();

signals:
    /** Once for changes that come close together. */
    void Changed();

private slots:
    void Follow();
    void Compare();

private:
    /** False when the content can't be had, or is too large to be kept. */
    bool ReadContent();

    const QString m_file;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
    bool m_isThere = false;
    QByteArray m_content;
};

#endif
