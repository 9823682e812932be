#ifndef TOUR_H
#define TOUR_H

#include "TourDirectory.h"

#include <PriorityList.h>

#include <QList>
#include <QObject>
#include <QStringList>

#include <functional>

class QWidget;

/**
 * Shows the dashboard to itself: works with a list of its own through clicks and keys, takes a picture after
 * each step, and checks that the step had its effect on the file and in the windows. What happens is printed.
 */
class Tour : public QObject
{
    Q_OBJECT

public:
    /** The process ends with this when the tour hangs. */
    static const int exitHung = 3;

    /** @param window  not owned, shown. @param directory  prepared. */
    Tour(QWidget *window, const TourDirectory &directory);

    /** Takes the tour. False: a step had not its effect. */
    bool Run();

signals:
    /** A picture was taken, and what is on it can still be seen. name has no number and no ending. */
    void PictureTaken(const QString &name);

private:
    typedef std::function<void()> Deed;

    // The tour, one part after the other.
    void Begin();
    void Seed();
    void MoveEntries();
    void DeleteEntries();
    void AddEntries();
    void CreateNetwork();
    void RefuseRepeatedNetwork();
    void FollowOthers();
    void SwitchLanguage();
    void CloseAndReopenSettings();
    void Connect();
    void Restore();
    void ExportAndImport();
    void SwitchLanguageByMenu();

    /**
     * One step. What fails is told with it.
     *
     * @param name  part of the picture's file name.
     * @param what  what happens, for the reader of the output.
     * @param check  what must be so afterwards besides that file and windows show the expected list.
     */
    void Step(const char *name, const char *what, const Deed &act, const Deed &check = Deed());
    void Report(const char *what);
    void SavePicture(const QString &name);

    // What the steps are made of. What fails is kept for the step's report.
    void Fail(const QString &problem);
    void FailIf(const QString &problem);
    void Expect(bool condition, const char *rule);
    QWidget *Find(const char *name) { return FindOf<QWidget>(name); }
    template <class Widget> Widget *FindOf(const char *name);
    void Click(const char *name);
    void ClickRow(const PriorityList &entry);
    void Press(int key, const char *name);
    void Choose(const char *menu, const char *action);
    void EnterFile(const char *dialog, const QString &path);
    void ClickAndAnswer(const char *name, const char *answer, const char *textId);
    void AnswerQuestion(const QString &answer, const QString &expected);
    void Tick(const PriorityList &entry);
    void Fill(const char *name, const QString &text);
    void ChooseItem(const char *name, int item);
    void ChooseLanguage(const QString &language);
    void SelectPage(int row);
    void EnterNew(const QString &name, const char *key, const char *confirmation);
    int PlaceOf(const PriorityList &entry) const;
    void MoveExpected(int from, int to);
    void SwapWithListBefore();

    void ExpectOpen(const char *name, bool isOpen);
    void ExpectButtons(bool up, bool down, bool remove);
    void ExpectSelected(int row);
    void ExpectUndoAndRedo(bool undo, bool redo);
    void ExpectNames(const char *what, const QStringList &found, const QStringList &expected);
    void ExpectLanguage(const QString &language, const char *button, const QString &text);
    void ExpectListEverywhere();
    void ExpectHeadline();
    void ExpectNewNetworkRemembered();
    void ExpectExport();

    QString OrderPath() const;

    QWidget *const m_window;
    TourDirectory m_directory;
    int m_steps = 0;
    int m_failedSteps = 0;
    QString m_stepName;
    QStringList m_failures;
    QList<PriorityList> m_expected;
    /** As the list was before the last change that is undone later. */
    QList<PriorityList> m_listBefore;
    QList<PriorityList> m_notListed;
    PriorityList m_new;
    /** What was switched to; empty until something was. */
    QString m_inUse;
    PriorityList m_selected;
    QString m_languageBefore;
    int m_answerTriesLeft = 0;
};

#endif
