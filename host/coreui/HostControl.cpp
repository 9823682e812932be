#include "HostControl.h"

#include "HostState.h"

#include <QApplication>
#include <QColor>
#include <QPalette>

namespace
{

QColor Mixed(const QColor &base, const QColor &accent, qreal share)
{
    return QColor::fromRgbF(base.redF() + share * (accent.redF() - base.redF()),
                            base.greenF() + share * (accent.greenF() - base.greenF()),
                            base.blueF() + share * (accent.blueF() - base.blueF()));
}

} // namespace

HostState &HostState::Instance()
{
    static HostState state;
    return state;
}

void HostControl::SetPluginContainer(IPluginContainer *container)
{
    HostState::Instance().pluginContainer = container;
}

void HostControl::SetPluginLibraryPath(const QString &directory)
{
    QString path = directory;
    while (path.endsWith(QLatin1Char('/'))) {
        path.chop(1);
    }
    // The root directory is an empty text now, which still counts as set.
    HostState::Instance().pluginLibraryPath =
        directory.isEmpty() ? QString() : (path.isEmpty() ? QString(QLatin1String("")) : path);
}

void HostControl::SetLanguageDirectory(const QString &directory)
{
    HostState::Instance().languages.SetDirectory(directory);
}

QStringList HostControl::LanguageNames()
{
    return HostState::Instance().languages.Names();
}

QList<LanguageProblem> HostControl::LanguageProblems()
{
    return HostState::Instance().languages.Problems();
}

QString HostControl::TextIn(const QString &language, const QString &id, const QString &context)
{
    return HostState::Instance().languages.TextIn(language, id, context);
}

bool HostControl::SetLanguage(const QString &name)
{
    return HostState::Instance().languages.Use(name);
}

bool HostControl::IsRightToLeft(const QString &language)
{
    return language == QLatin1String("ar") || language == QLatin1String("he");
}

void HostControl::ApplyLook()
{
    const qreal accentShare = 0.35;
    QPalette palette = QApplication::palette();
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const QPalette::ColorGroup groups[] = {QPalette::Active, QPalette::Inactive};
    for (QPalette::ColorGroup group : groups) {
        const QColor base = palette.color(group, QPalette::Base);
        palette.setColor(group, QPalette::Highlight, Mixed(base, accent, accentShare));
        palette.setColor(group, QPalette::HighlightedText, palette.color(group, QPalette::Text));
    }
    QApplication::setPalette(palette, "QAbstractItemView");
}
