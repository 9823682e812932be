#ifndef HISTORYFILE_H
#define HISTORYFILE_H

#include "ListHistory.h"
#include <FileFault.h>

#include <QByteArray>
#include <QString>

/**
 * The file with the record of the priority list: "states.xml" in the directory "history" of the user data
 * directory, both for the owner only.
 *
 *     <listhistory version="2" current="4">
 *         <entries>
 *             <item name="Café" type="1"/>
 *             <item name="Office" type="1"/>
 *         </entries>
 *         <states>
 *             <state time="2026-03-01T09:00:00Z" order="0" passed="true"/>
 *             <state time="2026-03-01T09:05:00Z" order="1 0" passed="true"/>
 *             <state time="2026-03-01T09:10:00Z" back="2026-03-01T09:00:00Z" order="0"/>
 *             <state time="2026-03-01T09:12:00Z" order="0 1"/>
 *             <state time="2026-03-01T09:14:00Z" moved="1" order="1 0"/>
 *         </states>
 *     </listhistory>
 *
 * Every entry that is in any state stands in it once; a state tells the order by the entries' places, counted
 * from 0. The states stand oldest first; "current" is the place of the one in force. "back" is the time of
 * the state that was gone back to, and "passed" marks what Undo and Redo pass by; "moved" is the entry that
 * was moved, where that was told: its place among the entries, and the state has it. A list that an undo or a
 * redo has brought into force has "since", the time of that. While the list is being taken to another state,
 * "target" is the place of that one. Version 1 had none of these but the last, and is read.
 *
 * The file is written anew beside and then takes the earlier one's place, so that it can be read whenever a
 * program dies.
 *
 * Several dashboards may keep one history: each holds a DirectoryLock on Directory() from Load to Save.
 */
class HistoryFile
{
public:
    enum Trouble {
        NoTrouble,
        Damaged,     /**< Left alone; Fault tells where. */
        NotReadable, /**< Left alone. */
        NotWritable  /**< What is on disk is older than what was to be saved. */
    };

    /** No history comes near this; whatever is larger is not read into memory, and not written. */
    static const int largestFile = 16 * 1024 * 1024;

    /** @param userData  the user data directory with a trailing separator; empty: nothing can be kept. */
    explicit HistoryFile(const QString &userData);

    QString Directory() const { return m_directory; }
    QString Path() const;

    /** Makes the directory. False: it isn't there and can't be made. */
    bool Prepare() const;

    /** Whether the file is another than the one last loaded or saved. */
    bool HasChanged() const;

    /**
     * Reads the file into *history if it has changed. A missing file is an empty history.
     *
     * @return false when the file is there and can't be used; then *history is as it was.
     */
    bool Load(ListHistory *history);

    /** Where there is no room for all of it, the older half of the states before the one in force goes, and
     * again until there is. */
    bool Save(ListHistory *history);

    /** Gives a file that can't be used another name, so that a new history can begin. Its new path, or null.
     */
    QString SetAside();

    Trouble LastTrouble() const { return m_trouble; }
    FileFault Fault() const { return m_fault; }

    static QByteArray Document(const ListHistory &history);

    /** *history is changed only when there is no fault. */
    static FileFault Parse(const QByteArray &bytes, ListHistory *history);

private:
    /** What tells one file of a path from the next. */
    struct Stamp {
        quint64 device = 0;
        quint64 node = 0;
        qint64 size = -1;
        qint64 seconds = 0;
        qint64 nanoseconds = 0;

        bool operator==(const Stamp &other) const;
    };

    Stamp StampOnDisk() const;

    const QString m_directory;
    Stamp m_stamp;
    bool m_wasLoaded;
    Trouble m_trouble;
    FileFault m_fault;
};

#endif
