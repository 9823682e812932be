#ifndef LISTFILEWATCHER_H
#define LISTFILEWATCHER_H

#include <QByteArray>
#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

/** Tells when the content of a file has changed, through its deletion and its coming back, too. */
class CListFileWatcher : public QObject
{
    Q_OBJECT

public:
    /** @param file  its directory exists. */
    CListFileWatcher(const QString &file, QObject *parent);

    bool HasEntries() const;

    /**
     * To be called before the file is read for a reason of the reader's own: changes from here on are told
     * even if they make the file what it was when it was last told of.
     */
    void Note() { m_content = Content(); }

signals:
    /** Once for changes that come close together. */
    void Changed();

private slots:
    void Look();
    void Compare();

private:
    Q_DISABLE_COPY(CListFileWatcher)

    QByteArray Content() const;

    const QString m_file;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
    QByteArray m_content;
};

#endif
