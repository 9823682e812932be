#include "GeneralPage.h"

#include <Change.h>
#include <CommonUtils.h>
#include <DashboardLanguage.h>
#include <DashboardText.h>
#include <HostControl.h>
#include <PluginHost.h>
#include <UserData.h>

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace
{

QLabel *AddCaption(const char *name, QVBoxLayout *layout)
{
    QLabel *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    layout->addWidget(label);
    return label;
}

QLabel *AddText(const char *name, QVBoxLayout *layout)
{
    QLabel *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setTextFormat(Qt::RichText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(label);
    layout->addSpacing(12);
    return label;
}

const char *StateTextId(PluginState state)
{
    return state == PluginReady ? "IDS_GENERAL_PLUGIN_WORKS" : "IDS_GENERAL_PLUGIN_MISSING";
}

QString Lines(const QStringList &texts)
{
    return texts.join(QLatin1Char('\n')).toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<br>"));
}

} // namespace

GeneralPage::GeneralPage(DashboardLanguage *language, PluginHost *plugins)
    : m_language(language), m_plugins(plugins), m_languageLabel(nullptr), m_languageBox(nullptr),
      m_pluginsLabel(nullptr), m_pluginsText(nullptr), m_placesLabel(nullptr), m_placesText(nullptr)
{
}

QString GeneralPage::Title() const
{
    return DashboardText("IDS_GENERAL_TITLE");
}

bool GeneralPage::Show(QWidget *place)
{
    m_languageBefore = Change::GetLangName();
    m_page = new QWidget(place);
    m_page->setObjectName(QLatin1String("generalPage"));
    QVBoxLayout *layout = new QVBoxLayout(m_page);
    m_languageLabel = AddCaption("languageLabel", layout);
    m_languageBox = new QComboBox;
    m_languageBox->setObjectName(QLatin1String("languageBox"));
    const QStringList names = HostControl::LanguageNames();
    for (int i = 0; i < names.size(); ++i) {
        m_languageBox->addItem(DashboardLanguage::NativeName(names.at(i)), names.at(i));
    }
    m_languageBox->setCurrentIndex(names.indexOf(m_languageBefore));
    connect(m_languageBox, SIGNAL(currentIndexChanged(int)), this, SLOT(ChooseLanguage(int)));
    m_languageLabel->setBuddy(m_languageBox);
    layout->addWidget(m_languageBox);
    layout->addSpacing(12);
    m_pluginsLabel = AddCaption("pluginsLabel", layout);
    m_pluginsText = AddText("pluginsText", layout);
    m_placesLabel = AddCaption("placesLabel", layout);
    m_placesText = AddText("placesText", layout);
    layout->addStretch();

    QVBoxLayout *placeLayout = new QVBoxLayout(place);
    placeLayout->setContentsMargins(0, 0, 0, 0);
    placeLayout->addWidget(m_page);
    Retranslate();
    m_page->show();
    return true;
}

QString GeneralPage::ProblemText() const
{
    return QString();
}

void GeneralPage::Close(Answer answer)
{
    if (answer != Ok) {
        m_language->Switch(m_languageBefore);
    }
    delete m_page.data();
}

void GeneralPage::Retranslate()
{
    if (!m_page) {
        return;
    }
    m_languageLabel->setText(DashboardText("IDS_GENERAL_LANGUAGE"));
    m_pluginsLabel->setText(DashboardText("IDS_GENERAL_PLUGINS"));
    m_placesLabel->setText(DashboardText("IDS_GENERAL_PLACES"));

    QStringList lines;
    const QList<PluginHost::Plugin> plugins = m_plugins->Plugins();
    for (int i = 0; i < plugins.size(); ++i) {
        const PluginHost::Plugin &plugin = plugins.at(i);
        lines.append(DashboardText("IDS_LABEL")
                         .arg(DashboardText(plugin.known.titleId.toLatin1().constData()),
                              DashboardText(StateTextId(plugin.state))));
    }
    m_pluginsText->setText(Lines(lines));
    m_placesText->setText(
        Lines({DashboardText("IDS_GENERAL_USER_DATA").arg(UserData::Directory()),
               DashboardText("IDS_GENERAL_PLUGIN_LIBRARY").arg(CommonUtils::GetPluginLibraryPath()),
               DashboardText("IDS_GENERAL_VERSION").arg(QLatin1String(DASHBOARD_VERSION))}));
}

void GeneralPage::ChooseLanguage(int index)
{
    m_language->Switch(m_languageBox->itemData(index).toString());
}
