#ifndef TRACEPANEL_H
#define TRACEPANEL_H

#include <QDockWidget>
#include <QStringList>

class QPlainTextEdit;
class TraceLog;

/** Shows what the trace log takes in, the newest lines last. */
class TracePanel : public QDockWidget
{
    Q_OBJECT

public:
    TracePanel(TraceLog *log, QWidget *parent);

    void Retranslate();

private slots:
    void Append(const QStringList &lines);

private:
    QPlainTextEdit *m_text;
};

#endif
