#include "RulesPage.h"

#include <DashboardText.h>
#include <PluginObjects.h>
#include <UserData.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace
{

QCheckBox *AddBox(const char *name, bool isChecked, QVBoxLayout *layout)
{
    QCheckBox *box = new QCheckBox;
    box->setObjectName(QLatin1String(name));
    box->setChecked(isChecked);
    layout->addWidget(box);
    // Practice networks are not ruled.
    box->setVisible(PluginObjects::Ordering());
    return box;
}

} // namespace

RulesPage::RulesPage(const AgentStart &agent) : m_agent(agent) {}

QString RulesPage::Title() const
{
    return DashboardText("IDS_RULES_TITLE");
}

bool RulesPage::Show(QWidget *place)
{
    m_page = new QWidget(place);
    m_page->setObjectName(QLatin1String("rulesPage"));
    QVBoxLayout *layout = new QVBoxLayout(m_page);
    m_newLabel = new QLabel;
    m_newLabel->setObjectName(QLatin1String("newNetworksLabel"));
    QFont font = m_newLabel->font();
    font.setBold(true);
    m_newLabel->setFont(font);
    layout->addWidget(m_newLabel);
    m_newBox = new QComboBox;
    m_newBox->setObjectName(QLatin1String("newNetworksBox"));
    m_newBefore = ListRules::PlaceOfNewNetworks();
    m_newLabel->setBuddy(m_newBox);
    connect(m_newBox, QOverload<int>::of(&QComboBox::activated), this, &RulesPage::ChooseNewNetworks);
    layout->addWidget(m_newBox);
    layout->addSpacing(12);
    m_wasRuling = ListRules::IsRuling();
    m_rulingBox = AddBox("rulingBox", m_wasRuling, layout);
    connect(m_rulingBox, &QCheckBox::clicked, this, &RulesPage::ChooseRuling);
    m_agentBefore = m_agent.Now();
    m_keepingBox = AddBox("keepingBox", m_agentBefore.IsOn(), layout);
    connect(m_keepingBox, &QCheckBox::clicked, this, &RulesPage::ChooseKeeping);
    m_wasIconWanted = AgentStart::IsIconWanted();
    m_iconBox = AddBox("iconBox", m_wasIconWanted, layout);
    connect(m_iconBox, &QCheckBox::clicked, this, &RulesPage::ChooseIcon);
    m_wasFollowing = ListRules::IsFollowing();
    m_followingBox = AddBox("followingBox", m_wasFollowing, layout);
    connect(m_followingBox, &QCheckBox::clicked, this, &RulesPage::ChooseFollowing);
    m_wasNotifying = ListRules::IsNotifying();
    m_notifyingBox = AddBox("notifyingBox", m_wasNotifying, layout);
    connect(m_notifyingBox, &QCheckBox::clicked, this, &RulesPage::ChooseNotifying);
    m_wasSaving = ListRules::IsSavingData();
    m_savingBox = AddBox("savingBox", m_wasSaving, layout);
    connect(m_savingBox, &QCheckBox::clicked, this, &RulesPage::ChooseSaving);
    EnableBoxes();
    layout->addStretch();

    QVBoxLayout *placeLayout = new QVBoxLayout(place);
    placeLayout->setContentsMargins(0, 0, 0, 0);
    placeLayout->addWidget(m_page);
    Retranslate();
    m_page->show();
    return true;
}

QString RulesPage::ProblemText() const
{
    return QString();
}

void RulesPage::Close(Answer answer)
{
    if (answer != Ok) {
        if (ListRules::PlaceOfNewNetworks() != m_newBefore) {
            ListRules::SetPlaceOfNewNetworks(m_newBefore);
        }
        if (ListRules::IsRuling() != m_wasRuling) {
            ListRules::SetRuling(m_wasRuling);
        }
        if (AgentStart::IsIconWanted() != m_wasIconWanted) {
            ChooseIcon(m_wasIconWanted);
        }
        if (m_agent.Now().IsOn() != m_agentBefore.IsOn()) {
            m_agent.Restore(m_agentBefore);
        }
        if (ListRules::IsFollowing() != m_wasFollowing) {
            ListRules::SetFollowing(m_wasFollowing);
        }
        if (ListRules::IsNotifying() != m_wasNotifying) {
            ListRules::SetNotifying(m_wasNotifying);
        }
        if (ListRules::IsSavingData() != m_wasSaving) {
            ListRules::SetSavingData(m_wasSaving);
        }
    }
    delete m_page.data();
}

