#include "DamagedListDialog.h"

#include <BidiText.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <ListChangeText.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>

#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

const int dialogWidth = 440;

QString LastText(const ListHistory &history)
{
    return DashboardText("IDS_DAMAGE_LAST")
        .arg(ListChangeText::Moment(history.Since()), DashboardNumber(history.Entries().size()));
}

} // namespace

DamagedListDialog::DamagedListDialog(ListKeeper *keeper, QWidget *parent)
    : ExtendDialog(parent, Qt::WindowCloseButtonHint, enWidgetTypeDialog), m_keeper(keeper),
      m_content(new QWidget(this)), m_damage(DialogParts::Label("damageTextLabel")),
      m_last(DialogParts::Label("damageLastLabel")), m_copy(DialogParts::Label("damageCopyLabel")),
      m_problem(DialogParts::Label("damageProblemLabel"))
{
    setObjectName(QLatin1String("damagedListDialog"));
    m_content->setObjectName(QLatin1String("damageContent"));
    QVBoxLayout *layout = new QVBoxLayout(m_content);
    layout->setSpacing(10);
    layout->addWidget(m_damage);
    layout->addWidget(m_last);
    layout->addWidget(m_copy);
    m_bringBackButton = AddButton("damageBringBackButton", SLOT(BringBack()));
    m_goOnButton = AddButton("damageGoOnButton", SLOT(GoOn()));
    m_leaveButton = AddButton("damageLeaveButton", SLOT(reject()));
    layout->addWidget(m_problem);
    AddMainWidget(m_content);
    m_problem->hide();

    connect(m_keeper, SIGNAL(Changed()), this, SLOT(Follow()));
    Retranslate();
    // What takes nothing away is what Return presses.
    QPushButton *first = m_keeper->CanBringBack() ? m_bringBackButton : m_leaveButton;
    first->setDefault(true);
    first->setFocus();
}

QPushButton *DamagedListDialog::AddButton(const char *name, const char *slot)
{
    QPushButton *button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    connect(button, SIGNAL(clicked()), this, slot);
    m_content->layout()->addWidget(button);
    return button;
}

void DamagedListDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_DAMAGE_TITLE"));
    m_bringBackButton->setText(DashboardText("IDS_DAMAGE_BRING_BACK"));
    m_goOnButton->setText(DashboardText("IDS_DAMAGE_GO_ON"));
    m_leaveButton->setText(DashboardText("IDS_DAMAGE_LEAVE"));
    Follow();
}

void DamagedListDialog::Follow()
{
    if (!m_keeper->IsDamaged()) {
        // It was mended, or can't even be opened any more.
        done(m_keeper->WriteObstacle() == ListKeeper::NoObstacle ? Accepted : Rejected);
        return;
    }
    m_entries = m_keeper->Entries();
    m_damage->setText(DashboardText("IDS_DAMAGE_READ").arg(DashboardNumber(m_entries.size())));
    const bool canBringBack = m_keeper->CanBringBack();
    m_last->setText(canBringBack ? LastText(m_keeper->History()) : DashboardText("IDS_DAMAGE_NO_LAST"));
    const QString copy = DashboardText("IDS_DAMAGE_COPY");
    m_copy->setText(copy.arg(InOwnDirection(QFileInfo(m_keeper->CopyPath()).fileName())));
    m_copy->setToolTip(copy.arg(InOwnDirection(m_keeper->CopyPath())).toHtmlEscaped());
    m_bringBackButton->setVisible(canBringBack);
    m_bringBackButton->setAccessibleDescription(m_last->text());
    m_goOnButton->setAccessibleDescription(m_damage->text());
    m_leaveButton->setAccessibleDescription(m_copy->text());
    ShowProblem(ListKeeperText::Reason(*m_keeper, m_keeper->WriteObstacle()));
}

void DamagedListDialog::BringBack()
{
    Finish(m_keeper->BringBack());
}

void DamagedListDialog::GoOn()
{
    // As they were told of; what can be read may be told anew on the way.
    const QList<PriorityList> entries = m_entries;
    Finish(m_keeper->GoOnWith(entries));
}

void DamagedListDialog::Finish(ListKeeper::Obstacle obstacle)
{
    if (obstacle != ListKeeper::NoObstacle) {
        ShowProblem(ListKeeperText::Reason(*m_keeper, obstacle));
    } else if (isVisible()) {
        accept();
    }
}

void DamagedListDialog::ShowProblem(const QString &problem)
{
    m_problem->setText(problem);
    m_problem->setVisible(!problem.isNull());
    const int width = DialogParts::ForFont(dialogWidth);
    setFixedSize(width, layout()->totalHeightForWidth(width));
}
