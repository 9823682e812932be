#ifndef DIALOGSCENE_H
#define DIALOGSCENE_H

#include <FakeWLAN.h>
#include <LoadedPlugin.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>

#include <QComboBox>
#include <QScopedPointer>
#include <QStringList>
#include <QWidget>

/** The loaded plug-in's page, shown in a window of a stand-in host that has a WLAN plug-in. */
class DialogScene
{
public:
    DialogScene();

    /** A fresh directory, host and WLAN plug-in; nothing is shown yet. */
    void Begin();
    void ShowPage();
    /** Shows the page and opens a dialog of it: "addButton", "newButton". */
    void Open(const char *button);
    void End();

    /** Entries as "name" for Wi-Fi or "name/type". */
    void Store(const QStringList &entries);
    /** The file's entries in the same form. */
    QStringList Stored();
    QByteArray File() const { return directory->Read("Priority.xml"); }

    /** The resource folder from now on: the build's icons and this configuration; null is no such file. */
    void UseConfiguration(const QByteArray &xml);

    void AddNetwork(const QString &name);
    void SetMethods(const QStringList &methods);

    template <typename Widget> Widget *Find(const char *name)
    {
        return window->findChild<Widget *>(QLatin1String(name));
    }
    QWidget *Page() { return Find<QWidget>("priorityPage"); }
    QComboBox *Box(const char *name) { return Find<QComboBox>(name); }
    void Click(const char *button);
    bool IsOpen(const char *dialog) { return Find<QWidget>(dialog) && Find<QWidget>(dialog)->isVisible(); }
    QStringList MessageTexts() const;

    /** Closes a dialog by "OK", "Cancel", "title bar" or "Escape". */
    void CloseDialog(const char *dialog, const QString &way);

    LoadedPlugin plugin;
    QScopedPointer<TemporaryDirectory> directory;
    QScopedPointer<QWidget> window;
    FakeWLAN wlan;
    FakeContainer container;

private:
    Q_DISABLE_COPY(DialogScene)
};

/** Splits at blanks; an empty text has no words. */
QStringList Words(const QString &text);

QStringList Items(const QComboBox *box);

WLANProfile Profile(const QString &authentication, const QString &encryption, const QString &keyIndex,
                    const QString &keyMaterial);

#endif