void RulesPage::Retranslate()
{
    if (!m_page) {
        return;
    }
    m_newLabel->setText(DashboardText("IDS_RULES_NEW"));
    {
        const QSignalBlocker blocker(m_newBox);
        m_newBox->clear();
        // In the order of ListRules::NewNetworks.
        for (const char *id : {"IDS_NEW_AT_END", "IDS_NEW_AT_TOP", "IDS_NEW_NOT_LISTED"}) {
            m_newBox->addItem(DashboardText(id));
        }
        m_newBox->setCurrentIndex(ListRules::PlaceOfNewNetworks());
    }
    m_rulingBox->setText(DashboardText("IDS_RULES_RULING"));
    m_rulingBox->setToolTip(DashboardText("IDS_RULES_RULING_HINT"));
    m_keepingBox->setText(DashboardText("IDS_RULES_KEEPING"));
    m_keepingBox->setToolTip(DashboardText("IDS_RULES_KEEPING_HINT"));
    m_iconBox->setText(DashboardText("IDS_RULES_ICON"));
    m_iconBox->setToolTip(DashboardText("IDS_RULES_ICON_HINT"));
    m_followingBox->setText(DashboardText("IDS_RULES_FOLLOWING"));
    m_followingBox->setToolTip(DashboardText("IDS_RULES_FOLLOWING_HINT"));
    m_notifyingBox->setText(DashboardText("IDS_RULES_NOTIFYING"));
    m_notifyingBox->setToolTip(DashboardText("IDS_RULES_NOTIFYING_HINT"));
    m_savingBox->setText(DashboardText("IDS_RULES_SAVING"));
    m_savingBox->setToolTip(DashboardText("IDS_RULES_SAVING_HINT"));
}

void RulesPage::ChooseNewNetworks(int index)
{
    if (!ListRules::SetPlaceOfNewNetworks(ListRules::NewNetworks(index))) {
        qWarning("the place of new networks can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_newBox->setCurrentIndex(ListRules::PlaceOfNewNetworks());
    }
}

void RulesPage::ChooseRuling(bool isRuling)
{
    if (!ListRules::SetRuling(isRuling)) {
        qWarning("whether the list rules can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_rulingBox->setChecked(!isRuling);
    }
    EnableBoxes();
}

void RulesPage::EnableBoxes()
{
    m_keepingBox->setEnabled(m_rulingBox->isChecked());
    m_iconBox->setEnabled(m_rulingBox->isChecked() && m_keepingBox->isChecked());
    m_followingBox->setEnabled(m_rulingBox->isChecked());
    m_notifyingBox->setEnabled(m_rulingBox->isChecked() && m_followingBox->isChecked());
    m_savingBox->setEnabled(m_rulingBox->isChecked());
}

void RulesPage::ChooseKeeping(bool isKeeping)
{
    if (!(isKeeping ? m_agent.TurnOn() : m_agent.TurnOff())) {
        qWarning("%s can't be changed", AgentStart::FilePath().toLocal8Bit().constData());
        m_keepingBox->setChecked(!isKeeping);
    }
    EnableBoxes();
}

void RulesPage::ChooseIcon(bool isWanted)
{
    AgentStart::SetIconWanted(isWanted);
    m_agent.Restart();
}

void RulesPage::ChooseFollowing(bool isFollowing)
{
    if (!ListRules::SetFollowing(isFollowing)) {
        qWarning("whether the list is followed can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_followingBox->setChecked(!isFollowing);
    }
    EnableBoxes();
}

void RulesPage::ChooseNotifying(bool isNotifying)
{
    if (!ListRules::SetNotifying(isNotifying)) {
        qWarning("whether switches are told of can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_notifyingBox->setChecked(!isNotifying);
    }
}

void RulesPage::ChooseSaving(bool isSaving)
{
    if (!ListRules::SetSavingData(isSaving)) {
        qWarning("whether data is saved can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_savingBox->setChecked(!isSaving);
    }
}
