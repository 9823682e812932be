#include "GeneralPage.h"

#include <Change.h>
#include <CommonUtils.h>
#include <DashboardLanguage.h>
#include <DashboardText.h>
#include <HostControl.h>
#include <PluginHost.h>
#include <PluginObjects.h>
#include <UserData.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
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
      m_newLabel(nullptr), m_newBox(nullptr), m_rulingBox(nullptr), m_pluginsLabel(nullptr),
      m_pluginsText(nullptr), m_placesLabel(nullptr), m_placesText(nullptr)
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
    m_newLabel = AddCaption("newNetworksLabel", layout);
    m_newBox = new QComboBox;
    m_newBox->setObjectName(QLatin1String("newNetworksBox"));
    m_newBefore = ListRules::PlaceOfNewNetworks();
    m_newLabel->setBuddy(m_newBox);
    connect(m_newBox, QOverload<int>::of(&QComboBox::activated), this, &GeneralPage::ChooseNewNetworks);
    layout->addWidget(m_newBox);
    m_rulingBox = new QCheckBox;
    m_rulingBox->setObjectName(QLatin1String("rulingBox"));
    m_wasRuling = ListRules::IsRuling();
    m_rulingBox->setChecked(m_wasRuling);
    // Practice networks are not ruled.
    m_rulingBox->setVisible(PluginObjects::Ordering());
    connect(m_rulingBox, &QCheckBox::clicked, this, &GeneralPage::ChooseRuling);
    layout->addWidget(m_rulingBox);
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
        if (ListRules::PlaceOfNewNetworks() != m_newBefore) {
            ListRules::SetPlaceOfNewNetworks(m_newBefore);
        }
        if (ListRules::IsRuling() != m_wasRuling) {
            ListRules::SetRuling(m_wasRuling);
        }
    }
    delete m_page.data();
}

void GeneralPage::Retranslate()
{
    if (!m_page) {
        return;
    }
    m_languageLabel->setText(DashboardText("IDS_GENERAL_LANGUAGE"));
    m_newLabel->setText(DashboardText("IDS_GENERAL_NEW"));
    {
        const QSignalBlocker blocker(m_newBox);
        m_newBox->clear();
        // In the order of ListRules::NewNetworks.
        for (const char *id : {"IDS_NEW_AT_END", "IDS_NEW_AT_TOP", "IDS_NEW_NOT_LISTED"}) {
            m_newBox->addItem(DashboardText(id));
        }
        m_newBox->setCurrentIndex(ListRules::PlaceOfNewNetworks());
    }
    m_rulingBox->setText(DashboardText("IDS_GENERAL_RULING"));
    m_rulingBox->setToolTip(DashboardText("IDS_GENERAL_RULING_HINT"));
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

void GeneralPage::ChooseNewNetworks(int index)
{
    if (!ListRules::SetPlaceOfNewNetworks(ListRules::NewNetworks(index))) {
        qWarning("the place of new networks can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_newBox->setCurrentIndex(ListRules::PlaceOfNewNetworks());
    }
}

void GeneralPage::ChooseRuling(bool isRuling)
{
    if (!ListRules::SetRuling(isRuling)) {
        qWarning("whether the list rules can't be kept in %s",
                 UserData::Directory().toLocal8Bit().constData());
        m_rulingBox->setChecked(!isRuling);
    }
}
