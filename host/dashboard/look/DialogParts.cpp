#include "DialogParts.h"

#include "WrappedLabel.h"

#include <CommonUtils.h>
#include <DashboardText.h>

#include <QApplication>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTableWidget>

namespace
{

/** Keeps the chosen row in sight when a text below takes some of the height. */
class ChoiceTable : public QTableWidget
{
public:
    explicit ChoiceTable(int columns) : QTableWidget(0, columns) {}

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QTableWidget::resizeEvent(event);
        scrollTo(currentIndex());
    }
};

} // namespace

int DialogParts::ForFont(int pixels)
{
    const qreal usualPoints = 10;
    const qreal largest = 1.6;
    // Whole points: fonts are a little larger or smaller than they were asked for.
    const qreal factor = QFontInfo(QApplication::font()).pointSize() / usualPoints;
    return qRound(pixels * qBound(qreal(1), factor, largest));
}

QFont DialogParts::Scaled(const QFont &font, qreal factor)
{
    QFont scaled = font;
    if (scaled.pointSizeF() > 0) {
        scaled.setPointSizeF(scaled.pointSizeF() * factor);
    }
    return scaled;
}

Qt::Alignment DialogParts::Beginning(const QWidget *widget)
{
    return (widget->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute;
}

QLabel *DialogParts::Label(const char *name)
{
    return new WrappedLabel(name);
}

QLabel *DialogParts::EmptyLabel(const char *name)
{
    QLabel *label = Label(name);
    label->setAlignment(Qt::AlignCenter);
    label->setMargin(24);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::Base);
    return label;
}

QTableWidget *DialogParts::Table(const char *name, int columns)
{
    QTableWidget *table = new ChoiceTable(columns);
    table->setObjectName(QLatin1String(name));
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->verticalHeader()->hide();
    QHeaderView *header = table->horizontalHeader();
    header->setHighlightSections(false);
    header->setStretchLastSection(true);
    // A column can't be chosen or sorted by.
    header->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (int column = 0; column < columns; ++column) {
        table->setHorizontalHeaderItem(column, new QTableWidgetItem);
    }
    return table;
}

void DialogParts::SetHeader(QTableWidget *table, int column, const QString &text, Qt::Alignment side)
{
    // Unlike a table, its header doesn't mirror the alignment of its texts.
    const Qt::Alignment alignment =
        QStyle::visualAlignment(table->layoutDirection(), side | Qt::AlignVCenter);
    QTableWidgetItem *header = table->horizontalHeaderItem(column);
    header->setText(text);
    header->setTextAlignment(alignment | Qt::AlignAbsolute);
}

void DialogParts::SetCell(QTableWidget *table, int row, int column, const QString &text)
{
    QTableWidgetItem *item = table->item(row, column);
    if (!item) {
        item = new QTableWidgetItem;
        table->setItem(row, column, item);
    }
    item->setText(text.simplified());
    item->setToolTip(text.toHtmlEscaped());
}

QWidget *DialogParts::ButtonBar(const char *name, QPushButton *accept, QPushButton *reject)
{
    QWidget *bar = new QWidget;
    bar->setObjectName(QLatin1String(name));
    QHBoxLayout *row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(accept);
    row->addWidget(reject);
    return bar;
}

void DialogParts::Tell(const QString &problem)
{
    if (!problem.isNull()) {
        CommonUtils::ShowMessage(QMessageBox::Warning, QApplication::activeWindow(),
                                 DashboardText("IDS_WINDOW_TITLE"), problem, QLatin1String("IDS_OK"),
                                 QString(), QString(), true, Qt::WindowCloseButtonHint, nullptr, QString(),
                                 true);
    }
}
