#include "BareToolkit.h"

#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

void BareRead(const QString &path, QList<PriorityList> *list)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly | QIODevice::Text);
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() && reader.name() == QLatin1String("item")) {
            PriorityList entry;
            entry.name = reader.attributes().value(QLatin1String("name")).toString();
            entry.type = reader.attributes().value(QLatin1String("type")).toString();
            list->append(entry);
        }
    }
}

void BareWrite(const QString &path, const QList<PriorityList> &list)
{
    QFile::remove(path);
    QFile file(path);
    file.open(QIODevice::ReadWrite | QIODevice::Text);
    QXmlStreamWriter writer(&file);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    writer.writeStartElement(QLatin1String("zeltdoc"));
    writer.writeAttribute(QLatin1String("type"), QLatin1String("profile"));
    writer.writeStartElement(QLatin1String("profile"));
    for (int i = 0; i < list.size(); ++i) {
        writer.writeStartElement(QLatin1String("item"));
        writer.writeAttribute(QLatin1String("name"), list.at(i).name);
        writer.writeAttribute(QLatin1String("type"), list.at(i).type);
        writer.writeEndElement();
    }
    writer.writeEndDocument();
}

BareTable::BareTable(QWidget *parent) : QTableWidget(parent)
{
    setColumnCount(1);
    setColumnWidth(0, 300);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setShowGrid(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
}

void BareTable::Rebuild(const QPixmap &icon, const QStringList &names)
{
    setRowCount(0);
    setRowCount(names.size());
    for (int row = 0; row < names.size(); ++row) {
        QWidget *cell = new QWidget;
        QLabel *iconLabel = new QLabel(cell);
        iconLabel->setPixmap(icon);
        iconLabel->move(3, 3);
        QLabel *nameLabel = new QLabel(cell);
        nameLabel->setFixedWidth(200);
        nameLabel->setText(nameLabel->fontMetrics().elidedText(names.at(row), Qt::ElideRight, 200));
        nameLabel->move(35, 9);
        setCellWidget(row, 0, cell);
    }
}

BareList::BareList(QWidget *parent) : QListWidget(parent) {}

void BareList::Rebuild(const QString &iconPath, const QStringList &names)
{
    clear();
    for (int row = 0; row < names.size(); ++row) {
        addItem(new QListWidgetItem(QIcon(iconPath), names.at(row)));
    }
}

void BareList::RebuildWithOneIcon(const QIcon &icon, const QStringList &names)
{
    clear();
    for (int row = 0; row < names.size(); ++row) {
        addItem(new QListWidgetItem(icon, names.at(row)));
    }
}

BareDialog::BareDialog(QWidget *parent, const QPixmap &icon, const QStringList &names)
    : QDialog(parent), m_table(new BareTable(this))
{
    QVBoxLayout *column = new QVBoxLayout(this);
    column->addWidget(m_table);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton(QLatin1String("OK")));
    buttons->addWidget(new QPushButton(QLatin1String("Cancel")));
    column->addLayout(buttons);
    m_table->Rebuild(icon, names);
}
