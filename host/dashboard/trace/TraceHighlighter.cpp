#include "TraceHighlighter.h"

#include <QPalette>
#include <QTextCharFormat>
#include <QWidget>

TraceHighlighter::TraceHighlighter(QTextDocument *document, QWidget *view)
    : QSyntaxHighlighter(document), m_view(view)
{
}

void TraceHighlighter::Mark(const QString &text)
{
    m_marked = text;
    rehighlight();
}

void TraceHighlighter::highlightBlock(const QString &line)
{
    if (m_marked.isEmpty()) {
        return;
    }
    QTextCharFormat format;
    format.setBackground(m_view->palette().brush(QPalette::ToolTipBase));
    format.setForeground(m_view->palette().brush(QPalette::ToolTipText));
    for (int at = line.indexOf(m_marked, 0, Qt::CaseInsensitive); at >= 0;
         at = line.indexOf(m_marked, at + m_marked.size(), Qt::CaseInsensitive)) {
        setFormat(at, m_marked.size(), format);
    }
}
