#include "Arguments.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QStringList given;
    for (int i = 1; i < argc; ++i) {
        given.append(QString::fromLocal8Bit(argv[i]));
    }
    const Arguments arguments = Arguments::Parse(given);
    switch (arguments.action) {
    case Arguments::Help:
        std::fputs(Arguments::HelpText().toLocal8Bit().constData(), stdout);
        return 0;
    case Arguments::Version:
        std::fputs(Arguments::VersionText().toLocal8Bit().constData(), stdout);
        return 0;
    case Arguments::Refuse:
        std::fprintf(stderr, "dashboard: %s\n", arguments.problem.toLocal8Bit().constData());
        return 2;
    case Arguments::Run:
        break;
    }

    const QApplication application(argc, argv);
    return QApplication::exec();
}
