// usage: minimal-host [--picture FILE] [SIBLING...]
// Shows the priority page, with the sibling plug-ins in these files, until its window is closed; then prints the list.

#include <CommonUtils.h>
#include <IBasePlugin.h>
#include <IPluginContainer.h>
#include <IPriorityPlugin.h>
#include <ISettingUIPlugin.h>

#include <QApplication>
#include <QDialog>
#include <QLibrary>
#include <QPixmap>

#include <cstdio>

extern IPluginContainer *theContainer;

const char verificationText[] = "pattern=QT_PLUGIN_VERIFICATION_DATA\nversion=4.6.2\ndebug=false\n"
                                "buildkey=macosx macx g++-4 full-config";

class Container : public IPluginContainer
{
public:
    Container() { theContainer = this; }
    ~Container() override
    {
        while (!m_plugins.isEmpty()) {
            m_plugins.last()->OnDestroy();
            delete m_plugins.takeLast();
        }
        theContainer = nullptr;
    }
    /** @param classId  what siblings look the plug-in up by; empty: its root object tells. */
    void Load(const QString &file, const QString &classId)
    {
        QLibrary library(file);
        const auto text = reinterpret_cast<const char *(*)()>(library.resolve("qt_plugin_query_verification_data"));
        const auto instance = reinterpret_cast<QObject *(*)()>(library.resolve("qt_plugin_instance"));
        const bool fits = text && instance && QByteArray(text()) == verificationText;
        IBasePlugin *plugin = fits ? qobject_cast<IBasePlugin *>(instance()) : nullptr;
        if (!plugin || !plugin->Init()) {
            qWarning("%s: not a plug-in for this host, %s", qPrintable(file), qPrintable(library.errorString()));
            return;
        }
        m_classIds.append(classId.isEmpty() ? plugin->GetCLSID().toUpper() : classId.toUpper());
        m_plugins.append(plugin);
    }
    QObject *GetPluginObject(const QString &classId, int interfaceNumber) override
    {
        QObject *object = nullptr;
        IBasePlugin *plugin = m_plugins.value(m_classIds.indexOf(classId.toUpper()));
        return plugin && plugin->QueryInterface(interfaceNumber, &object) ? object : nullptr;
    }

private:
    QStringList m_classIds;
    QList<IBasePlugin *> m_plugins;
};

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const bool isPicture = arguments.value(1) == QLatin1String("--picture");

    Container container;
    const QString classId = QLatin1String(priorityClassId);
    const QString file = QLatin1String("/plugins/PriorityPlugin/libPriorityPlugin.so");
    container.Load(CommonUtils::GetPluginLibraryPath() + file, classId);
    for (int i = isPicture ? 3 : 1; i < arguments.size(); ++i) {
        container.Load(arguments.at(i), QString());
    }
    QObject *service = container.GetPluginObject(classId, SettingInterface);
    ISettingUIPlugin *page = qobject_cast<ISettingUIPlugin *>(service);
    if (!page) {
        return 1;
    }
    QDialog dialog;
    dialog.setWindowTitle(page->GetModuleName());
    QRect place(0, 0, 420, 374);
    dialog.setFixedSize(place.size());
    page->ShowSettingDialog(&dialog, place);
    dialog.show();
    QApplication::processEvents();
    QPixmap picture(dialog.size());
    dialog.render(&picture);
    isPicture ? picture.save(arguments.value(2)) : dialog.exec();
    page->OnClickSettingOkButton();

    QList<PriorityList> list;
    qobject_cast<IPriorityPlugin *>(service)->GetPriorityList(&list);
    for (const PriorityList &entry : list) {
        std::printf("%s (type %s)\n", qPrintable(entry.name), qPrintable(entry.type));
    }
    return 0;
}
