#include "ImportDialog.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <ImportPlan.h>
#include <ListChangeText.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <NameDelegate.h>
#include <PluginObjects.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

const int dialogWidth = 640;
const int dialogHeight = 460;
const int placeWidth = 60;
const int nameWidth = 220;

enum Column { PlaceColumn, NameColumn, EffectColumn, ColumnCount };

const char *EffectTextId(ImportPlan::Effect effect)
{
    switch (effect) {
    case ImportPlan::Added:
        return "IDS_IMPORT_ADDED";
    case ImportPlan::MovedUp:
        return "IDS_IMPORT_MOVED_UP";
    case ImportPlan::MovedDown:
        return "IDS_IMPORT_MOVED_DOWN";
    case ImportPlan::Moved:
        return "IDS_IMPORT_MOVED";
    case ImportPlan::Removed:
        return "IDS_IMPORT_REMOVED";
    case ImportPlan::Stays:
        break;
    }
    return "IDS_IMPORT_STAYS";
}

QString UnknownText(const ImportPlan &plan)
{
    QList<PriorityList> unknown;
    for (int i = 0; i < plan.rows.size(); ++i) {
        if (plan.rows.at(i).isUnknown) {
            unknown.append(plan.rows.at(i).entry);
        }
    }
    return unknown.isEmpty() ? QString()
                             : DashboardText("IDS_IMPORT_UNKNOWN").arg(ListChangeText::Names(unknown));
}

} // namespace

const ImportDialog::Words ImportDialog::fromFile = {"IDS_IMPORT_TITLE", "IDS_IMPORT_SUMMARY",
                                                    "IDS_IMPORT_OK"};
const ImportDialog::Words ImportDialog::fromComputer = {"IDS_TAKE_OVER_TITLE", "IDS_TAKE_OVER_SUMMARY",
                                                        "IDS_TAKE_OVER_OK"};

ImportDialog::ImportDialog(ListKeeper *keeper, const QList<PriorityList> &entries, const Words &words,
                           QWidget *parent)
    : ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog), m_keeper(keeper),
      m_entries(entries), m_words(words), m_summary(DialogParts::Label("importSummaryLabel")),
      m_table(DialogParts::Table("importList", ColumnCount)),
      m_unknown(DialogParts::Label("importUnknownLabel")),
      m_problem(DialogParts::Label("importProblemLabel")), m_okButton(new QPushButton),
      m_cancelButton(new QPushButton)
{
    setObjectName(QLatin1String("importDialog"));
    m_table->setItemDelegateForColumn(NameColumn, new NameDelegate(m_table));
    m_table->setColumnWidth(NameColumn, DialogParts::ForFont(nameWidth));
    m_problem->hide();
    m_okButton->setObjectName(QLatin1String("importOkButton"));
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(accept()));
    m_cancelButton->setObjectName(QLatin1String("importCancelButton"));
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));

    QWidget *content = new QWidget(this);
    content->setObjectName(QLatin1String("importContent"));
    QVBoxLayout *layout = new QVBoxLayout(content);
    layout->setSpacing(10);
    layout->addWidget(m_summary);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_unknown);
    layout->addWidget(m_problem);
    layout->addWidget(DialogParts::ButtonBar("importButtonBar", m_okButton, m_cancelButton));
    AddMainWidget(content);
    m_okButton->setDefault(true);
    setFixedSize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight));

    // Others may change the list while it is being looked at.
    connect(m_keeper, SIGNAL(Changed()), this, SLOT(Retranslate()));
    Retranslate();
    m_okButton->setFocus();
}

void ImportDialog::Retranslate()
{
    setWindowTitle(DashboardText(m_words.title));
    m_table->setAccessibleName(DashboardText(m_words.title));
    DialogParts::SetHeader(m_table, PlaceColumn, DashboardText("IDS_IMPORT_PLACE"), Qt::AlignRight);
    m_table->setColumnWidth(PlaceColumn,
                            qMax(placeWidth, m_table->horizontalHeader()->sectionSizeHint(PlaceColumn)));
    DialogParts::SetHeader(m_table, NameColumn, DashboardText("IDS_CONNECT_NETWORK"), Qt::AlignLeft);
    DialogParts::SetHeader(m_table, EffectColumn, DashboardText("IDS_IMPORT_EFFECT"), Qt::AlignLeft);
    m_okButton->setText(DashboardText(m_words.accept));
    m_cancelButton->setText(DashboardText("IDS_CANCEL"));
    ShowPlan();
}

void ImportDialog::ShowPlan()
{
    const QList<PriorityList> before = m_keeper->Entries();
    QList<PriorityList> known;
    const bool isKnown = PluginObjects::RememberedNetworks(&known);
    const ImportPlan plan = ImportPlan::Make(before, m_entries, isKnown ? &known : nullptr);
    m_summary->setText(plan.IsChange()
                           ? DashboardText(m_words.summary).arg(ListChangeText::Announce(before, m_entries))
                           : DashboardText("IDS_IMPORT_NO_CHANGE"));
    m_table->setRowCount(plan.rows.size());
    for (int row = 0; row < plan.rows.size(); ++row) {
        const ImportPlan::Row &planned = plan.rows.at(row);
        const bool isRemoved = planned.effect == ImportPlan::Removed;
        const QString effect = DashboardText(EffectTextId(planned.effect));
        DialogParts::SetCell(m_table, row, PlaceColumn, isRemoved ? QString() : DashboardNumber(row + 1));
        m_table->item(row, PlaceColumn)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        DialogParts::SetCell(m_table, row, NameColumn, planned.entry.name);
        DialogParts::SetCell(m_table, row, EffectColumn,
                             planned.isUnknown ? DashboardText("IDS_IMPORT_EFFECT_UNKNOWN").arg(effect)
                                               : effect);
        QFont font = m_table->font();
        font.setStrikeOut(isRemoved);
        font.setBold(planned.effect != ImportPlan::Stays && !isRemoved);
        m_table->item(row, NameColumn)->setFont(font);
    }
    const QString unknown = UnknownText(plan);
    m_unknown->setText(unknown);
    m_unknown->setVisible(!unknown.isEmpty());
    m_okButton->setEnabled(plan.IsChange());
}

void ImportDialog::accept()
{
    if (!m_okButton->isEnabled()) {
        return;
    }
    // What happens meanwhile is no reason to show the plan anew.
    disconnect(m_keeper, SIGNAL(Changed()), this, SLOT(Retranslate()));
    const QString problem = ListKeeperText::Reason(*m_keeper, m_keeper->Replace(m_entries));
    if (problem.isNull()) {
        ExtendDialog::accept();
        return;
    }
    m_problem->setText(problem);
    m_problem->show();
    connect(m_keeper, SIGNAL(Changed()), this, SLOT(Retranslate()));
}
