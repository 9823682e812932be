#include "NetworkSearch.h"

#include "NetworkList.h"

#include <DashboardText.h>
#include <DialogParts.h>

#include <QAction>
#include <QKeyEvent>

namespace
{

const int searchableCount = 12;
const int widest = 260;

} // namespace

NetworkSearch::NetworkSearch(NetworkList *list)
    : m_list(list), m_start(new QAction(this)), m_clear(new QAction(this))
{
    setObjectName(QLatin1String("findEdit"));
    setMaximumWidth(DialogParts::ForFont(widest));
    hide();
    m_start->setObjectName(QLatin1String("findAction"));
    m_start->setShortcut(QKeySequence(QLatin1String("Ctrl+F")));
    m_clear->setObjectName(QLatin1String("clearFindAction"));
    connect(m_start, &QAction::triggered, this, &NetworkSearch::Start);
    connect(m_clear, &QAction::triggered, this, &NetworkSearch::Leave);
    connect(this, &QLineEdit::textChanged, this, &NetworkSearch::Find);
}

void NetworkSearch::Follow()
{
    setVisible(IsWanted() || m_list->Listed().size() >= searchableCount);
}

void NetworkSearch::Retranslate()
{
    m_start->setText(DashboardText("IDS_FIND_ACTION"));
    m_clear->setText(DashboardText("IDS_FIND_CLEAR"));
    m_clear->setIconText(DashboardText("IDS_FIND_CLEAR"));
    setPlaceholderText(DashboardText("IDS_CONNECT_SEARCH"));
    setAccessibleName(DashboardText("IDS_CONNECT_SEARCH"));
}

void NetworkSearch::Start()
{
    m_isWanted = true;
    emit Changed();
    setFocus();
    selectAll();
}

void NetworkSearch::Leave()
{
    m_isWanted = false;
    clear();
    emit Changed();
    m_list->setFocus();
}

void NetworkSearch::Find()
{
    m_list->Find(text());
    emit Changed();
}

void NetworkSearch::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        Leave();
    } else if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Return ||
               event->key() == Qt::Key_Enter) {
        m_list->setFocus();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}
