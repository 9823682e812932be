#ifndef PRIORITYXMLPARSER_H
#define PRIORITYXMLPARSER_H

#include <ContractNumbers.h>
#include <PriorityList.h>

#include <QList>
#include <QString>

class QXmlStreamReader;

/**
 * The store: the plug-in's only code that touches the priority file, "Priority.xml" in the user data
 * directory, and the configuration file. It holds no list of its own. Every operation reads the file afresh,
 * as other programs write it too, changes the list and writes the whole file back: no change waits to be
 * written.
 *
 * What the file can't carry: U+0000 to U+001F but for tab, line feed and carriage return, surrogates that
 * stand alone, U+FFFE and U+FFFF are no XML characters, and written raw they would cost the entries behind
 * them. Each is written as U+FFFD. The operations on the file apply the same rule to the entries they are
 * given before they compare them with what is stored, so such an entry is found again under the name it is
 * stored by.
 */
class PriorityXMLParser
{
public:
    /** Result codes of the operations on files. */
    enum ResultCode {
        Success = PriorityRead,
        ReadError = PriorityDamaged,
        /** No such file, or no list to read into. */
        FileMissing = PriorityMissing,
        /** The file can't be opened, or not all of it could be written. */
        FileNotOpenable = PriorityNotOpened
    };

    /** The store, made on first use; null once Destory has destroyed it. */
    static PriorityXMLParser *GetInstance();

    /** Destroys the store for good. Without a store it does nothing, and one can still be made afterwards. */
    static void Destory();

    /** With a separator at its end; empty when the SDK doesn't know it. */
    QString getUserDataDirectory();

    /** Appends the file's entries to *out; after ReadError those before the error. */
    int GetPriorityList(QList<PriorityList> *out);

    /** Appends every "item" element's entry to *out, wherever in the document it stands. Success or
     * ReadError. */
    int ReadPriorityItem(QXmlStreamReader &reader, QList<PriorityList> *out);

    /**
     * Replaces the file: the old one is deleted, then the new one written. When the new one can't be written
     * to its end (a full disk), the old content is written back as far as that is possible and the result is
     * FileNotOpenable. list itself is not changed.
     */
    int SavePriorityList(QList<PriorityList> &list);

    /** The index of the first entry equal to entry; -1 when there is none. */
    int FindIndex(QList<PriorityList> &list, PriorityList &entry);

    /** Removes the first entry equal to entry. */
    void DeleteIfExist(QList<PriorityList> &list, PriorityList &entry);

    /** Removes one entry for each entry of removeList. */
    void DeleteIfExist(QList<PriorityList> &list, QList<PriorityList> &removeList);

    // Read, change and write the file. list may be null; else it ends up holding what was written.

    /** Makes entry the first. Writes also when the file could not be read. Always 0. */
    int AddTop(PriorityList &entry, QList<PriorityList> *list);

    /** Makes entry the last. Writes also when the file could not be read. The entry's index. */
    int AddTail(PriorityList &entry, QList<PriorityList> *list);

    /** The new index; -1 when entry is the first already; -2 when it isn't in the file or this can't be read.
     */
    int MoveUp(PriorityList &entry, QList<PriorityList> *list);

    /** The new index; the list's size when entry is the last already; 0 when it isn't in the file or this
     * can't be read. */
    int MoveDown(PriorityList &entry, QList<PriorityList> *list);

    /**
     * Makes entries the last ones, in their order; earlier occurrences go. Writes also when the file could
     * not be read. position is ignored. The index of the first of entries; -1 when there are none.
     */
    int AddList(QList<PriorityList> &entries, int position, QList<PriorityList> *list);

    /**
     * The switch "enable3G" of "config.xml" in the plug-in's resource folder: only 1 lets mobile-broadband
     * entries be offered for adding. -1 when the file is missing, can't be opened or has no such switch.
     */
    int GetEnable3GValue();

private:
    Q_DISABLE_COPY(PriorityXMLParser)

    PriorityXMLParser();

    QString PriorityFilePath();
    int ReadForChange(QList<PriorityList> *list);

    static PriorityXMLParser *_pPriorityInstance_;
    static bool _bDestoryed_;
};

#endif
