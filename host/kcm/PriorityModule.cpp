#include "ModuleHost.h"
#include "ModulePage.h"

#include <KCModule>
#include <KPluginFactory>

#include <QVBoxLayout>

/** The module of System Settings. */
class PriorityModule : public KCModule
{
    Q_OBJECT

public:
    PriorityModule(QWidget *parent, const QVariantList &arguments) : KCModule(parent, arguments)
    {
        // Every change is kept at once, and a list has no defaults.
        setButtons(NoAdditionalButton);
        ModuleHost *host = ModuleHost::Get();
        setLayoutDirection(host->IsRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        m_page = new ModulePage(host->Plugins(), host->Keeper(), host->Program(), this);
        connect(host, &ModuleHost::Ending, m_page, &ModulePage::Close);
        QVBoxLayout *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_page);
    }

    void load() override
    {
        ModuleHost::Get()->FollowList();
        m_page->Load();
        KCModule::load();
    }

private:
    ModulePage *m_page;
};

K_PLUGIN_CLASS_WITH_JSON(PriorityModule, "kcm_prioritylist.json")

#include "PriorityModule.moc"
