#include "ModuleHost.h"
#include "ModulePage.h"

#include <KCModule>
#include <KPluginFactory>

#include <QPointer>
#include <QVBoxLayout>

namespace
{

// A module of KF5 is a widget, one of KF6 has one.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
class SettingsModule : public KCModule
{
public:
    SettingsModule(QObject *parent, const KPluginMetaData &, const QVariantList &arguments)
        : KCModule(qobject_cast<QWidget *>(parent), arguments)
    {
    }

    QWidget *widget() { return this; }
};
#else
class SettingsModule : public KCModule
{
public:
    SettingsModule(QObject *parent, const KPluginMetaData &metaData, const QVariantList &)
        : KCModule(parent, metaData)
    {
    }
};
#endif

} // namespace

/** The module of System Settings. */
class PriorityModule : public SettingsModule
{
    Q_OBJECT

public:
    PriorityModule(QObject *parent, const KPluginMetaData &metaData, const QVariantList &arguments)
        : SettingsModule(parent, metaData, arguments)
    {
        // Every change is kept at once, and a list has no defaults.
        setButtons(NoAdditionalButton);
        ModuleHost *host = ModuleHost::Get();
        widget()->setLayoutDirection(host->IsRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        m_page = new ModulePage(host->Plugins(), host->Keeper(), host->Program(), widget());
        connect(host, &ModuleHost::Ending, m_page.data(), &ModulePage::Close);
        QVBoxLayout *layout = new QVBoxLayout(widget());
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_page);
    }

    // The widget may end earlier, or much later.
    ~PriorityModule() override { delete m_page; }

    void load() override
    {
        ModuleHost::Get()->FollowList();
        m_page->Load();
        KCModule::load();
    }

private:
    QPointer<ModulePage> m_page;
};

K_PLUGIN_CLASS_WITH_JSON(PriorityModule, "kcm_prioritylist.json")

#include "PriorityModule.moc"
