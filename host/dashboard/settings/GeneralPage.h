#ifndef GENERALPAGE_H
#define GENERALPAGE_H

#include "SettingsPage.h"

#include <ListRules.h>

#include <QObject>
#include <QPointer>

class DashboardLanguage;
class PluginHost;
class QCheckBox;
class QComboBox;
class QLabel;

/** The dashboard's own page: its language, how the list rules, its plug-ins, and where it keeps things. */
class GeneralPage : public QObject, public SettingsPage
{
    Q_OBJECT

public:
    GeneralPage(DashboardLanguage *language, PluginHost *plugins);

    QString Title() const override;
    bool Show(QWidget *place) override;
    QString ProblemText() const override;
    void Close(Answer answer) override;
    void Retranslate() override;

private slots:
    void ChooseLanguage(int index);
    void ChooseNewNetworks(int index);
    void ChooseRuling(bool isRuling);

private:
    DashboardLanguage *const m_language;
    PluginHost *const m_plugins;
    QString m_languageBefore;
    QPointer<QWidget> m_page;
    QLabel *m_languageLabel;
    QComboBox *m_languageBox;
    ListRules::NewNetworks m_newBefore = ListRules::NewAtTheEnd;
    QLabel *m_newLabel;
    QComboBox *m_newBox;
    bool m_wasRuling = true;
    QCheckBox *m_rulingBox;
    QLabel *m_pluginsLabel;
    QLabel *m_pluginsText;
    QLabel *m_placesLabel;
    QLabel *m_placesText;
};

#endif
