#include "PseudoText.h"

#include <QFile>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <cstdio>

/** Makes a language file of the English one, with PseudoText in place of each translation. */
int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: pseudolanguage ENGLISH.ts PSEUDO.ts\n");
        return 2;
    }
    QFile english(QFile::decodeName(argv[1]));
    QFile pseudo(QFile::decodeName(argv[2]));
    if (!english.open(QIODevice::ReadOnly) || !pseudo.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "a file can't be opened\n");
        return 1;
    }
    QXmlStreamReader reader(&english);
    QXmlStreamWriter writer(&pseudo);
    bool isTranslation = false;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() || reader.isEndElement()) {
            isTranslation = reader.isStartElement() && (reader.name() == QLatin1String("translation") ||
                                                        reader.name() == QLatin1String("numerusform"));
        }
        if (isTranslation && reader.isCharacters() && !reader.isWhitespace()) {
            writer.writeCharacters(PseudoText(reader.text().toString()));
        } else {
            writer.writeCurrentToken(reader);
        }
    }
    if (reader.hasError() || writer.hasError() || !pseudo.flush()) {
        std::fprintf(stderr, "%s\n", qPrintable(reader.errorString()));
        return 1;
    }
    return 0;
}
