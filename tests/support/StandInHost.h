#ifndef STANDINHOST_H
#define STANDINHOST_H

#include <IPluginContainer.h>

#include <QHash>
#include <QList>
#include <QMessageBox>
#include <QPair>
#include <QString>

class QDialog;

/** One call of CommonUtils::ShowMessage with its arguments as they came. */
struct MessageCall {
    QMessageBox::Icon icon;
    QWidget *parent;
    QString title;
    QString text;
    QString button1;
    QString button2;
    QString button3;
    bool modal;
    Qt::WindowFlags flags;
    QDialog **dialog;
    QString detail;
    bool onTop;
};

/** Called while the stand-in's message box would be open. */
class MessageVisitor
{
public:
    virtual ~MessageVisitor() {}
    virtual void MessageIsOpen() = 0;
};

/**
 * The host services as the test program defines them itself. Change::tr answers "<language>:<id>", and
 * "<context>?<id>" for any context but the plug-in's, so that texts show which language and context they were
 * asked in.
 */
class StandInHost
{
public:
    /** Back to: no container, language "en", the build's plug-in library path, directory known, answers OK.
     */
    static void Reset(const QString &userDataDirectory);

    static QString userDataDirectory;
    static long userDataStatus;
    /** Whether a path is handed out even with a status other than 0. */
    static bool userDataAllocated;

    static QString libraryPath;
    static QString language;
    static IPluginContainer *container;

    static QList<MessageCall> messages;
    static int messageAnswer;
    static MessageVisitor *messageVisitor;

    static QList<QString> elidedTexts;
    static QList<int> elideModes;
};

/** A container of plain objects, by class id and interface number. */
class FakeContainer : public IPluginContainer
{
public:
    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override;

    QHash<QPair<QString, int>, QObject *> objects;
    QList<QPair<QString, int>> lookUps;
};

#endif
