#include "Screens.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <cstdio>

namespace
{

QImage PictureOf(QWidget *widget)
{
    QImage picture(widget->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(0);
    widget->render(&picture);
    return picture;
}

QString FileName(int number, const QString &screen, const QString &language)
{
    QString name = screen;
    name.remove(QLatin1Char(',')).replace(QLatin1Char(' '), QLatin1Char('-'));
    return QString::fromLatin1("%1-%2-%3.png").arg(language).arg(number, 2, 10, QLatin1Char('0')).arg(name);
}

} // namespace

/** Saves a picture of every screen in the given languages. */
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3 || !QDir().mkpath(arguments.at(1))) {
        std::fprintf(stderr, "usage: savescreens DIRECTORY LANGUAGE...\n");
        return 2;
    }
    const QDir directory(arguments.at(1));
    Screens screens;
    bool areSaved = true;
    foreach (const QString &language, arguments.mid(2)) {
        int number = 0;
        foreach (const QString &screen, Screens::Names()) {
            const QString path = directory.filePath(FileName(++number, screen, language));
            screens.Show(screen, language, [&areSaved, path](QWidget *window) {
                areSaved = PictureOf(window).save(path) && areSaved;
            });
        }
    }
    return areSaved ? 0 : 1;
}
