#include "TracePanel.h"

#include "TraceHighlighter.h"
#include "TraceLog.h"

#include <DashboardText.h>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

namespace
{

const int longestSearch = 200;

// Lines come in bursts; they are counted when there is a pause.
const int countMilliseconds = 200;

QToolButton *MakeArrow(const char *name, Qt::ArrowType arrow)
{
    QToolButton *button = new QToolButton;
    button->setObjectName(QLatin1String(name));
    button->setArrowType(arrow);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

} // namespace

TracePanel::TracePanel(TraceLog *log, QWidget *parent)
    : QDockWidget(parent), m_text(new QPlainTextEdit), m_search(new QLineEdit),
      m_previous(MakeArrow("tracePreviousButton", Qt::UpArrow)),
      m_next(MakeArrow("traceNextButton", Qt::DownArrow)), m_matches(new QLabel),
      m_countTimer(new QTimer(this))
{
    setObjectName(QLatin1String("tracePanel"));
    setAllowedAreas(Qt::TopDockWidgetArea | Qt::BottomDockWidgetArea);
    m_text->setObjectName(QLatin1String("traceText"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setMaximumBlockCount(TraceLog::LineLimit);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_text->setUndoRedoEnabled(false);
    // Trace lines are written by and for developers and read from left to right in every language.
    m_text->setLayoutDirection(Qt::LeftToRight);
    QFont font(QLatin1String("monospace"));
    font.setStyleHint(QFont::TypeWriter);
    m_text->setFont(font);
    m_highlighter = new TraceHighlighter(m_text->document(), m_text);
    // What was found stays visible while the keyboard is in the search field.
    QPalette palette = m_text->palette();
    palette.setBrush(QPalette::Inactive, QPalette::Highlight,
                     palette.brush(QPalette::Active, QPalette::Highlight));
    palette.setBrush(QPalette::Inactive, QPalette::HighlightedText,
                     palette.brush(QPalette::Active, QPalette::HighlightedText));
    m_text->setPalette(palette);

    QWidget *content = new QWidget;
    content->setObjectName(QLatin1String("traceContent"));
    QVBoxLayout *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_text, 1);
    layout->addWidget(CreateSearchRow());
    setWidget(content);

    m_countTimer->setSingleShot(true);
    m_countTimer->setInterval(countMilliseconds);
    connect(m_countTimer, SIGNAL(timeout()), this, SLOT(CountMatches()));
    Append(log->Lines());
    connect(log, SIGNAL(LinesAdded(QStringList)), this, SLOT(Append(QStringList)));
    Retranslate();
}

QWidget *TracePanel::CreateSearchRow()
{
    m_search->setObjectName(QLatin1String("traceSearch"));
    m_search->setMaxLength(longestSearch);
    m_search->installEventFilter(this);
    m_matches->setObjectName(QLatin1String("traceMatches"));
    connect(m_search, SIGNAL(textChanged(QString)), this, SLOT(Search()));
    connect(m_previous, SIGNAL(clicked()), this, SLOT(FindPrevious()));
    connect(m_next, SIGNAL(clicked()), this, SLOT(FindNext()));

    QWidget *row = new QWidget;
    row->setObjectName(QLatin1String("traceSearchRow"));
    QHBoxLayout *layout = new QHBoxLayout(row);
    layout->setContentsMargins(6, 0, 6, 4);
    layout->addWidget(m_search, 1);
    layout->addWidget(m_previous);
    layout->addWidget(m_next);
    layout->addWidget(m_matches);
    return row;
}

void TracePanel::Retranslate()
{
    setWindowTitle(DashboardText("IDS_TRACE_TITLE"));
    m_text->setAccessibleName(DashboardText("IDS_TRACE_TITLE"));
    m_search->setPlaceholderText(DashboardText("IDS_TRACE_SEARCH"));
    m_search->setAccessibleName(DashboardText("IDS_TRACE_SEARCH"));
    m_previous->setToolTip(DashboardText("IDS_TRACE_PREVIOUS"));
    m_previous->setAccessibleName(DashboardText("IDS_TRACE_PREVIOUS"));
    m_next->setToolTip(DashboardText("IDS_TRACE_NEXT"));
    m_next->setAccessibleName(DashboardText("IDS_TRACE_NEXT"));
    CountMatches();
}

bool TracePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const QKeyEvent *key = static_cast<QKeyEvent *>(event);
        switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            Find(key->modifiers().testFlag(Qt::ShiftModifier));
            return true;
        case Qt::Key_Escape:
            EndSearch();
            return true;
        default:
            break;
        }
    }
    return QDockWidget::eventFilter(watched, event);
}

void TracePanel::StartSearch()
{
    show();
    m_search->setFocus();
    m_search->selectAll();
}

void TracePanel::EndSearch()
{
    m_search->clear();
    m_text->setFocus();
}

void TracePanel::Append(const QStringList &lines)
{
    m_waiting += lines;
    if (isVisible()) {
        TakeWaiting();
    } else if (m_waiting.size() > TraceLog::LineLimit) {
        m_waiting = m_waiting.mid(m_waiting.size() - TraceLog::LineLimit);
    }
}

void TracePanel::showEvent(QShowEvent *event)
{
    TakeWaiting();
    QDockWidget::showEvent(event);
}

void TracePanel::TakeWaiting()
{
    if (m_waiting.isEmpty()) {
        return;
    }
    m_text->appendPlainText(m_waiting.join(QLatin1String("\n")));
    m_waiting.clear();
    if (!m_search->text().isEmpty()) {
        m_countTimer->start();
    }
}

void TracePanel::Search()
{
    m_highlighter->Mark(m_search->text());
    // While the text is being typed, the place that was found grows with it.
    QTextCursor cursor = m_text->textCursor();
    cursor.setPosition(cursor.selectionStart());
    m_text->setTextCursor(cursor);
    CountMatches();
    Find(false);
}

void TracePanel::FindNext()
{
    Find(false);
}

void TracePanel::FindPrevious()
{
    Find(true);
}

void TracePanel::Find(bool backward)
{
    const QString text = m_search->text();
    if (text.isEmpty()) {
        return;
    }
    const QTextDocument::FindFlags flags =
        backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (m_text->find(text, flags)) {
        return;
    }
    const QTextCursor before = m_text->textCursor();
    m_text->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (!m_text->find(text, flags)) {
        m_text->setTextCursor(before);
    }
}

void TracePanel::CountMatches()
{
    const QString text = m_search->text();
    int matches = 0;
    for (QTextBlock line = m_text->document()->begin(); !text.isEmpty() && line.isValid();
         line = line.next()) {
        matches += line.text().count(text, Qt::CaseInsensitive);
    }
    m_previous->setEnabled(matches > 0);
    m_next->setEnabled(matches > 0);
    if (text.isEmpty()) {
        m_matches->clear();
    } else {
        m_matches->setText(matches > 0 ? DashboardText("IDS_TRACE_MATCHES").arg(DashboardNumber(matches))
                                       : DashboardText("IDS_TRACE_NO_MATCH"));
    }
}
