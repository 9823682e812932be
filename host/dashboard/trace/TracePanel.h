#ifndef TRACEPANEL_H
#define TRACEPANEL_H

#include <QDockWidget>
#include <QStringList>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTimer;
class QToolButton;
class TraceHighlighter;
class TraceLog;

/** Shows what the trace log takes in, the newest lines last, and finds text in it. */
class TracePanel : public QDockWidget
{
    Q_OBJECT

public:
    TracePanel(TraceLog *log, QWidget *parent);

    void Retranslate();

    /** Return finds the next place in the search field, with Shift the one before; Escape ends the search. */
    bool eventFilter(QObject *watched, QEvent *event) override;

    void showEvent(QShowEvent *event) override;

public slots:
    /** Shows the panel and lets the user type what to look for. */
    void StartSearch();

private slots:
    void Append(const QStringList &lines);
    void Search();
    void FindNext();
    void FindPrevious();
    void CountMatches();

private:
    QWidget *CreateSearchRow();
    void TakeWaiting();
    /** Goes to a place in that direction, around the ends; the search begins where the text cursor is. */
    void Find(bool backward);
    void EndSearch();

    QPlainTextEdit *m_text;
    /** Lines that came while nobody saw the panel: laying them out takes longer than what they tell of. */
    QStringList m_waiting;
    TraceHighlighter *m_highlighter;
    QLineEdit *m_search;
    QToolButton *m_previous;
    QToolButton *m_next;
    QLabel *m_matches;
    QTimer *m_countTimer;
};

#endif
