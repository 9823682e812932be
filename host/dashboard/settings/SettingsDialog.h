#ifndef SETTINGSDIALOG_H
#define SETTINGSDIALOG_H

#include "SettingsPage.h"

#include <QDialog>
#include <QList>
#include <QSharedPointer>

class QHBoxLayout;
class QLabel;
class QListWidget;
class QPushButton;
class QStackedWidget;

/**
 * The settings: a list of pages and the page that is chosen. A page is put in its place when it is chosen for
 * the first time, and only pages that were shown hear of OK or Cancel: one that was not has nothing to store.
 */
class SettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SettingsDialog(QWidget *parent);

    /** Takes the pages out that are still shown. */
    ~SettingsDialog() override;

    /** Takes ownership of page. */
    void AddPage(SettingsPage *page);
    void SelectPage(int index);

    /** Puts further buttons beside OK and Cancel, at the other end of the row; takes ownership of them. */
    void AddButtons(const QList<QWidget *> &buttons);

    /** The current row of the list on the page that is shown; -1 when there is none. */
    int CurrentRow() const;

    /** Every way out of the dialog leads here; all but OK are Cancel. */
    void done(int result) override;

public slots:
    void Retranslate();

private slots:
    void ShowPage(int index);

private:
    struct Place {
        QSharedPointer<SettingsPage> page;
        QWidget *widget = nullptr;
        QLabel *problem = nullptr;
        bool isShown = false;
    };

    void FillPlace(Place *place);
    void PutButtonsLastInTabOrder();
    void ClosePages(SettingsPage::Answer answer);

    QList<Place> m_places;
    QListWidget *m_list;
    QStackedWidget *m_stack;
    QLabel *m_keysHint;
    QHBoxLayout *m_buttons;
    QPushButton *m_okButton;
    QPushButton *m_cancelButton;
};

#endif
