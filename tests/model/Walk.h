#ifndef WALK_H
#define WALK_H

#include "ListModel.h"
#include "RandomSource.h"

#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QPointer>
#include <QScopedPointer>
#include <QSignalSpy>
#include <QWidget>

#include <deque>

class QPushButton;
class QTableWidget;

/**
 * A random walk through everything that can happen to the list. Each step is done to the real library and to
 * the model, and afterwards the two are compared.
 */
class Walk : public MessageVisitor
{
public:
    explicit Walk(std::uint64_t seed);
    ~Walk() override;

    /** One step; false when product and model differ after it. */
    bool Step();
    /** The host's OnDestroy at the end; false when something still answers. */
    bool End();

    /** What differs, and the last steps that led to it. */
    QString Report() const;

    /** The kinds of steps there are, and which of them the last step was. */
    static int KindCount();
    static const char *KindName(int kind);
    int LastKind() const { return m_kind; }

private:
    Q_DISABLE_COPY(Walk)

    typedef void (Walk::*Action)();
    struct Kind {
        const char *name;
        /** How often it is taken without and with a dialog open. */
        int weight;
        int weightInDialog;
        Action action;
    };
    static const Kind kinds[];

    void ClickRow();
    void ClickEmptySpace();
    void ClickUp();
    void ClickDown();
    void PressUp();
    void PressDown();
    void PressOtherKey();
    void DeleteConfirmed();
    void DeleteCancelled();
    void OpenAdd();
    void OpenNew();
    void ConfirmDialog();
    void CancelDialog();
    void CloseDialog();
    void ServiceAddTop();
    void ServiceAddList();
    void ServiceRead();
    void OtherProgramWrites();
    void OtherProgramWritesAsWeDo();
    void OtherProgramDeletes();
    void OtherProgramTruncates();
    void OtherProgramWritesGarbage();
    void FileAccessTaken();
    void DirectoryInPlaceOfFile();
    void DirectoryWriteTaken();
    void DirectoryMovedAway();
    void ChangeLanguage();
    void ShowSettings();
    void ShowSettingsWithoutParent();
    void HideSettings();
    void ConfirmSettings();
    void CancelSettings();
    void DeleteHostDialog();
    void WlanChanges();
    void WlanGoes();

    void MessageIsOpen() override;

    static int KindOf(Action action);
    int ChooseKind();
    void Delete(bool confirmed);
    void Click(const char *button);
    QPushButton *Button(const char *name) const;
    QTableWidget *Table() const;
    QWidget *Dialog() const;
    void Press(int key);
    Model::Entry AnyEntry();
    Model::Entries AnyEntries(int most);
    Model::Document AnyForeignDocument();
    void RepairDisk();
    void PutFile(const Model::Document &document);
    void RemoveWhatIsThere();
    void Note(const QString &detail);

    QString Difference();
    QString FileDifference();
    QString TableDifference();
    QString RowDifference(int row);
    QString StateDifference();
    QString DialogDifference();

    RandomSource m_random;
    Model::ListModel m_model;
    TemporaryDirectory m_directory;
    QString m_path;
    LoadedPlugin m_plugin;
    FakeWLAN m_wlan;
    FakeContainer m_container;
    QScopedPointer<QWidget> m_window;
    QPointer<QWidget> m_page;
    IPriorityPlugin *m_priority;
    ISettingUIPlugin *m_setting;
    QScopedPointer<QSignalSpy> m_signals;
    bool m_isShown;
    bool m_wasAsked;
    int m_kind;
    int m_step;
    std::deque<QString> m_lastSteps;
    QString m_difference;
};

#endif
