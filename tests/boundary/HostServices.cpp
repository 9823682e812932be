#include "HostServices.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QVBoxLayout>

/*
 * The host's services as the linker knows them. What a declaration does not need to give the right symbols is
 * left out: a result's type is no part of a name.
 */

class Q_DECL_EXPORT Startup
{
public:
    static void *GetPluginContainer();
};

class Q_DECL_EXPORT Change
{
public:
    static QString tr(const QString &id, const QString &context);
    static QString GetLangName();
};

class Q_DECL_EXPORT CommonUtils
{
public:
    static QString GetPluginLibraryPath();
    static void ElidedText(QLabel *label, QString text, Qt::TextElideMode mode);
    static int ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                           QString button1, QString button2, QString button3, bool modal,
                           Qt::WindowFlags flags, QDialog **dialog, QString detail, bool onTop);
};

enum enWidgetType { OrdinaryFrame = 1 };

class Q_DECL_EXPORT ExtendDialog : public QDialog
{
public:
    ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType type);
    ~ExtendDialog() override;
    void AddMainWidget(QWidget *body);
    void setWindowTitle(const QString &title);

    void *word;
};

class Q_DECL_EXPORT ExtendLineEdit : public QLineEdit
{
public:
    explicit ExtendLineEdit(QWidget *parent);
};

Q_DECL_EXPORT long ZELT_GetUserDataDirectory(unsigned short **path);

QString HostServices::userDataDirectory;
int HostServices::userDataQuestions = 0;
void *HostServices::container = nullptr;
int HostServices::containerQuestions = 0;
QStringList HostServices::texts;
QString HostServices::language;
int HostServices::languageQuestions = 0;
int HostServices::libraryPathQuestions = 0;
QStringList HostServices::elidedTexts;
QStringList HostServices::messages;
int HostServices::messageAnswer = 0;
QStringList HostServices::frames;
QStringList HostServices::titles;
int HostServices::bodies = 0;
int HostServices::framesGone = 0;
int HostServices::lineEdits = 0;

void HostServices::Reset(const QString &directory)
{
    userDataDirectory = directory + '/';
    userDataQuestions = 0;
    container = nullptr;
    containerQuestions = 0;
    texts.clear();
    language = "en";
    languageQuestions = 0;
    libraryPathQuestions = 0;
    elidedTexts.clear();
    messages.clear();
    messageAnswer = 0;
    frames.clear();
    titles.clear();
    bodies = 0;
    framesGone = 0;
    lineEdits = 0;
}

void *Startup::GetPluginContainer()
{
    ++HostServices::containerQuestions;
    return HostServices::container;
}

QString Change::tr(const QString &id, const QString &context)
{
    HostServices::texts.append(context + '/' + id);
    return HostServices::language + ':' + id;
}

QString Change::GetLangName()
{
    ++HostServices::languageQuestions;
    return HostServices::language;
}

QString CommonUtils::GetPluginLibraryPath()
{
    ++HostServices::libraryPathQuestions;
    return BUILD_DIRECTORY;
}

void CommonUtils::ElidedText(QLabel *label, QString text, Qt::TextElideMode mode)
{
    HostServices::elidedTexts.append(QString("%1, mode %2").arg(text).arg(static_cast<int>(mode)));
    label->setText(text);
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *, QString title, QString text, QString button1,
                             QString button2, QString button3, bool modal, Qt::WindowFlags flags,
                             QDialog **dialog, QString detail, bool onTop)
{
    QStringList arguments;
    arguments << QString::number(static_cast<int>(icon)) << title << text << button1 << button2 << button3
              << (modal ? "modal" : "not modal") << QString::number(static_cast<int>(flags), 16)
              << (dialog ? "dialog" : "no dialog") << (detail.isNull() ? "no detail" : detail)
              << (onTop ? "on top" : "not on top");
    HostServices::messages.append(arguments.join("|"));
    return HostServices::messageAnswer;
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType type)
    : QDialog(parent, flags), word(this)
{
    HostServices::frames.append(QString("type %1").arg(static_cast<int>(type)));
}

ExtendDialog::~ExtendDialog()
{
    // The frame's own field: whoever derives from it with another size in mind has written over it.
    if (word == this) {
        ++HostServices::framesGone;
    }
}

void ExtendDialog::AddMainWidget(QWidget *body)
{
    ++HostServices::bodies;
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(body);
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    HostServices::titles.append(title);
    QDialog::setWindowTitle(title);
}

ExtendLineEdit::ExtendLineEdit(QWidget *parent) : QLineEdit(parent)
{
    ++HostServices::lineEdits;
}

long ZELT_GetUserDataDirectory(unsigned short **path)
{
    ++HostServices::userDataQuestions;
    const QString &directory = HostServices::userDataDirectory;
    *path = new unsigned short[static_cast<std::size_t>(directory.size()) + 1];
    for (int i = 0; i < directory.size(); ++i) {
        (*path)[i] = directory.at(i).unicode();
    }
    (*path)[directory.size()] = 0;
    return 0;
}
