#include <Change.h>
#include <CommonUtils.h>
#include <ExtendDialog.h>
#include <ExtendLineEdit.h>
#include <Startup.h>

#include <QLabel>
#include <QVBoxLayout>

IPluginContainer *theContainer = nullptr;
IPluginContainer *Startup::GetPluginContainer() { return theContainer; }

// A host has a text for every id in every language; here the last word of the id has to do.
QString Change::tr(const QString &id, const QString &) { return id.section(QLatin1Char('_'), -1); }
QString Change::GetLangName() { return QLatin1String("en"); }

QString CommonUtils::GetPluginLibraryPath() { return QString::fromUtf8(LIBRARY_PATH); }

void CommonUtils::ElidedText(QLabel *label, QString text, Qt::TextElideMode mode)
{
    label->setText(label->fontMetrics().elidedText(text, mode, label->width()));
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text, QString,
                             QString button2, QString, bool, Qt::WindowFlags, QDialog **, QString, bool)
{
    const QMessageBox::StandardButtons cancel = button2.isEmpty() ? QMessageBox::NoButton : QMessageBox::Cancel;
    QMessageBox box(icon, title, text, QMessageBox::Ok | cancel, parent);
    return box.exec();
}

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType)
    : QDialog(parent, flags), m_titleLabel(nullptr)
{
}
ExtendDialog::~ExtendDialog() {}
void ExtendDialog::AddMainWidget(QWidget *body) { (new QVBoxLayout(this))->addWidget(body); }
void ExtendDialog::setWindowTitle(const QString &title) { QDialog::setWindowTitle(title); }

ExtendLineEdit::ExtendLineEdit(QWidget *parent) : QLineEdit(parent) {}
