#ifndef LISTRULES_H
#define LISTRULES_H

#include <QString>

/**
 * How the list rules the networks, as the user has chosen. The dashboard writes it and the WLAN plug-ins
 * follow it, in the file "rules.ini" of the user data directory. It is read anew each time.
 */
namespace ListRules
{

/** Where a network goes that is connected for the first time and is not in the list. */
enum NewNetworks { NewAtTheEnd = 0, NewAtTheTop = 1, NewNotInTheList = 2 };

/** NewAtTheEnd where nothing, or nothing that is known, was chosen. */
NewNetworks PlaceOfNewNetworks();

/** False when it can't be kept; then it is as it was. */
bool SetPlaceOfNewNetworks(NewNetworks place);

/** Whether the list takes effect on the connection manager; true where nothing, or nothing that is known, was
 * chosen. */
bool IsRuling();

/** False when it can't be kept; then it is as it was. */
bool SetRuling(bool isRuling);

/** Whether the computer changes over to an entry above the one in use as soon as that can be used; false
 * where nothing, or nothing that is known, was chosen. It counts only while the list rules. */
bool IsFollowing();

/** False when it can't be kept; then it is as it was. */
bool SetFollowing(bool isFollowing);

/** Whether the user is told of each such change; false where nothing, or nothing that is known, was chosen.
 */
bool IsNotifying();

/** False when it can't be kept; then it is as it was. */
bool SetNotifying(bool isNotifying);

/** Whether mobile broadband that stands below all Wi-Fi is connected only while the internet is reached by
 * nothing else; false where nothing, or nothing that is known, was chosen. It counts only while the list
 * rules. */
bool IsSavingData();

/** False when it can't be kept; then it is as it was. */
bool SetSavingData(bool isSaving);

/** Of the file; empty when there is no place for it. */
QString FilePath();

} // namespace ListRules

#endif
