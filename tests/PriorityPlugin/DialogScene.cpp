#include "DialogScene.h"

#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QtTest>

static QPair<QString, int> WLANKey()
{
    return qMakePair(QString("7545FB07-0E7A-4F27-A449-872DB09C106D"), 4102);
}

DialogScene::DialogScene()
{
    TemporaryDirectory empty;
    StandInHost::Reset(empty.Path());
    plugin.Plugin()->Init();
}

void DialogScene::Begin()
{
    directory.reset(new TemporaryDirectory);
    StandInHost::Reset(directory->Path());
    container.objects.clear();
    container.objects.insert(WLANKey(), &wlan);
    container.lookUps.clear();
    StandInHost::container = &container;
    wlan.profiles.clear();
    wlan.remembered.clear();
    wlan.networks.clear();
    wlan.config = WLANConfigData();
    wlan.created.clear();
    wlan.createResult = 0;
    wlan.calls.clear();
    window.reset(new QWidget);
    window->resize(500, 400);
    window->show();
}

void DialogScene::ShowPage()
{
    QRect rect;
    plugin.Setting()->ShowSettingDialog(window.data(), rect);
    wlan.calls.clear();
    container.lookUps.clear();
}

void DialogScene::Open(const char *button)
{
    ShowPage();
    Click(button);
}

void DialogScene::End()
{
    StandInHost::messageVisitor = nullptr;
    const QList<QDialog *> dialogs = window->findChildren<QDialog *>();
    for (int i = 0; i < dialogs.size(); ++i) {
        delete dialogs.at(i);
    }
    plugin.Setting()->HideSetting();
    StandInHost::container = nullptr;
    window.reset();
    directory.reset();
}

void DialogScene::Store(const QStringList &entries)
{
    QByteArray xml = "<r>";
    for (int i = 0; i < entries.size(); ++i) {
        const QStringList parts = entries.at(i).split("/");
        xml += "<item name='" + parts.at(0).toUtf8() + "' type='" +
               (parts.size() > 1 ? parts.at(1).toUtf8() : "1") + "'/>";
    }
    directory->Write("Priority.xml", xml + "</r>");
}

QStringList DialogScene::Stored()
{
    QList<PriorityList> list;
    plugin.Priority()->GetPriorityList(&list);
    QStringList entries;
    for (int i = 0; i < list.size(); ++i) {
        const PriorityList &entry = list.at(i);
        entries << (entry.type == "1" ? entry.name : entry.name + "/" + entry.type);
    }
    return entries;
}

void DialogScene::UseConfiguration(const QByteArray &xml)
{
    const QString resources = directory->FilePath("plugins/PriorityPlugin/");
    QDir().mkpath(resources);
    const QString built = QLatin1String(BUILD_DIRECTORY "/plugins/PriorityPlugin/");
    QFile::copy(built + "wifi.png", resources + "wifi.png");
    QFile::copy(built + "3G .png", resources + "3G .png");
    if (xml.isNull()) {
        QFile::remove(resources + "config.xml");
    } else {
        directory->Write("plugins/PriorityPlugin/config.xml", xml);
    }
    StandInHost::libraryPath = directory->Path();
}

void DialogScene::AddNetwork(const QString &name)
{
    WlanAvilableNetworkInfo network;
    network.networkName = name;
    wlan.networks << network;
}

void DialogScene::SetMethods(const QStringList &methods)
{
    wlan.config.authenticationList = methods;
}

void DialogScene::Click(const char *button)
{
    QTest::mouseClick(Find<QPushButton>(button), Qt::LeftButton);
}

QStringList DialogScene::MessageTexts() const
{
    QStringList texts;
    for (int i = 0; i < StandInHost::messages.size(); ++i) {
        texts << StandInHost::messages.at(i).text;
    }
    return texts;
}

void DialogScene::CloseDialog(const char *dialog, const QString &way)
{
    QWidget *frame = Find<QWidget>(dialog);
    const bool isAddDialog = QByteArray(dialog) == "addDialog";
    if (way == "OK") {
        Click(isAddDialog ? "addOkButton" : "newOkButton");
    } else if (way == "Cancel") {
        Click(isAddDialog ? "addCancelButton" : "newCancelButton");
    } else if (way == "Escape") {
        QTest::keyClick(frame->focusWidget() ? frame->focusWidget() : frame, Qt::Key_Escape);
    } else {
        frame->close();
    }
}

QStringList Words(const QString &text)
{
    return text.isEmpty() ? QStringList() : text.split(" ");
}

QStringList Items(const QComboBox *box)
{
    QStringList items;
    for (int i = 0; i < box->count(); ++i) {
        items << box->itemText(i);
    }
    return items;
}

WLANProfile Profile(const QString &authentication, const QString &encryption, const QString &keyIndex,
                    const QString &keyMaterial)
{
    WLANProfile profile;
    profile.authentication = authentication;
    profile.encryption = encryption;
    profile.keyIndex = keyIndex;
    profile.keyMaterial = keyMaterial;
    return profile;
}
