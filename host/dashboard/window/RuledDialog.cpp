#include "RuledDialog.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <ElidedLabel.h>
#include <ListChangeText.h>
#include <TextButton.h>
#include <WrappedLabel.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace
{

const int dialogWidth = 560;
const int dialogHeight = 420;
const int smallestSide = 280;

const char *ButtonId(PlaceWithoutEffect::Remedy remedy)
{
    switch (remedy) {
    case PlaceWithoutEffect::TurnOn:
        return "IDS_RULED_TURN_ON";
    case PlaceWithoutEffect::Connect:
        return "IDS_RULED_CONNECT";
    default:
        return nullptr;
    }
}

} // namespace

RuledDialog::RuledDialog(QWidget *parent)
    : QDialog(parent), m_text(new WrappedLabel("ruledTextLabel")), m_area(new QScrollArea),
      m_problem(new WrappedLabel("ruledProblemLabel")), m_closeButton(new TextButton("ruledCloseButton"))
{
    setObjectName(QLatin1String("ruledDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_area->setObjectName(QLatin1String("ruledArea"));
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_problem->hide();
    m_closeButton->setDefault(true);
    connect(m_closeButton, &QPushButton::clicked, this, &QDialog::accept);

    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_closeButton);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_text);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_problem);
    layout->addLayout(buttons);
    setMinimumSize(DialogParts::ForFont(smallestSide), DialogParts::ForFont(smallestSide));
    resize(DialogParts::ForFont(dialogWidth), DialogParts::ForFont(dialogHeight));
    Retranslate();
}

void RuledDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_RULED_TITLE"));
    m_text->setText(DashboardText("IDS_RULED_TEXT"));
    m_area->setAccessibleName(windowTitle());
    m_closeButton->setText(DashboardText("IDS_CLOSE"));
    m_problem->hide();
}

void RuledDialog::Show(const QList<PlaceWithoutEffect> &places, bool isForThisWindow)
{
    QList<Row> rows;
    for (const PlaceWithoutEffect &place : places) {
        const char *const id = ButtonId(place.remedy);
        rows.append(
            {ListChangeText::Name(place.entry), place.reason, id ? DashboardText(id) : QString(), place});
    }
    if (places.isEmpty()) {
        rows.append({QString(), DashboardText("IDS_RULED_ALL"), QString(), PlaceWithoutEffect()});
    }
    if (isForThisWindow) {
        rows.append({QString(), DashboardText("IDS_RULED_WINDOW"), DashboardText("IDS_BUTTON_SETTINGS"),
                     PlaceWithoutEffect()});
    }
    QString shown;
    for (const Row &row : std::as_const(rows)) {
        shown += row.title + QLatin1Char('\n') + row.reason + QLatin1Char('\n') + row.button +
                 row.place.profileId + QLatin1Char('\n');
    }
    QString problem;
    if (m_order.TakeEnd(&problem)) {
        m_problem->setText(problem);
        m_problem->setVisible(!problem.isEmpty());
    }
    // A button that has the focus keeps it while nothing has changed.
    if (shown == m_shown) {
        return;
    }
    m_shown = shown;
    QWidget *content = new QWidget;
    content->setObjectName(QLatin1String("ruledRows"));
    QVBoxLayout *layout = new QVBoxLayout(content);
    layout->setSpacing(16);
    for (const Row &row : std::as_const(rows)) {
        layout->addWidget(CreateRow(row));
    }
    layout->addStretch();
    m_area->setWidget(content);
}

QWidget *RuledDialog::CreateRow(const Row &row)
{
    QVBoxLayout *texts = new QVBoxLayout;
    texts->setSpacing(2);
    if (!row.title.isEmpty()) {
        ElidedLabel *title = new ElidedLabel("ruledTitleLabel");
        QFont font = title->font();
        font.setBold(true);
        title->setFont(font);
        title->setAlignment(DialogParts::Beginning(this));
        title->SetFullText(row.title);
        texts->addWidget(title);
    }
    QLabel *reason = new WrappedLabel("ruledReasonLabel");
    reason->setText(row.reason);
    texts->addWidget(reason);
    QWidget *line = new QWidget;
    line->setObjectName(QLatin1String("ruledRow"));
    QHBoxLayout *layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    layout->addLayout(texts, 1);
    if (!row.button.isEmpty()) {
        QPushButton *button = new TextButton("ruledRowButton");
        button->setText(row.button);
        button->setAutoDefault(false);
        button->setAccessibleDescription(row.title.isEmpty() ? row.reason : row.title);
        // What it does may take the rows away, and the button with them.
        connect(
            button, &QPushButton::clicked, this, [this, place = row.place] { Help(place); },
            Qt::QueuedConnection);
        layout->addWidget(button, 0, Qt::AlignTop);
    }
    return line;
}

void RuledDialog::Help(const PlaceWithoutEffect &place)
{
    m_problem->hide();
    if (place.remedy == PlaceWithoutEffect::Connect) {
        emit ConnectWanted(place.entry.name, place.profileId);
    } else if (place.remedy == PlaceWithoutEffect::NoRemedy) {
        emit SettingsWanted();
    } else {
        m_order.Give(place.entry.name, place.profileId, true);
    }
}
