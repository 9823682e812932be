#include "ProfilePart.h"

#include "FactList.h"

#include <BidiText.h>
#include <DashboardText.h>
#include <IConnectionPlugin.h>
#include <ListChangeText.h>
#include <OverviewText.h>
#include <PluginObjects.h>
#include <WrappedLabel.h>

#include <QCheckBox>
#include <QDateTime>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

QString DeviceText(const ConnectionProfile &profile, const ProfileDetails &details)
{
    if (!details.boundDevice.isEmpty()) {
        return DashboardText("IDS_DETAILS_ONLY_DEVICE").arg(InOwnDirection(details.boundDevice));
    }
    return profile.device.isEmpty()
               ? DashboardText("IDS_DETAILS_ANY_DEVICE")
               : DashboardText("IDS_DETAILS_DEVICE_NOW").arg(InOwnDirection(profile.device));
}

QString LastUsedText(const ConnectionProfile &profile)
{
    return profile.lastConnected == 0
               ? QString()
               : ListChangeText::Moment(QDateTime::fromSecsSinceEpoch(profile.lastConnected));
}

QString MeteredText(int metered)
{
    switch (metered) {
    case ProfileDetails::MeteredYes:
        return DashboardText("IDS_DETAILS_YES");
    case ProfileDetails::MeteredNo:
        return DashboardText("IDS_DETAILS_NO");
    case ProfileDetails::MeteredGuessedYes:
        return DashboardText("IDS_DETAILS_PROBABLY_YES");
    case ProfileDetails::MeteredGuessedNo:
        return DashboardText("IDS_DETAILS_PROBABLY_NO");
    default:
        return QString();
    }
}

QString UsersText(const ProfileDetails &details)
{
    if (!details.areUsersKnown) {
        return QString();
    }
    QStringList users;
    for (const QString &user : details.users) {
        users.append(InOwnDirection(user));
    }
    return users.isEmpty() ? DashboardText("IDS_DETAILS_ALL_USERS")
                           : QLocale(Change::GetLangName()).createSeparatedList(users);
}

} // namespace

ProfilePart::ProfilePart(const QString &profileId)
    : m_heading(new WrappedLabel("profileHeadingLabel")), m_facts(new FactList("profileFacts")),
      m_box(new QCheckBox), m_problem(new WrappedLabel("profileProblemLabel"))
{
    setObjectName(QLatin1String("profilePart"));
    m_profile.id = profileId;
    QFont font = m_heading->font();
    font.setBold(true);
    m_heading->setFont(font);
    m_box->setObjectName(QLatin1String("byItselfBox"));
    connect(m_box, &QCheckBox::clicked, this, &ProfilePart::Order);
    m_problem->hide();
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(m_heading);
    layout->addWidget(m_facts);
    layout->addWidget(m_box);
    layout->addWidget(m_problem);
}

bool ProfilePart::Show(const QList<ConnectionProfile> &profiles)
{
    const auto profile =
        std::find_if(profiles.constBegin(), profiles.constEnd(),
                     [this](const ConnectionProfile &one) { return one.id == m_profile.id; });
    if (profile == profiles.constEnd()) {
        return false;
    }
    m_profile = *profile;
    ProfileDetails details;
    if (IConnectionPlugin *plugin = PluginObjects::Connecting()) {
        plugin->GetProfileDetails(m_profile.id, &details);
    }
    Show(details);
    return true;
}

void ProfilePart::SetHeading(const QString &heading)
{
    m_heading->setText(heading);
    m_heading->setVisible(!heading.isEmpty());
}

void ProfilePart::Show(const ProfileDetails &details)
{
    m_facts->Tell("IDS_DETAILS_SECURITY", m_profile.security);
    m_facts->Tell("IDS_DETAILS_DEVICE", DeviceText(m_profile, details));
    m_facts->Tell("IDS_DETAILS_LAST_USED", LastUsedText(m_profile));
    m_facts->Tell("IDS_DETAILS_PRIORITY",
                  details.isPriorityKnown ? DashboardNumber(details.priority) : QString());
    m_facts->Tell("IDS_DETAILS_METERED", MeteredText(details.metered));
    m_facts->Tell("IDS_DETAILS_USERS", UsersText(details));
    QString problem;
    if (m_order.TakeEnd(&problem)) {
        m_problem->setText(problem);
        m_problem->setVisible(!problem.isEmpty());
    }
    ShowBox(details);
}

void ProfilePart::ShowBox(const ProfileDetails &details)
{
    const bool isAllowed = details.change != ProfileDetails::ChangeNotAllowed;
    m_box->setText(DashboardText("IDS_DETAILS_BY_ITSELF"));
    m_box->setChecked(m_profile.connectsByItself);
    m_box->setEnabled(isAllowed && PluginObjects::Ordering());
    m_box->setToolTip(isAllowed ? QString() : OverviewText::Failure(FailureNotAllowed));
    m_box->setAccessibleDescription(m_box->toolTip());
}

/** The box tells what is so, not what is wished. */
void ProfilePart::Order(bool isOn)
{
    m_box->setChecked(m_profile.connectsByItself);
    m_problem->hide();
    if (!m_order.IsOpen()) {
        m_order.Give(m_profile.name, m_profile.id, isOn);
    }
}
