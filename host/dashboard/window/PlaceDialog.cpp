#include "PlaceDialog.h"

#include <Change.h>
#include <DashboardText.h>
#include <DialogParts.h>
#include <ListKeeper.h>
#include <OverviewText.h>
#include <TextButton.h>
#include <WrappedLabel.h>

#include <QLocale>
#include <QSpinBox>
#include <QVBoxLayout>

namespace
{

const int dialogWidth = 400;

} // namespace

PlaceDialog::PlaceDialog(const QList<ListedEntry> &entries, ListKeeper *keeper, QWidget *parent)
    : QDialog(parent), m_entries(entries), m_keeper(keeper), m_question(new WrappedLabel("placeLabel")),
      m_place(new QSpinBox), m_moveButton(new TextButton("placeMoveButton")),
      m_cancelButton(new TextButton("placeCancelButton"))
{
    setObjectName(QLatin1String("placeDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);
    m_place->setObjectName(QLatin1String("placeBox"));
    connect(m_moveButton, &QPushButton::clicked, this, &PlaceDialog::Choose);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(m_question);
    layout->addWidget(m_place);
    layout->addWidget(DialogParts::ButtonBar("placeButtons", m_moveButton, m_cancelButton));
    m_moveButton->setDefault(true);
    connect(m_keeper, &ListKeeper::Changed, this, &PlaceDialog::Follow);
    Retranslate();
    m_place->setValue(ListEdit::PlacesOf(m_entries, m_keeper->Entries()).value(0) + 1);
    m_place->selectAll();
    m_place->setFocus();
}

void PlaceDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_PLACE_WINDOW"));
    m_place->setLocale(QLocale(Change::GetLangName()));
    m_place->setAlignment(DialogParts::Beginning(this));
    m_moveButton->setText(DashboardText("IDS_PLACE_MOVE"));
    m_cancelButton->setText(DashboardText("IDS_CANCEL"));
    Follow();
}

void PlaceDialog::Follow()
{
    const QList<PriorityList> list = m_keeper->Entries();
    const auto others = list.size() - ListEdit::PlacesOf(m_entries, list).size();
    const int last = static_cast<int>(others) + 1;
    m_place->setRange(1, last);
    m_question->setText(
        m_entries.size() == 1
            ? DashboardText("IDS_PLACE_OF_ONE")
                  .arg(OverviewText::Name(m_entries.first().entry.name), DashboardNumber(last))
            : DashboardText("IDS_PLACE_OF_SEVERAL")
                  .arg(DashboardNumber(m_entries.size()), DashboardNumber(last)));
    m_place->setAccessibleName(m_question->text());
    const int width = DialogParts::ForFont(dialogWidth);
    setFixedSize(width, layout()->totalHeightForWidth(width));
}

void PlaceDialog::Choose()
{
    const int place = m_place->value() - 1;
    accept();
    emit Chosen(place);
}
