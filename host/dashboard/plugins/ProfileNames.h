#ifndef PROFILENAMES_H
#define PROFILENAMES_H

#include <ConnectionRecords.h>
#include <PriorityList.h>

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class ListKeeper;

/**
 * Has the entries of the list bear the names that their profiles have now, so that a profile that was given
 * another name in another program keeps its place. That is a change of the list like any other. Once it was
 * undone it is not made again, until the profile gets yet another name.
 *
 * Which profiles the entries mean is kept in a file, so that a name that was given while no program of ours
 * ran is found as well.
 */
class ProfileNames : public QObject
{
    Q_OBJECT

public:
    /** By the lasting id of a profile, the entry that means it. */
    typedef QMap<QString, PriorityList> Known;

    /** In the user data directory. */
    static QString FileName();

    /** Looks at once, and whenever a profile gets another name or the keeper tells of the list.
     *
     * @param file  empty: nothing outlives the program. @param keeper  outlives this. */
    ProfileNames(const QString &file, ListKeeper *keeper, QObject *parent);

    /**
     * The list with the names of now. An entry stays as it is while one of the profiles that it means has
     * its name, when these have got several, or when the new name is in the list already or can't be.
     */
    static QList<PriorityList> Renamed(const QList<PriorityList> &list,
                                       const QList<ConnectionProfile> &profiles, const Known &known);

    /** What is known after the entries bear the names of now, or were to stay as they are. */
    static Known Noted(const QList<PriorityList> &list, const QList<ConnectionProfile> &profiles,
                       const Known &known);

public slots:
    void CatchUp();

private:
    Q_DISABLE_COPY(ProfileNames)

    void Read();
    void Write(const Known &known);

    const QString m_file;
    ListKeeper *const m_keeper;
    Known m_known;
    /** What the file has. */
    QByteArray m_written;
};

#endif
