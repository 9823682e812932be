#include "TracePanel.h"

#include "DashboardText.h"
#include "TraceLog.h"

#include <QPlainTextEdit>

TracePanel::TracePanel(TraceLog *log, QWidget *parent) : QDockWidget(parent)
{
    setObjectName(QLatin1String("tracePanel"));
    setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
    m_text = new QPlainTextEdit(this);
    m_text->setObjectName(QLatin1String("traceText"));
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(TraceLog::LineLimit);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setUndoRedoEnabled(false);
    // Trace lines are written by and for developers and read from left to right in every language.
    m_text->setLayoutDirection(Qt::LeftToRight);
    QFont font(QLatin1String("monospace"));
    font.setStyleHint(QFont::TypeWriter);
    m_text->setFont(font);
    setWidget(m_text);

    Append(log->Lines());
    connect(log, SIGNAL(LinesAdded(QStringList)), this, SLOT(Append(QStringList)));
    Retranslate();
}

void TracePanel::Retranslate()
{
    setWindowTitle(DashboardText("IDS_TRACE_TITLE"));
}

void TracePanel::Append(const QStringList &lines)
{
    if (!lines.isEmpty()) {
        m_text->appendPlainText(lines.join(QLatin1String("\n")));
    }
}
