#ifndef TRACEHIGHLIGHTER_H
#define TRACEHIGHLIGHTER_H

#include <QString>
#include <QSyntaxHighlighter>

class QWidget;

/** Marks every place where a text is found, capital letters or not, in lines that are added later too. */
class TraceHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /** @param view  shows the document; its colours are used. */
    TraceHighlighter(QTextDocument *document, QWidget *view);

    /** Empty: nothing is marked. */
    void Mark(const QString &text);

protected:
    void highlightBlock(const QString &line) override;

private:
    QWidget *const m_view;
    QString m_marked;
};

#endif
