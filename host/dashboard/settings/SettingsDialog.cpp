#include "SettingsDialog.h"

#include "PageKeys.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <TextButton.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace
{

// Plug-ins place the parts of their pages by pixels within this.
const int pageWidth = 420;
const int pageHeight = 374;

const int listWidth = 170;

} // namespace

SettingsDialog::SettingsDialog(QWidget *parent) : QDialog(parent)
{
    setObjectName(QLatin1String("settingsDialog"));
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    m_list = new QListWidget(this);
    m_list->setObjectName(QLatin1String("pageList"));
    m_list->setFixedWidth(DialogParts::ForFont(listWidth));
    m_list->setSpacing(2);
    m_list->setWordWrap(true);
    connect(m_list, SIGNAL(currentRowChanged(int)), this, SLOT(ShowPage(int)));

    m_stack = new QStackedWidget(this);
    m_stack->setObjectName(QLatin1String("pageArea"));
    m_stack->setFixedSize(DialogParts::ForFont(pageWidth), DialogParts::ForFont(pageHeight));

    m_keysHint = DialogParts::Label("keysHintLabel");
    m_keysHint->setFixedWidth(DialogParts::ForFont(listWidth));
    m_keysHint->hide();
    new PageKeys(this, m_stack);

    m_okButton = new TextButton("settingsOkButton");
    m_okButton->setDefault(true);
    connect(m_okButton, SIGNAL(clicked()), this, SLOT(accept()));
    m_cancelButton = new TextButton("settingsCancelButton");
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(reject()));

    QHBoxLayout *body = new QHBoxLayout;
    body->setSpacing(16);
    QVBoxLayout *column = new QVBoxLayout;
    column->addWidget(m_list, 1);
    column->addWidget(m_keysHint);
    body->addLayout(column);
    body->addWidget(m_stack, 1);
    m_buttons = new QHBoxLayout;
    m_buttons->addStretch();
    m_buttons->addWidget(m_okButton);
    m_buttons->addWidget(m_cancelButton);
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(body, 1);
    layout->addLayout(m_buttons);
    Retranslate();
}

SettingsDialog::~SettingsDialog()
{
    ClosePages(SettingsPage::NoAnswer);
}

void SettingsDialog::AddPage(SettingsPage *page)
{
    Place place;
    place.page = QSharedPointer<SettingsPage>(page);
    place.widget = new QWidget;
    place.widget->setObjectName(QString::fromLatin1("pagePlace%1").arg(m_places.size()));
    place.widget->setMinimumSize(pageWidth, pageHeight);
    m_stack->addWidget(place.widget);
    m_places.append(place);
    m_list->addItem(page->Title());
}

int SettingsDialog::CurrentRow() const
{
    const QTableWidget *list = m_stack->currentWidget()->findChild<QTableWidget *>();
    return list ? list->currentRow() : -1;
}

void SettingsDialog::SelectPage(int index)
{
    m_list->setCurrentRow(index);
}

void SettingsDialog::AddButtons(const QList<QWidget *> &buttons)
{
    for (int i = 0; i < buttons.size(); ++i) {
        m_buttons->insertWidget(i, buttons.at(i));
    }
}

void SettingsDialog::done(int result)
{
    ClosePages(result == Accepted ? SettingsPage::Ok : SettingsPage::Cancel);
    QDialog::done(result);
}

void SettingsDialog::Retranslate()
{
    setWindowTitle(DashboardText("IDS_SETTINGS_TITLE"));
    m_list->setAccessibleName(DashboardText("IDS_SETTINGS_TITLE"));
    m_keysHint->setText(DashboardText("IDS_SETTINGS_KEYS"));
    m_okButton->setText(DashboardText("IDS_OK"));
    m_cancelButton->setText(DashboardText("IDS_CANCEL"));
    for (int i = 0; i < m_places.size(); ++i) {
        const Place &place = m_places.at(i);
        m_list->item(i)->setText(place.page->Title());
        place.page->Retranslate();
        if (place.problem) {
            place.problem->setText(place.page->ProblemText());
        }
    }
}

void SettingsDialog::ShowPage(int index)
{
    if (index < 0 || index >= m_places.size()) {
        return;
    }
    Place &place = m_places[index];
    m_stack->setCurrentIndex(index);
    if (!place.isShown && !place.problem) {
        FillPlace(&place);
        PutButtonsLastInTabOrder();
    }
    m_keysHint->setVisible(place.widget->findChild<QTableWidget *>());
}

void SettingsDialog::FillPlace(Place *filled)
{
    Place &place = *filled;
    place.isShown = place.page->Show(place.widget);
    if (!place.isShown) {
        place.problem = new QLabel(place.page->ProblemText());
        place.problem->setObjectName(QLatin1String("pageProblem"));
        place.problem->setWordWrap(true);
        place.problem->setTextFormat(Qt::PlainText);
        place.problem->setTextInteractionFlags(Qt::TextSelectableByMouse);
        place.problem->setAlignment(Qt::AlignLeading | Qt::AlignTop);
        QVBoxLayout *layout = new QVBoxLayout(place.widget);
        layout->addWidget(place.problem);
        place.problem->show();
    }
}

void SettingsDialog::PutButtonsLastInTabOrder()
{
    // What a page brings comes in at the end.
    for (int i = 0; i < m_buttons->count(); ++i) {
        QWidget *button = m_buttons->itemAt(i)->widget();
        QWidget *last = previousInFocusChain();
        while (last->focusPolicy() == Qt::NoFocus) {
            last = last->previousInFocusChain();
        }
        if (button && button != last) {
            setTabOrder(last, button);
        }
    }
}

void SettingsDialog::ClosePages(SettingsPage::Answer answer)
{
    for (int i = 0; i < m_places.size(); ++i) {
        if (m_places.at(i).isShown) {
            m_places[i].isShown = false;
            m_places.at(i).page->Close(answer);
        }
    }
}
