#include "DragTableWidget.h"

#include <QHeaderView>
#include <QMouseEvent>

namespace
{

/** Widgets that are visible already stay as they are. */
void AskForNoPainting(QWidget *widget, bool none)
{
    if (!none || !widget->isVisible()) {
        widget->setAttribute(Qt::WA_DontShowOnScreen, none);
    }
}

void AskForNoPaintingWithin(QWidget *container, bool none)
{
    const QObjectList &children = container->children();
    for (int i = 0; i < children.size(); ++i) {
        QWidget *child = qobject_cast<QWidget *>(children.at(i));
        // A dialog of the page is its child too, and shown on its own.
        if (child && !child->isWindow()) {
            AskForNoPainting(child, none);
            AskForNoPaintingWithin(child, none);
        }
    }
}

class BesideRows : public QObject
{
public:
    explicit BesideRows(QTableWidget *table) : QObject(table), m_table(table)
    {
        table->viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            return !m_table->indexAt(static_cast<QMouseEvent *>(event)->pos()).isValid();
        default:
            return QObject::eventFilter(watched, event);
        }
    }

private:
    QTableWidget *m_table;
};

} // namespace

DragTableWidget::DragTableWidget(QWidget *parent) : QTableWidget(parent) {}

DragTableWidget::~DragTableWidget() = default;

void SetUpListTable(QTableWidget *table)
{
    table->setColumnCount(1);
    table->setColumnWidth(0, 300);
    table->horizontalHeader()->setVisible(false);
    table->verticalHeader()->setVisible(false);
    table->setShowGrid(false);
    table->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
}

void IgnoreMouseBesideRows(QTableWidget *table)
{
    new BesideRows(table);
}

void SetRowWidget(QTableWidget *table, int row, QWidget *widget)
{
    const ShownAsOne shown(widget);
    AskForNoPainting(widget, true);
    table->setCellWidget(row, 0, widget);
    AskForNoPainting(widget, false);
}

ShownAsOne::ShownAsOne(QWidget *container) : m_container(container)
{
    AskForNoPaintingWithin(container, true);
}

ShownAsOne::~ShownAsOne()
{
    if (m_container) {
        AskForNoPaintingWithin(m_container, false);
    }
}
