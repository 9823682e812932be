#include "PseudoText.h"

namespace
{

const char *const plainLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
const char *const otherLetters = "áƀçđéƒğĥíĵķłɱñöþɋŕšţûṽŵẋýžÅßÇÐÉƑĜĤÎĴĶĻṀÑÖÞɊŔŠŢÛṼŴẊÝŽ";
const char *const moreWords = " öñé ţŵö ţĥŕéé ƒöûŕ ƒîṽé šíẋ šéṽéñ éíğĥţ ñíñé ţéñ";

/** Of a hundred letters, how many more a translation has. */
const int growth = 40;

QChar OtherLetter(QChar letter)
{
    static const QString plain = QString::fromLatin1(plainLetters);
    static const QString other = QString::fromUtf8(otherLetters);
    const int place = plain.indexOf(letter);
    return place < 0 ? letter : other.at(place);
}

} // namespace

QString PseudoText(const QString &text)
{
    QString pseudo(QLatin1Char('['));
    int letters = 0;
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        pseudo += character;
        if ((character == QLatin1Char('%') || character == QLatin1Char('&')) && i + 1 < text.size()) {
            pseudo += text.at(++i);
            continue;
        }
        const QChar other = OtherLetter(character);
        letters += other == character ? 0 : 1;
        pseudo[pseudo.size() - 1] = other;
    }
    const QString more = QString::fromUtf8(moreWords);
    const int missing = (letters * growth + 99) / 100;
    const int wholeSize = pseudo.size() + missing;
    pseudo += more.repeated(missing / more.size() + 1);
    pseudo.truncate(wholeSize);
    return pseudo + QLatin1Char(']');
}
