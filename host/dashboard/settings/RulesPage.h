#ifndef RULESPAGE_H
#define RULESPAGE_H

#include "SettingsPage.h"

#include <AgentStart.h>
#include <ListRules.h>

#include <QObject>
#include <QPointer>

class QCheckBox;
class QComboBox;
class QLabel;

/** How the list rules. Every choice takes effect at once, and goes back unless the answer is Ok. */
class RulesPage : public QObject, public SettingsPage
{
    Q_OBJECT

public:
    /** @param agent  what keeps the order in effect without a window. */
    explicit RulesPage(const AgentStart &agent);

    QString Title() const override;
    bool Show(QWidget *place) override;
    QString ProblemText() const override;
    void Close(Answer answer) override;
    void Retranslate() override;

private slots:
    void ChooseNewNetworks(int index);
    void ChooseRuling(bool isRuling);
    void ChooseKeeping(bool isKeeping);
    void ChooseIcon(bool isWanted);
    void ChooseFollowing(bool isFollowing);
    void ChooseNotifying(bool isNotifying);
    void ChooseSaving(bool isSaving);

private:
    void EnableBoxes();

    QPointer<QWidget> m_page;
    ListRules::NewNetworks m_newBefore = ListRules::NewAtTheEnd;
    QLabel *m_newLabel = nullptr;
    QComboBox *m_newBox = nullptr;
    bool m_wasRuling = true;
    QCheckBox *m_rulingBox = nullptr;
    AgentStart m_agent;
    AgentStart::State m_agentBefore;
    QCheckBox *m_keepingBox = nullptr;
    bool m_wasIconWanted = false;
    QCheckBox *m_iconBox = nullptr;
    bool m_wasFollowing = false;
    QCheckBox *m_followingBox = nullptr;
    bool m_wasNotifying = false;
    QCheckBox *m_notifyingBox = nullptr;
    bool m_wasSaving = false;
    QCheckBox *m_savingBox = nullptr;
};

#endif
