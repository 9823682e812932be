#include "ModulePage.h"

#include <AgentStart.h>
#include <BidiText.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <ListKeeper.h>
#include <ListKeeperText.h>
#include <PluginHost.h>
#include <PluginPage.h>
#include <RulesPage.h>

#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

// Plug-ins place the parts of their pages by pixels within this.
const int pageWidth = 420;
const int pageHeight = 374;

/** Which of them has the plug-in's page. */
ModulePage *owner = nullptr;

} // namespace

ModulePage::ModulePage(PluginHost *plugins, ListKeeper *keeper, const QString &program, QWidget *parent)
    : QWidget(parent), m_plugins(plugins), m_keeper(keeper), m_program(program), m_layout(new QVBoxLayout),
      m_message(new QLabel), m_openButton(new QPushButton(DashboardText("IDS_MODULE_OPEN_DASHBOARD")))
{
    setObjectName(QLatin1String("modulePage"));
    m_message->setObjectName(QLatin1String("moduleMessage"));
    m_message->setWordWrap(true);
    m_message->setTextFormat(Qt::PlainText);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    // Settings programs take the size of their windows from this before list and rules are there.
    QHBoxLayout *row = new QHBoxLayout(this);
    row->addStrut(DialogParts::ForFont(pageHeight + 240));
    row->addLayout(m_layout);
    m_layout->addStrut(DialogParts::ForFont(pageWidth + 20));
    m_layout->addWidget(m_message);
    m_openButton->setObjectName(QLatin1String("moduleOpenButton"));
    connect(m_openButton, &QPushButton::clicked, this, &ModulePage::OpenDashboard);
    m_layout->addWidget(m_openButton, 0, Qt::AlignLeading);
    m_layout->addStretch();
    connect(m_keeper, &ListKeeper::Changed, this, &ModulePage::Follow);
}

ModulePage::~ModulePage()
{
    Close();
}

void ModulePage::Load()
{
    Close();
    if (owner) {
        connect(owner, &ModulePage::Released, this, &ModulePage::Load,
                Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
        ShowMessage(DashboardText("IDS_MODULE_OPEN_ALREADY"));
        return;
    }
    owner = this;
    m_keeper->Follow();
    const QString obstacle = Obstacle();
    if (obstacle.isNull()) {
        ShowList();
    } else {
        ShowMessage(obstacle);
    }
    ShowRules();
}

void ModulePage::Close()
{
    if (m_rules) {
        // Any other answer would take the choices back.
        m_rules->Close(SettingsPage::Ok);
        m_rules.reset();
    }
    delete m_rulesPlace;
    m_rulesPlace = nullptr;
    if (m_list) {
        m_list->Close(SettingsPage::NoAnswer);
        m_list.reset();
        m_keeper->EndOpening();
    }
    delete m_listPlace;
    m_listPlace = nullptr;
    m_message->hide();
    if (owner == this) {
        owner = nullptr;
        emit Released();
    }
}

void ModulePage::Follow()
{
    // The list may be damaged now, or whole again.
    if (owner == this && m_rulesPlace && m_list.isNull() == Obstacle().isNull()) {
        QMetaObject::invokeMethod(this, &ModulePage::Load, Qt::QueuedConnection);
    }
}

QString ModulePage::Obstacle() const
{
    QString reason = ListKeeperText::Reason(*m_keeper, m_keeper->WriteObstacle());
    if (!reason.isNull() || !m_keeper->IsDamaged()) {
        return reason;
    }
    return DashboardText("IDS_DAMAGE_TITLE") + QLatin1String("\n\n") +
           DashboardText("IDS_LIST_KEPT").arg(InOwnDirection(m_keeper->CopyPath()));
}

void ModulePage::ShowList()
{
    m_listPlace = new QWidget;
    m_listPlace->setObjectName(QLatin1String("moduleList"));
    m_listPlace->setFixedSize(DialogParts::ForFont(pageWidth), DialogParts::ForFont(pageHeight));
    m_layout->insertWidget(0, m_listPlace, 0, Qt::AlignLeading);
    const PluginHost::Plugin plugin = m_plugins->Plugins().constFirst();
    m_list.reset(PluginPage::Make(plugin, m_plugins));
    m_keeper->BeginOpening();
    if (m_list && m_list->Show(m_listPlace)) {
        m_listPlace->show();
        return;
    }
    m_keeper->EndOpening();
    const QString problem = m_list ? m_list->ProblemText() : PluginHost::ProblemText(plugin);
    m_list.reset();
    delete m_listPlace;
    m_listPlace = nullptr;
    ShowMessage(problem);
}

void ModulePage::ShowRules()
{
    m_rulesPlace = new QWidget;
    m_layout->insertWidget(m_layout->count() - 2, m_rulesPlace);
    m_rules.reset(new RulesPage(AgentStart(m_program, QString())));
    m_rules->Show(m_rulesPlace);
    m_rulesPlace->show();
}

void ModulePage::ShowMessage(const QString &text)
{
    m_message->setText(text);
    m_message->show();
}

void ModulePage::OpenDashboard()
{
    QProcess::startDetached(m_program, QStringList());
}
