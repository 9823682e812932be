#ifndef KEYMATERIAL_H
#define KEYMATERIAL_H

#include <QString>

class QLineEdit;

/**
 * Texts that are keys. A text that nobody else shares is overwritten in memory before it is freed. Out of
 * reach are what a text left behind while it grew as it was typed, and copies that others hold.
 */
namespace KeyMaterial
{

/** A copy that shares no memory with text, so that each can be wiped without harm to the other. */
QString Unshared(const QString &text);

/** Empties the text; its memory is overwritten unless somebody else shares it. */
void Wipe(QString *text);

/** Empties the field and wipes what stood in it. */
void Wipe(QLineEdit *field);

/** Has the field wiped whenever it is hidden, as with the dialog around it, however that was closed. A window
 * that is only minimised keeps its fields. */
void WipeWhenHidden(QLineEdit *field);

} // namespace KeyMaterial

#endif
