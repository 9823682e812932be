#ifndef BANNER_H
#define BANNER_H

#include "Glyphs.h"

#include <QByteArray>
#include <QPointer>
#include <QWidget>

class QAction;
class QLabel;
class QPushButton;

/** What is wrong, one problem at a time, with what can be done about it. Hidden while nothing is. */
class Banner : public QWidget
{
    Q_OBJECT

public:
    struct Problem {
        Glyphs::Mark mark = Glyphs::MarkWarning;
        /** What it is, in whatever language it is told. */
        QByteArray kind;
        QString title;
        QString text;
        /** Not owned; null: nothing can be done here. */
        QPointer<QAction> remedy;
    };

    Banner();

    /** The worst first. */
    void Show(const QList<Problem> &problems);

    /** Titles alone, where there is little room; the text is the title's tool tip then. */
    void SetBrief(bool isBrief);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private slots:
    void ShowNext();
    void Remedy();

private:
    void ShowPlace();

    QList<Problem> m_problems;
    int m_place = 0;
    bool m_isBrief = false;
    QLabel *m_title;
    QLabel *m_text;
    QPushButton *m_remedy;
    QPushButton *m_next;
};

#endif
