#ifndef TOUR_H
#define TOUR_H

#include "TourDirectory.h"

#include <PriorityList.h>

#include <QList>
#include <QObject>
#include <QStringList>

class QWidget;

/**
 * Shows the program to itself: works with a list of its own through clicks and keys, takes a picture after
 * each step, and checks that the step had its effect on the file and in the windows. What happens is printed;
 * the application ends with 0 when every step had its effect, with 1 otherwise, and with 3 when the tour
 * hangs.
 */
class Tour : public QObject
{
    Q_OBJECT

public:
    /** @param window  not owned, shown. @param directory  prepared. */
    Tour(QWidget *window, const TourDirectory &directory);

    /** Begins once the application's event loop runs. */
    void Start();

signals:
    /** A picture was taken, and what is on it can still be seen. name has no number and no ending. */
    void PictureTaken(const QString &name);

private slots:
    void Act();
    void Check();
    void AnswerQuestion();

private:
    struct Step {
        /** Part of the picture's file name. */
        const char *name;
        /** What happens, for the reader of the output. */
        const char *what;
        void (Tour::*act)();
        /** What must be so afterwards besides that file and windows show the expected list; may be null. */
        void (Tour::*check)();
    };

    static const Step steps[];
    static const int stepCount;

    // What the steps are made of. What fails is kept for the step's report.
    void Fail(const QString &problem);
    void FailIf(const QString &problem);
    void Expect(bool condition, const char *rule);
    QWidget *Find(const char *name);
    template <class Widget> Widget *FindOf(const char *name);
    void Click(const char *name);
    void ClickRow(const PriorityList &entry);
    void PressInList(int key);
    void Choose(const char *menu, const char *action);
    void EnterFile(const char *dialog, const QString &path);
    void ClickAndAnswer(const char *name, const char *answer, const char *textId);
    void Tick(const PriorityList &entry);
    void Fill(const char *name, const QString &text);
    void ChooseItem(const char *name, int item);
    void SelectPage(int row);
    void EnterNew(const QString &name);
    void EnterKeys(const char *key, const char *confirmation);
    int PlaceOf(const PriorityList &entry) const;
    void MoveExpected(int from, int to);
    void ExpectButtons(bool up, bool down, bool remove);
    void ExpectSelected(int row);
    void ExpectUndoAndRedo(bool undo, bool redo);
    void SwapWithListBefore();
    void ExpectLanguage(const QString &language, const char *button, const QString &text);
    void ExpectListEverywhere();
    QString WrongAboutList() const;
    QString WrongAboutHeadline() const;
    QString OrderPath() const;

    void ActStart();
    void CheckStart();
    void ActSeed();
    void ActOpen();
    void CheckOpen();
    void ActSelect();
    void CheckSelect();
    void ActDownButton();
    void CheckMovedDown();
    void ActUpButton();
    void CheckMovedUp();
    void ActDownKey();
    void ActUpKey();
    void ActDeleteCancel();
    void CheckNothingSelected();
    void ActDeleteOk();
    void ActSettingsUndo();
    void ActSettingsRedo();
    void CheckUndone();
    void CheckNothingToRedo();
    void ActAddDialog();
    void CheckAddDialog();
    void ActAddElsewhere();
    void CheckAddElsewhere();
    void ActAddOk();
    void CheckAdded();
    void ActNewDialog();
    void CheckNewDialog();
    void ActNewShortKey();
    void ActNewDifferentKeys();
    void CheckNewRefused();
    void ActNewOk();
    void CheckNew();
    void ActNewRepeated();
    void CheckNewStillOpen();
    void ActNewCancel();
    void CheckNewClosed();
    void ActReadOnly();
    void CheckReadOnly();
    void ActForeignTop();
    void ActArabic();
    void CheckArabic();
    void ActBack();
    void CheckBack();
    void ActConfirm();
    void CheckClosed();
    void ActReopen();
    void ActDismiss();
    void ActConnectDialog();
    void CheckConnectDialog();
    void ActConnectOk();
    void CheckConnected();
    void ActUndo();
    void ActRedo();
    void ActRestoreDialog();
    void CheckRestoreDialog();
    void ActRestoreOk();
    void ActExport();
    void CheckExported();
    void ActImportDialog();
    void CheckImportDialog();
    void ActImportOk();
    void CheckImported();
    void ActWindowArabic();
    void CheckWindowArabic();
    void ActWindowBack();
    void CheckWindowBack();

    void Report();
    void SavePicture(const QString &name);
    void Finish();

    QWidget *const m_window;
    TourDirectory m_directory;
    int m_step;
    int m_failedSteps;
    int m_checksLeft;
    QStringList m_failures;
    QList<PriorityList> m_expected;
    /** As the list was before the last change that is undone later. */
    QList<PriorityList> m_listBefore;
    QList<PriorityList> m_notListed;
    PriorityList m_new;
    PriorityList m_selected;
    QString m_languageBefore;
    QString m_answer;
    QString m_question;
    int m_answerTriesLeft;
};

#endif
