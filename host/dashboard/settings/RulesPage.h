#ifndef RULESPAGE_H
#define RULESPAGE_H

#include "SettingsPage.h"

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
    RulesPage();

    QString Title() const override;
    bool Show(QWidget *place) override;
    QString ProblemText() const override;
    void Close(Answer answer) override;
    void Retranslate() override;

private slots:
    void ChooseNewNetworks(int index);
    void ChooseRuling(bool isRuling);

private:
    QPointer<QWidget> m_page;
    ListRules::NewNetworks m_newBefore = ListRules::NewAtTheEnd;
    QLabel *m_newLabel = nullptr;
    QComboBox *m_newBox = nullptr;
    bool m_wasRuling = true;
    QCheckBox *m_rulingBox = nullptr;
};

#endif
