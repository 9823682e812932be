#ifndef FACTLIST_H
#define FACTLIST_H

#include <QMap>
#include <QString>
#include <QWidget>

class QGridLayout;
class QLabel;

/** Captions, each with what is known of it; of what is not known there is no row. */
class FactList : public QWidget
{
    Q_OBJECT

public:
    explicit FactList(const char *name);

    /** Rows stand in the order in which they were first told. @param captionId  of a text. @param value plain
     * text, empty: not known. */
    void Tell(const char *captionId, const QString &value);

private:
    struct Row {
        QLabel *caption;
        QLabel *value;
    };

    QGridLayout *m_layout;
    QMap<QString, Row> m_rows;
};

#endif
