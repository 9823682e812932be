#ifndef FAKEPAGE_H
#define FAKEPAGE_H

#include <ISettingUIPlugin.h>

#include <QPointer>
#include <QStringList>

/** A plug-in's settings page that keeps what it was asked for. */
class FakePage : public QObject, public ISettingUIPlugin
{
    Q_OBJECT
    Q_INTERFACES(ISettingUIPlugin)

public:
    FakePage();
    ~FakePage() override;

    bool OnClickSettingOkButton() override;
    bool OnClickSettingCancelButton() override;
    bool ShowSettingDialog(QWidget *parent, QRect &rect) override;
    QString GetModuleName() override { return title; }
    bool HideSetting() override;
    bool IsActiveSetting() override { return isActive; }

    /** Each of Show, Ok, Cancel and Hide as it came. */
    QStringList calls;
    QString title;
    bool isActive;
    bool showsItself;
    QRect area;
    QPointer<QWidget> widget;
};

#endif
