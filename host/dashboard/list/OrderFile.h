#ifndef ORDERFILE_H
#define ORDERFILE_H

#include <FileFault.h>

#include <PriorityList.h>

#include <QByteArray>
#include <QList>

/**
 * The order of the list as a file to keep or to take along. It has the form of Priority.xml, so that such a
 * file can be taken in as well: the root "zeltdoc", in it "profile", in that one "item" for each entry with
 * the attributes "name" and "type". Names and kinds are all it holds; keys are not in the list and so never
 * in the file.
 *
 * The reader takes "item" elements directly below the root too, and passes over further attributes. Anything
 * else is a fault.
 */
namespace OrderFile
{

/** No order comes near this; whatever is larger is not read into memory. */
const int largestFile = 16 * 1024 * 1024;

QByteArray Document(const QList<PriorityList> &entries);

/** Makes it a file of the user's, for the owner only. It is written whole or not at all, and no other file is
 * touched. */
bool Write(const QString &path, const QList<PriorityList> &entries);

/** Appends the entries of the file to *entries, unless it has a fault. */
FileFault Parse(const QByteArray &bytes, QList<PriorityList> *entries);

} // namespace OrderFile

#endif
