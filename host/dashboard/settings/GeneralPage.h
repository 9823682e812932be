#ifndef GENERALPAGE_H
#define GENERALPAGE_H

#include "SettingsPage.h"

#include <QObject>
#include <QPointer>

class DashboardLanguage;
class PluginHost;
class QComboBox;
class QLabel;

/** The dashboard's own page: its language, its plug-ins, and where it keeps things. */
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

private:
    DashboardLanguage *const m_language;
    PluginHost *const m_plugins;
    QString m_languageBefore;
    QPointer<QWidget> m_page;
    QLabel *m_languageLabel;
    QComboBox *m_languageBox;
    QLabel *m_pluginsLabel;
    QLabel *m_pluginsText;
    QLabel *m_placesLabel;
    QLabel *m_placesText;
};

#endif
