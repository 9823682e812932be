#include "Arguments.h"

#include <QLatin1String>

namespace
{

struct ValueOption {
    const char *name;
    QString Arguments::*value;
};

const ValueOption valueOptions[] = {
    {"--language", &Arguments::language},
    {"--library-path", &Arguments::pluginLibraryPath},
    {"--tour", &Arguments::tourDirectory},
};

const ValueOption *FindValueOption(const QString &name)
{
    for (const ValueOption &option : valueOptions) {
        if (name == QLatin1String(option.name)) {
            return &option;
        }
    }
    return nullptr;
}

Arguments Refused(const QString &problem)
{
    Arguments refused;
    refused.action = Arguments::Refuse;
    refused.problem = problem;
    return refused;
}

} // namespace

Arguments Arguments::Parse(const QStringList &arguments)
{
    Arguments parsed;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            parsed.action = Help;
            return parsed;
        }
        if (argument == QLatin1String("--version")) {
            parsed.action = Version;
            return parsed;
        }
        const int equals = argument.indexOf(QLatin1Char('='));
        const QString name = argument.left(equals);
        const ValueOption *option = FindValueOption(name);
        if (!option) {
            const bool isOption = argument.startsWith(QLatin1Char('-'));
            return Refused(
                isOption ? QString::fromLatin1("there is no option %1; see --help").arg(name)
                         : QString::fromLatin1("can't do anything with \"%1\"; see --help").arg(argument));
        }
        QString value;
        if (equals >= 0) {
            value = argument.mid(equals + 1);
        } else if (i + 1 < arguments.size() && !arguments.at(i + 1).startsWith(QLatin1String("--"))) {
            value = arguments.at(++i);
        }
        if (value.isEmpty()) {
            return Refused(QString::fromLatin1("%1 needs a value; see --help").arg(name));
        }
        parsed.*(option->value) = value;
    }
    return parsed;
}

QString Arguments::HelpText()
{
    return QString::fromLatin1(
        "Usage: dashboard [options]\n"
        "Shows the priority list of a connection manager and its settings.\n"
        "\n"
        "  --language NAME      start in this language, such as en, ar or he\n"
        "  --library-path DIR   look for plug-ins in DIR/plugins\n"
        "  --tour DIR           show the whole program to itself: work with a list of its own,\n"
        "                       save a picture of each step in DIR, and check each effect\n"
        "  --version            print the version\n"
        "  --help               print this help\n"
        "\n"
        "Exit status: 0 done; 1 a step of the tour failed, or there is no display;\n"
        "2 the command line can't be followed; 3 the tour took too long.\n");
}

QString Arguments::VersionText()
{
    return QString::fromLatin1("dashboard %1\n").arg(QLatin1String(DASHBOARD_VERSION));
}
