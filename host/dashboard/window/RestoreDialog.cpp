#include "RestoreDialog.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <ListChangeText.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <NameDelegate.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

const int dialogWidth = 800;
const int dialogHeight = 460;
const int tableWidth = 580;

enum Column { TimeColumn, ChangeColumn, StatusColumn, ColumnCount };

QString ChangeText(const QList<ListState> &states, int place)
{
    return place == 0 ? DashboardText("IDS_RESTORE_OLDEST")
                      : ListChangeText::DescribeStep(states, place - 1, place);
}

QString StatusText(int place, int position)
{
    if (place == position) {
        return DashboardText("IDS_RESTORE_NOW");
    }
    return place > position ? DashboardText("IDS_RESTORE_UNDONE") : QString();
}

} // namespace

RestoreDialog::RestoreDialog(ListKeeper *keeper, QWidget *parent)
    : ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog), m_keeper(keeper), m_position(-1),
      m_hint(DialogParts::Label("restoreHintLabel")), m_body(new QStackedWidget),
      m_table(DialogParts::Table("restoreList", ColumnCount)),
      m_previewTitle(DialogParts::Label("restorePreviewLabel")), m_preview(new QListWidget),
      m_effect(DialogParts::Label("restoreEffectLabel")),
      m_unusable(DialogParts::EmptyLabel("restoreUnusableLabel")), m_asideButton(new QPushButton),
      m_problem(DialogParts::Label("restoreProblemLabel")), m_okButton(new QPushButton),
      m_closeButton(new QPushButton)
{
    setObjectName(QLatin1String("restoreDialog"));
    m_body->setObjectName(QLatin1String("restoreBody"));
    m_body->addWidget(CreateStatesPage());
    m_body->addWidget(CreateUnusablePage());
    m_problem->hide();
    m_okButton->setObjectName(QLatin1String("restoreOkButton"));
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(accept()));
    m_closeButton->setObjectName(QLatin1String("restoreCloseButton"));
    connect(m_closeButton, SIGNAL(clicked()), this, SLOT(reject()));

    QWidget *content = new QWidget(this);
    content->setObjectName(QLatin1String("restoreContent"));
    QVBoxLayout *layout = new QVBoxLayout(content);
    layout->setSpacing(10);
    layout->addWidget(m_hint);
    layout->addWidget(m_body, 1);
    layout->addWidget(m_problem);
    layout->addWidget(DialogParts::ButtonBar("restoreButtonBar", m_okButton, m_closeButton));
    AddMainWidget(content);
    m_okButton->setDefault(true);
    setFixedSize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight));

    connect(m_table, SIGNAL(itemSelectionChanged()), this, SLOT(ShowChoice()));
    connect(m_table, SIGNAL(cellDoubleClicked(int, int)), this, SLOT(accept()));
    connect(m_keeper, SIGNAL(Changed()), this, SLOT(ListStates()));
    Retranslate();
    m_table->setFocus();
}

QWidget *RestoreDialog::CreateStatesPage()
{
    m_table->setFixedWidth(DialogParts::ForFont(tableWidth));
    m_preview->setObjectName(QLatin1String("restorePreview"));
    m_preview->setItemDelegate(new NameDelegate(m_preview));
    m_preview->setSelectionMode(QAbstractItemView::NoSelection);
    m_preview->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_previewTitle->setBuddy(m_preview);

    QWidget *page = new QWidget;
    page->setObjectName(QLatin1String("restoreStatesPage"));
    QVBoxLayout *preview = new QVBoxLayout;
    preview->addWidget(m_previewTitle);
    preview->addWidget(m_preview, 1);
    QHBoxLayout *lists = new QHBoxLayout;
    lists->addWidget(m_table);
    lists->addLayout(preview, 1);
    QVBoxLayout *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(lists, 1);
    layout->addWidget(m_effect);
    return page;
}

QWidget *RestoreDialog::CreateUnusablePage()
{
    m_unusable->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_asideButton->setObjectName(QLatin1String("restoreAsideButton"));
    connect(m_asideButton, SIGNAL(clicked()), this, SLOT(SetHistoryAside()));
    QWidget *page = new QWidget;
    page->setObjectName(QLatin1String("restoreUnusablePage"));
    QVBoxLayout *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_unusable, 1);
    layout->addWidget(m_asideButton, 0, Qt::AlignCenter);
    return page;
}

void RestoreDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_RESTORE_TITLE"));
    m_hint->setText(DashboardText("IDS_RESTORE_HINT"));
    m_table->setAccessibleName(DashboardText("IDS_RESTORE_TITLE"));
    DialogParts::SetHeader(m_table, TimeColumn, DashboardText("IDS_RESTORE_TIME"), Qt::AlignLeft);
    DialogParts::SetHeader(m_table, ChangeColumn, DashboardText("IDS_RESTORE_CHANGE"), Qt::AlignLeft);
    DialogParts::SetHeader(m_table, StatusColumn, DashboardText("IDS_RESTORE_STATUS"), Qt::AlignLeft);
    m_previewTitle->setText(DashboardText("IDS_RESTORE_PREVIEW"));
    m_preview->setAccessibleName(DashboardText("IDS_RESTORE_PREVIEW"));
    m_asideButton->setText(DashboardText("IDS_RESTORE_ASIDE"));
    m_okButton->setText(DashboardText("IDS_RESTORE_OK"));
    m_closeButton->setText(DashboardText("IDS_CLOSE"));
    ListStates();
}

void RestoreDialog::ListStates()
{
    const int place = ChosenPlace() >= 0 ? ChosenPlace() : m_position;
    const ListState chosen = m_states.value(place);
    m_states = m_keeper->History().States();
    m_position = m_keeper->History().Position();

    const bool wasBlocked = m_table->blockSignals(true);
    m_table->setRowCount(m_states.size());
    for (int i = 0; i < m_states.size(); ++i) {
        const int row = m_states.size() - 1 - i;
        DialogParts::SetCell(m_table, row, TimeColumn, ListChangeText::Moment(m_states.at(i).time));
        DialogParts::SetCell(m_table, row, ChangeColumn, ChangeText(m_states, i));
        DialogParts::SetCell(m_table, row, StatusColumn, StatusText(i, m_position));
        for (int column = 0; column < ColumnCount; ++column) {
            QFont font = m_table->font();
            font.setBold(i == m_position);
            font.setItalic(i > m_position);
            m_table->item(row, column)->setFont(font);
        }
    }
    FitColumns();
    const int again = m_keeper->History().Find(place, chosen);
    m_table->setCurrentCell(m_states.size() - 1 - (again >= 0 ? again : m_position), TimeColumn);
    m_table->blockSignals(wasBlocked);

    const bool isUnusable = m_keeper->IsHistoryUnusable();
    m_unusable->setText(ListKeeperText::Reason(*m_keeper, m_keeper->HistoryProblem()));
    m_body->setCurrentIndex(isUnusable ? 1 : 0);
    m_hint->setVisible(!isUnusable);
    ShowChoice();
}

void RestoreDialog::FitColumns()
{
    // The last column would take what is left of the width, which is for the changes.
    m_table->horizontalHeader()->setStretchLastSection(false);
    m_table->resizeColumnToContents(TimeColumn);
    m_table->resizeColumnToContents(StatusColumn);
    const int scrollBarWidth = m_table->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    m_table->setColumnWidth(ChangeColumn, m_table->maximumWidth() - 2 * m_table->frameWidth() -
                                              scrollBarWidth - m_table->columnWidth(TimeColumn) -
                                              m_table->columnWidth(StatusColumn));
    m_table->horizontalHeader()->setStretchLastSection(true);
}

int RestoreDialog::ChosenPlace() const
{
    const QModelIndexList chosen = m_table->selectionModel()->selectedRows();
    return chosen.isEmpty() ? -1 : m_states.size() - 1 - chosen.first().row();
}

void RestoreDialog::ShowChoice()
{
    const int place = ChosenPlace();
    m_preview->clear();
    QString effect;
    if (place >= 0) {
        const QList<PriorityList> entries = m_states.at(place).entries;
        for (int i = 0; i < entries.size(); ++i) {
            m_preview->addItem(entries.at(i).name.simplified());
        }
        effect = place == m_position ? DashboardText("IDS_RESTORE_IS_NOW")
                                     : DashboardText("IDS_RESTORE_EFFECT")
                                           .arg(ListChangeText::Announce(m_keeper->Entries(), entries));
    }
    m_effect->setText(effect);
    m_okButton->setEnabled(place >= 0 && place != m_position &&
                           m_keeper->ChangeObstacle() == ListKeeper::NoObstacle);
}

void RestoreDialog::SetHistoryAside()
{
    ShowProblem(ListKeeperText::Reason(*m_keeper, m_keeper->SetHistoryAside()));
}

void RestoreDialog::ShowProblem(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isEmpty());
}

void RestoreDialog::accept()
{
    if (!m_okButton->isEnabled()) {
        return;
    }
    const QString problem =
        ListKeeperText::Reason(*m_keeper, m_keeper->Restore(ChosenPlace(), m_states.at(ChosenPlace())));
    if (problem.isNull()) {
        ExtendDialog::accept();
    } else {
        ShowProblem(problem);
    }
}
