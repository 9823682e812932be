#include "Appearance.h"

#include "DashboardStyle.h"

#include <HostControl.h>
#include <Settings.h>

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

namespace
{

struct ColourPair {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
};

const ColourPair colours[] = {
    {QPalette::WindowText, 0xff000000, 0xffe8eaed},    {QPalette::Base, 0xffffffff, 0xff1f2225},
    {QPalette::AlternateBase, 0xfff4f4f4, 0xff282c30}, {QPalette::Text, 0xff000000, 0xffe8eaed},
    {QPalette::ButtonText, 0xff000000, 0xffe8eaed},    {QPalette::BrightText, 0xffffffff, 0xffffffff},
    {QPalette::Highlight, 0xff2372a8, 0xff2f78b4},     {QPalette::HighlightedText, 0xffffffff, 0xffffffff},
    {QPalette::ToolTipBase, 0xfffff8d6, 0xff4b4522},   {QPalette::ToolTipText, 0xff000000, 0xfff5f0d8},
    {QPalette::Link, 0xff1b5e8c, 0xff7fbdf0},          {QPalette::LinkVisited, 0xff6a3d8f, 0xffc3a0e6},
};

const QRgb lightWindow = 0xffefefef;
const QRgb darkWindow = 0xff2c3034;
const QRgb lightButton = 0xffefefef;
const QRgb darkButton = 0xff3b4046;

const QPalette::ColorRole textRoles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
const QRgb lightDisabledText = 0xff8c8c8c;
const QRgb darkDisabledText = 0xff80858a;

/** The look that the desktop gave the program. */
struct SystemLook {
    QString style = QApplication::style()->objectName();
    QPalette palette = QApplication::palette();
};

QString ChoiceKey()
{
    return QLatin1String("window/appearance");
}

void UseStyle(const QString &name)
{
    const QStyle *style = QApplication::style();
    if (!qobject_cast<const DashboardStyle *>(style) ||
        style->objectName().compare(name, Qt::CaseInsensitive) != 0) {
        QApplication::setStyle(DashboardStyle::Over(QStyleFactory::create(name)));
    }
}

} // namespace

Appearance::Choice Appearance::Stored()
{
    const QString name = Settings::Read(ChoiceKey()).toString();
    if (name == QLatin1String("light")) {
        return Light;
    }
    return name == QLatin1String("dark") ? Dark : System;
}

void Appearance::Store(Choice choice)
{
    const char *names[] = {"system", "light", "dark"};
    Settings::Write(ChoiceKey(), QLatin1String(names[choice]));
}

void Appearance::Apply(Choice choice)
{
    static const SystemLook system;
    if (choice == System) {
        UseStyle(system.style);
        QApplication::setPalette(system.palette);
    } else {
        // It paints as the palette says; the styles of desktops may paint in the desktop's colours instead.
        UseStyle(QLatin1String("fusion"));
        QApplication::setPalette(Colours(choice == Dark));
    }
    HostControl::ApplyLook();
}

QPalette Appearance::Colours(bool isDark)
{
    QPalette palette(QColor::fromRgb(isDark ? darkButton : lightButton),
                     QColor::fromRgb(isDark ? darkWindow : lightWindow));
    for (const ColourPair &colour : colours) {
        palette.setColor(colour.role, QColor::fromRgb(isDark ? colour.dark : colour.light));
    }
    for (QPalette::ColorRole role : textRoles) {
        palette.setColor(QPalette::Disabled, role,
                         QColor::fromRgb(isDark ? darkDisabledText : lightDisabledText));
    }
    return palette;
}
