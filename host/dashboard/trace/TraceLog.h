#ifndef TRACELOG_H
#define TRACELOG_H

#include <QMutex>
#include <QObject>
#include <QStringList>

/**
 * Where the trace lines of the plug-ins, Qt and the dashboard go: to a file that only the user can
 * read, and to whoever listens to LinesAdded. One at a time; it takes every message of qDebug and its
 * relatives while it lives. Messages may come on any thread.
 */
class TraceLog : public QObject
{
    Q_OBJECT

public:
    /** @param path  the log file, which is appended to; empty: no file, which is told as one that can't be
     * written. */
    explicit TraceLog(const QString &path);
    ~TraceLog() override;

    /** The lines since the start, the last LineLimit of them. */
    QStringList Lines() const;

    /** Says something that somebody who started the program in a terminal should see there too. What ends
     * the program is said there anyway, and the last warnings before it, which tell why. */
    static void Warn(const QString &text);

    static const int LineLimit = 2000;

    /** So many warnings are told when the program has to end. */
    static const int WarningLimit = 5;

    /** A file of this many bytes is set aside under the name <path>.1, in place of an earlier one. */
    static const qint64 FileLimit = 1048576;

signals:
    /** On the thread of this object, some time after the lines came. */
    void LinesAdded(const QStringList &lines);

private slots:
    void HandOut();

private:
    Q_DISABLE_COPY(TraceLog)

    static void Receive(QtMsgType type, const QMessageLogContext &context, const QString &text);
    void Add(QtMsgType type, const QString &text);
    void FollowWarnings(QtMsgType type, const QString &text);
    void Keep(const QString &line);
    bool WriteToFile(const QByteArray &bytes);
    bool OpenFile();
    void CloseFile();

    const QString m_path;
    mutable QMutex m_lock;
    QStringList m_lines;
    QStringList m_warnings;
    QStringList m_fresh;
    bool m_handOutPending;
    int m_file;
    qint64 m_fileSize;
    bool m_fileFailed;
    bool m_failureTold;
};

#endif
