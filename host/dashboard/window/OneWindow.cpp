#include "OneWindow.h"

#include <QApplication>
#include <QWidget>

#ifdef HAS_KDBUSADDONS
#include <KDBusService>

#include <QCryptographicHash>

OneWindow::OneWindow(const QString &key)
{
    const QString name = QCoreApplication::applicationName();
    // The service takes its name from these two, and a part of such a name begins with a letter.
    const QByteArray hash = QCryptographicHash::hash(key.toUtf8(), QCryptographicHash::Sha256).toHex();
    QCoreApplication::setOrganizationDomain(QLatin1String("netquillforge.torvik.com"));
    QCoreApplication::setApplicationName(QLatin1String("PriorityDashboard.of_") +
                                         QString::fromLatin1(hash.left(16)));
    const auto *service = new KDBusService(KDBusService::Unique | KDBusService::NoExitOnFailure, this);
    QCoreApplication::setApplicationName(name);
    connect(service, &KDBusService::activateRequested, this,
            [this](const QStringList &arguments) { emit StartedAgain(arguments.mid(1)); });
}
#else
OneWindow::OneWindow(const QString &) {}
#endif

void OneWindow::Raise(QWidget *window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    QWidget *const dialog = QApplication::activeModalWidget();
    for (QWidget *shown : {window, dialog}) {
        if (shown) {
            shown->raise();
            shown->activateWindow();
        }
    }
}
