#include "FakePage.h"

FakePage::FakePage()
    : title(QLatin1String("Fake page")), isActive(true), showsItself(true), widget(new QWidget)
{
    widget->setObjectName(QLatin1String("fakePageWidget"));
}

FakePage::~FakePage()
{
    delete widget.data();
}

bool FakePage::OnClickSettingOkButton()
{
    calls.append(QLatin1String("Ok"));
    widget->setParent(nullptr);
    return true;
}

bool FakePage::OnClickSettingCancelButton()
{
    calls.append(QLatin1String("Cancel"));
    widget->setParent(nullptr);
    return true;
}

bool FakePage::ShowSettingDialog(QWidget *parent, QRect &rect)
{
    calls.append(QLatin1String("Show"));
    area = rect;
    if (!showsItself) {
        return false;
    }
    widget->setParent(parent);
    widget->setGeometry(rect);
    widget->show();
    return true;
}

bool FakePage::HideSetting()
{
    calls.append(QLatin1String("Hide"));
    widget->setParent(nullptr);
    return true;
}
