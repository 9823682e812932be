#include "DetailsDialog.h"

#include "FactList.h"
#include "ProfilePart.h"

#include <BidiText.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <ListEdit.h>
#include <OverviewText.h>
#include <TextButton.h>
#include <WrappedLabel.h>

#include <QHBoxLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace
{

const int dialogWidth = 520;
const int dialogHeight = 500;
const int smallestSide = 280;

QList<PriorityList> EntriesOf(const Overview &overview)
{
    QList<PriorityList> entries;
    for (const Overview::Entry &entry : overview.entries) {
        entries.append(entry.entry);
    }
    return entries;
}

} // namespace

DetailsDialog::DetailsDialog(const PriorityList &entry, QWidget *parent)
    : QDialog(parent), m_entry(entry), m_name(new WrappedLabel("detailsNameLabel")),
      m_facts(new FactList("detailsFacts")), m_closeButton(new TextButton("detailsCloseButton"))
{
    setObjectName(QLatin1String("detailsDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    QFont font = DialogParts::Scaled(m_name->font(), 1.2);
    font.setBold(true);
    m_name->setFont(font);
    m_name->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_closeButton->setDefault(true);
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::accept);

    QWidget *content = new QWidget;
    content->setObjectName(QLatin1String("detailsContent"));
    m_rows = new QVBoxLayout(content);
    m_rows->setSpacing(16);
    m_rows->addWidget(m_name);
    m_rows->addWidget(m_facts);
    m_rows->addStretch();
    QScrollArea *area = new QScrollArea;
    area->setObjectName(QLatin1String("detailsArea"));
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(content);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_closeButton);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(area, 1);
    layout->addLayout(buttons);
    setMinimumSize(DialogParts::ForFont(smallestSide), DialogParts::ForFont(smallestSide));
    resize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight));
    m_closeButton->setFocus();
}

void DetailsDialog::Show(const Overview &overview)
{
    FollowName(overview.connections.profiles);
    setWindowTitle(DashboardText("IDS_DETAILS_TITLE"));
    findChild<QScrollArea *>(QLatin1String("detailsArea"))->setAccessibleName(windowTitle());
    m_closeButton->setText(DashboardText("IDS_CLOSE"));
    m_name->setText(m_entry.name);
    m_name->setAlignment(DialogParts::Beginning(this));
    ShowPlace(overview);
    ShowProfiles(overview.connections.ProfilesOf(m_entry));
}

void DetailsDialog::FollowName(const QList<ConnectionProfile> &profiles)
{
    QString name;
    for (const ConnectionProfile &profile : profiles) {
        if (profile.type == m_entry.type && profile.name == m_entry.name) {
            return;
        }
        name = m_profiles.contains(profile.lastingId) ? profile.name : name;
    }
    m_entry.name = name.isEmpty() ? m_entry.name : name;
}

void DetailsDialog::ShowPlace(const Overview &overview)
{
    QList<PriorityList> entries = EntriesOf(overview);
    const int count = static_cast<int>(entries.size());
    const int place = ListEdit::PlaceOf(m_entry, entries);
    if (place >= 0) {
        const QString state = OverviewText::State(overview, overview.entries.at(place));
        const QString reason = OverviewText::Reason(overview, place);
        m_facts->Tell(
            "IDS_DETAILS_PLACE",
            DashboardText("IDS_DETAILS_PLACE_OF").arg(DashboardNumber(place + 1), DashboardNumber(count)));
        m_facts->Tell("IDS_DETAILS_STATE", reason.isEmpty() ? state : state + QLatin1Char('\n') + reason);
        return;
    }
    // Why it is used or not is what its place in the list would tell.
    entries.append(m_entry);
    const Overview withIt = Overview::Make(overview.status, entries, overview.connections);
    m_facts->Tell("IDS_DETAILS_PLACE",
                  overview.IsListWhole() ? DashboardText("IDS_DETAILS_NOT_LISTED") : QString());
    m_facts->Tell("IDS_DETAILS_STATE", OverviewText::State(withIt, withIt.entries.at(count)));
}

/** What can be pressed stays where it is: the connection manager's own order changes with what is pressed. */
void DetailsDialog::ShowProfiles(const QList<ConnectionProfile> &profiles)
{
    QList<ProfilePart *> parts;
    for (ProfilePart *part : std::as_const(m_parts)) {
        if (part->Show(profiles)) {
            parts.append(part);
        } else {
            delete part;
        }
    }
    m_profiles.clear();
    for (const ConnectionProfile &profile : profiles) {
        m_profiles.insert(profile.lastingId);
        const bool isNew = std::none_of(parts.constBegin(), parts.constEnd(), [&profile](ProfilePart *part) {
            return part->ProfileId() == profile.id;
        });
        if (isNew) {
            parts.append(new ProfilePart(profile.id));
            parts.constLast()->Show(profiles);
            m_rows->insertWidget(m_rows->count() - 1, parts.constLast());
        }
    }
    m_profiles.remove(QString());
    m_parts = parts;
    const QString count = DashboardNumber(m_parts.size());
    for (int i = 0; i < m_parts.size(); ++i) {
        const bool isAlone = m_parts.size() == 1;
        m_parts.at(i)->SetHeading(
            isAlone ? QString() : DashboardText("IDS_DETAILS_PROFILE").arg(DashboardNumber(i + 1), count));
    }
}
