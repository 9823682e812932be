#ifndef FILEFAULT_H
#define FILEFAULT_H

#include <QString>

/** Where and why one of the dashboard's files can't be understood. */
struct FileFault {
    enum Kind {
        None,
        NotWellFormed,
        Declaration,       /**< A document type declaration, which no file of the dashboard has. */
        UnexpectedElement, /**< detail: its name. */
        UnexpectedText,
        MissingAttribute, /**< detail: its name. */
        WrongValue,       /**< detail: the attribute's name. */
        TooMany           /**< detail: the name of the elements. */
    };

    Kind kind = None;
    qint64 line = 0; /**< Counted from one. */
    QString detail;
};

#endif
