#include "StandInHost.h"

#include <Change.h>
#include <CommonUtils.h>
#include <ExtendDialog.h>
#include <ExtendLineEdit.h>
#include <Startup.h>
#include <ZeltSdk.h>

#include <QFontMetrics>
#include <QLabel>
#include <QVBoxLayout>

QString StandInHost::userDataDirectory;
long StandInHost::userDataStatus = 0;
bool StandInHost::userDataAllocated = true;
QString StandInHost::libraryPath;
QString StandInHost::language;
IPluginContainer *StandInHost::container = nullptr;
QList<MessageCall> StandInHost::messages;
int StandInHost::messageAnswer = QMessageBox::Ok;
MessageVisitor *StandInHost::messageVisitor = nullptr;
QList<QString> StandInHost::elidedTexts;
QList<int> StandInHost::elideModes;

void StandInHost::Reset(const QString &directory)
{
    userDataDirectory = directory + QLatin1Char('/');
    userDataStatus = 0;
    userDataAllocated = true;
    libraryPath = QLatin1String(BUILD_DIRECTORY);
    language = QLatin1String("en");
    container = nullptr;
    messages.clear();
    messageAnswer = QMessageBox::Ok;
    messageVisitor = nullptr;
    elidedTexts.clear();
    elideModes.clear();
}

QObject *FakeContainer::GetPluginObject(const QString &classId, int interfaceNumber)
{
    const QPair<QString, int> key(classId, interfaceNumber);
    lookUps.append(key);
    return objects.value(key);
}

IPluginContainer *Startup::GetPluginContainer()
{
    return StandInHost::container;
}

QString Change::tr(const QString &id, const QString &context)
{
    return context == QLatin1String("PriorityPlugin") ? StandInHost::language + QLatin1Char(':') + id
                                                      : context + QLatin1Char('?') + id;
}

QString Change::GetLangName()
{
    return StandInHost::language;
}

QString CommonUtils::GetPluginLibraryPath()
{
    return StandInHost::libraryPath;
}

void CommonUtils::ElidedText(QLabel *label, QString text, Qt::TextElideMode mode)
{
    StandInHost::elidedTexts.append(text);
    StandInHost::elideModes.append(mode);
    label->setText(QFontMetrics(label->font()).elidedText(text, mode, label->width()));
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                             QString button1, QString button2, QString button3, bool modal,
                             Qt::WindowFlags flags, QDialog **dialog, QString detail, bool onTop)
{
    const MessageCall call = {icon,    parent, title, text,   button1, button2,
                              button3, modal,  flags, dialog, detail,  onTop};
    StandInHost::messages.append(call);
    if (StandInHost::messageVisitor) {
        StandInHost::messageVisitor->MessageIsOpen();
    }
    return StandInHost::messageAnswer;
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType)
    : QDialog(parent, flags), m_titleLabel(nullptr)
{
}

ExtendDialog::~ExtendDialog() {}

void ExtendDialog::AddMainWidget(QWidget *body)
{
    QVBoxLayout *layout = new QVBoxLayout(this);
    layout->addWidget(body);
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    QDialog::setWindowTitle(title);
}

ExtendLineEdit::ExtendLineEdit(QWidget *parent) : QLineEdit(parent) {}

long ZELT_GetUserDataDirectory(unsigned short **path)
{
    if (StandInHost::userDataAllocated) {
        const QString &directory = StandInHost::userDataDirectory;
        *path = new unsigned short[directory.size() + 1];
        for (int i = 0; i < directory.size(); ++i) {
            (*path)[i] = directory.at(i).unicode();
        }
        (*path)[directory.size()] = 0;
    }
    return StandInHost::userDataStatus;
}
