#include "Arguments.h"

#include <ListEntries.h>

#include <QByteArray>
#include <QLatin1String>

#include <limits>

namespace
{

const char helpText[] =
    "Usage: priority-dashboard [options]\n"
    "Shows the list of networks that a connection manager tries in order, and its settings.\n"
    "\n"
    "  --language NAME      start in this language, such as en, ar or pt_BR\n"
    "  --library-path DIR   look for plug-ins in DIR/plugins\n"
    "  --wlan SOURCE        where the Wi-Fi networks come from:\n"
    "                         networkmanager  this computer's own; the list decides which is joined\n"
    "                         stored          practice networks from a file; nothing real is touched\n"
    "                       networkmanager is the default\n"
    "  --show PART          open connect, to connect to a network, or settings with the window\n"
    "  --demo               try the program: practice networks, and a list and settings of their\n"
    "                       own; nothing of yours is touched\n"
    "  --version            print the version\n"
    "  -h, --help           print this help\n"
    "\n"
    "Commands for scripts. They open no window and need no display; several are done in\n"
    "the order given, and the first that fails is the last:\n"
    "\n"
    "  --list               print the networks, the first to be tried first:\n"
    "                       place, type and name, with tabs between them\n"
    "  --check              say whether the list's file can be read, how many networks it has,\n"
    "                       and which of them are listed more than once\n"
    "  --add NAME[:TYPE]    make this the last network\n"
    "  --add-top NAME[:TYPE]\n"
    "                       make this the first network, whether it is listed already or not\n"
    "  --remove NAME[:TYPE] take this network out of the list; it stays saved\n"
    "  --move NAME[:TYPE] PLACE\n"
    "                       move this network to that place of the list: 1 is the first, and\n"
    "                       what is beyond the end is the last; of several equal ones the first\n"
    "                       is moved, or removed\n"
    "  --undo               take the last change of the list back, whoever has made it\n"
    "  --redo               make it again\n"
    "  --export FILE        write the list to a file, which is made, or is such a list already\n"
    "  --import FILE        have the networks of such a file for the list\n"
    "  --status             print which connections are up or coming up, which of them carries\n"
    "                       the traffic, and which network of the list could be used now first\n"
    "  --connect NAME[:TYPE]\n"
    "                       connect this network and wait until it is up; an open one in range\n"
    "                       need not be saved\n"
    "  --disconnect         end the connection that carries the traffic, unless it is of\n"
    "                       another kind than Wi-Fi and mobile broadband\n"
    "  --apply              have the list rule NetworkManager, and bring the networks into its\n"
    "                       order; print each priority that is changed: set, name, former and\n"
    "                       new one, and each that can't be: kept, name and reason\n"
    "  --release            have the list rule no more, and give all networks back what they\n"
    "                       had before; prints the same\n"
    "  --agent              keep the list in effect, as an open window does, until ended by a\n"
    "                       signal; one for each user\n"
    "  --wait SECONDS       let --connect and --disconnect take so long; 60 is the default\n"
    "  --json               let --list, --check and --status answer in JSON\n"
    "\n"
    "What commands change of the list takes effect at once, as long as the list rules\n"
    "NetworkManager.\n"
    "\n"
    "TYPE is wifi (or 1), which is also the type of a network that is given without one,\n"
    "mobile (or 2), or another digit. NAME may have colons in it: the last one counts when\n"
    "a type follows.\n"
    "\n"
    "Exit status:\n"
    "   0  done\n"
    "   1  there is no display\n"
    "   2  the command line can't be followed\n"
    "   4  the network to add is listed already\n"
    "   5  the priority plug-in is missing, was refused or is broken\n"
    "   6  the list's file is damaged\n"
    "   7  the list's file can't be opened, or there is no directory for it\n"
    "   8  the list's file, or the output, can't be written\n"
    "   9  --check found networks that are listed more than once\n"
    "  10  another command was busy with the list for too long, or an agent is running already\n"
    "  11  the connection manager can't be reached\n"
    "  12  it is not there or not listed, needs a key first, or nothing is connected\n"
    "  13  it was not connected, or not disconnected, or not in time\n"
    "  14  not every network could be brought into the order, or given back\n"
    "  15  there is nothing to undo, or to redo\n";

struct ValueOption {
    const char *name;
    QString Arguments::*value;
};

const ValueOption valueOptions[] = {
    {"--language", &Arguments::language}, {"--library-path", &Arguments::pluginLibraryPath},
    {"--show", &Arguments::show},         {"--wait", &Arguments::wait},
    {"--wlan", &Arguments::wlan},
};

struct WlanWord {
    const char *word;
    WlanChoice choice;
};

const WlanWord wlanWords[] = {
    {"auto", WlanNetworkManager},
    {"networkmanager", WlanNetworkManager},
    {"stored", WlanStored},
};

const WlanWord *FindWlanWord(const QString &word)
{
    for (const WlanWord &known : wlanWords) {
        if (word == QLatin1String(known.word)) {
            return &known;
        }
    }
    return nullptr;
}

struct CommandOption {
    const char *name;
    Command::Kind kind;
};

const CommandOption commandOptions[] = {
    {"--list", Command::List},
    {"--check", Command::Check},
    {"--add", Command::Add},
    {"--add-top", Command::AddTop},
    {"--remove", Command::Remove},
    {"--move", Command::Move},
    {"--undo", Command::Undo},
    {"--redo", Command::Redo},
    {"--export", Command::Export},
    {"--import", Command::Import},
    {"--status", Command::Status},
    {"--connect", Command::Connect},
    {"--disconnect", Command::Disconnect},
    {"--apply", Command::Apply},
    {"--release", Command::Release},
    {"--agent", Command::Agent},
};

/** Words for the types of entries. */
struct TypeWord {
    const char *word;
    const char *type;
};

const TypeWord typeWords[] = {
    {"wifi", "1"},
    {"mobile", "2"},
};

const CommandOption *FindCommandOption(const QString &name)
{
    for (const CommandOption &option : commandOptions) {
        if (name == QLatin1String(option.name)) {
            return &option;
        }
    }
    return nullptr;
}

Command CommandOf(const CommandOption &option)
{
    Command command;
    command.kind = option.kind;
    return command;
}

/** The type that text stands for; null when it stands for none. */
QString TypeOf(const QString &text)
{
    for (const TypeWord &known : typeWords) {
        if (text == QLatin1String(known.word)) {
            return QLatin1String(known.type);
        }
    }
    const bool isDigit = text.size() == 1 && text.at(0) >= QLatin1Char('0') && text.at(0) <= QLatin1Char('9');
    return isDigit ? text : QString();
}

/** NAME or NAME:TYPE. A name may have colons in it: the last one counts when a type follows. */
PriorityList EntryOf(const QString &text)
{
    PriorityList entry;
    const int colon = static_cast<int>(text.lastIndexOf(QLatin1Char(':')));
    const QString type = colon < 0 ? QString() : TypeOf(text.mid(colon + 1));
    entry.name = type.isNull() ? text : text.left(colon);
    entry.type = type.isNull() ? QString::fromLatin1(typeWords[0].type) : type;
    return entry;
}

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

/** Takes what comes behind name: with "=" in the argument itself, or as the next one. */
bool TakeValue(const QString &argument, const QString &name, QStringList *left, QString *value)
{
    if (argument.size() > name.size()) {
        *value = argument.mid(name.size() + 1);
    } else if (!left->isEmpty() && !left->constFirst().startsWith(QLatin1String("--"))) {
        *value = left->takeFirst();
    }
    return !value->isEmpty();
}

/** A place in the list, counted from 1; 0 when the text is none. However large: there is an end. */
int PositionOf(const QString &text)
{
    for (const QChar digit : text) {
        if (digit < QLatin1Char('0') || digit > QLatin1Char('9')) {
            return 0;
        }
    }
    bool isSmall = false;
    const int position = text.toInt(&isSmall);
    return isSmall || text.isEmpty() ? position : std::numeric_limits<int>::max();
}

/** Null, or why it can't be followed. */
QString TakeEntry(const QString &value, const QString &name, QStringList *left, Command *command)
{
    command->entry = EntryOf(value);
    if (command->entry.name.isEmpty()) {
        return QString::fromLatin1("%1 needs a name before the type; see --help").arg(name);
    }
    if (command->Adds() && !ListEntries::IsStorable(command->entry)) {
        return QString::fromLatin1("the list can't hold all characters of the name \"%1\"")
            .arg(command->entry.name);
    }
    if (command->kind == Command::Move) {
        const QString position = left->isEmpty() ? QString() : left->takeFirst();
        command->position = PositionOf(position);
        if (command->position == 0) {
            return QString::fromLatin1("%1 needs a place behind the name, a number from 1, not \"%2\"; "
                                       "see --help")
                .arg(name, position);
        }
    }
    return QString();
}

/** Null, or why it can't be followed. */
QString TakeCommand(const CommandOption &option, const QString &argument, QStringList *left,
                    Arguments *parsed)
{
    const QString name = QLatin1String(option.name);
    Command command = CommandOf(option);
    QString problem;
    if (command.TakesEntry() || command.TakesFile()) {
        QString value;
        if (!TakeValue(argument, name, left, &value)) {
            return QString::fromLatin1("%1 needs a value; see --help").arg(name);
        }
        if (command.TakesFile()) {
            command.file = value;
        } else {
            problem = TakeEntry(value, name, left, &command);
        }
    } else if (argument.size() > name.size()) {
        return QString::fromLatin1("%1 takes no value; see --help").arg(name);
    }
    parsed->commands.append(command);
    return problem;
}

/** Takes the first of the arguments, and what belongs to it. Null, or why it can't be followed. */
QString TakeFirst(QStringList *left, Arguments *parsed)
{
    const QString argument = left->takeFirst();
    if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
        parsed->action = Arguments::Help;
        return QString();
    }
    if (argument == QLatin1String("--version")) {
        parsed->action = Arguments::Version;
        return QString();
    }
    const QString name = argument.left(argument.indexOf(QLatin1Char('=')));
    if (const CommandOption *command = FindCommandOption(name)) {
        return TakeCommand(*command, argument, left, parsed);
    }
    if (const ValueOption *option = FindValueOption(name)) {
        return TakeValue(argument, name, left, &(parsed->*(option->value)))
                   ? QString()
                   : QString::fromLatin1("%1 needs a value; see --help").arg(name);
    }
    bool *const flag = name == QLatin1String("--json")   ? &parsed->isJson
                       : name == QLatin1String("--demo") ? &parsed->isDemo
                                                         : nullptr;
    if (!flag) {
        return argument.startsWith(QLatin1Char('-'))
                   ? QString::fromLatin1("there is no option %1; see --help").arg(name)
                   : QString::fromLatin1("can't do anything with \"%1\"; see --help").arg(argument);
    }
    *flag = true;
    return argument == name ? QString() : QString::fromLatin1("%1 takes no value; see --help").arg(name);
}

/** Null when there is none. */
QString ShowProblem(const Arguments &parsed)
{
    if (!parsed.show.isNull() && parsed.show != QLatin1String("connect") &&
        parsed.show != QLatin1String("settings")) {
        return QString::fromLatin1("--show is connect or settings, not \"%1\"; see --help").arg(parsed.show);
    }
    return parsed.show.isNull() || parsed.commands.isEmpty()
               ? QString()
               : QString::fromLatin1("--show opens a window, and commands open none; see --help");
}

/** Whether what was given goes together: null, or why it doesn't. */
QString ProblemOf(const Arguments &parsed)
{
    if (!parsed.wlan.isNull() && !FindWlanWord(parsed.wlan)) {
        return QString::fromLatin1("--wlan is networkmanager or stored, not \"%1\"; see --help")
            .arg(parsed.wlan);
    }
    if (parsed.isDemo && !parsed.wlan.isNull()) {
        return QLatin1String("--demo has networks of its own: leave --wlan out; see --help");
    }
    if (parsed.WaitSeconds() == 0) {
        return QString::fromLatin1("--wait is a number of seconds from 1 to 86400, not \"%1\"; see --help")
            .arg(parsed.wait);
    }
    bool canWait = parsed.wait.isNull();
    bool canAnswer = !parsed.isJson;
    for (const Command &command : parsed.commands) {
        canWait = canWait || command.Waits();
        canAnswer = canAnswer || command.CanAnswerInJson();
        if (command.kind == Command::Agent && parsed.commands.size() > 1) {
            return QLatin1String("--agent goes without other commands; see --help");
        }
    }
    if (!canWait) {
        return QLatin1String("--wait goes with --connect or --disconnect; see --help");
    }
    return canAnswer ? ShowProblem(parsed)
                     : QLatin1String("--json goes with --list, --check or --status; see --help");
}

} // namespace

Arguments Arguments::Read(int count, const char *const *arguments)
{
    QStringList texts;
    for (int i = 1; i < count; ++i) {
        const QByteArray bytes(arguments[i]);
        QString text = QString::fromUtf8(bytes);
        if (text.toUtf8() != bytes) {
            text = QString::fromLocal8Bit(bytes);
            if (text.toLocal8Bit() != bytes) {
                return Refused(
                    QString::fromLatin1("argument %1 is no text: \"%2\"").arg(QString::number(i), text));
            }
        }
        texts.append(text);
    }
    return Parse(texts);
}

Arguments Arguments::Parse(const QStringList &arguments)
{
    Arguments parsed;
    QStringList left = arguments;
    QString problem;
    while (!left.isEmpty() && problem.isNull() && parsed.action == Run) {
        problem = TakeFirst(&left, &parsed);
    }
    if (problem.isNull() && parsed.action == Run) {
        problem = ProblemOf(parsed);
    }
    return problem.isNull() ? parsed : Refused(problem);
}

int Arguments::WaitSeconds() const
{
    const int byDefault = 60;
    const int most = 86400;
    if (wait.isNull()) {
        return byDefault;
    }
    bool isNumber = false;
    const int seconds = wait.toInt(&isNumber);
    return isNumber && seconds > 0 && seconds <= most ? seconds : 0;
}

WlanChoice Arguments::ChosenWlan() const
{
    const WlanWord *given = FindWlanWord(wlan);
    return isDemo ? WlanStored : given ? given->choice : WlanNetworkManager;
}

QString Arguments::HelpText()
{
    return QString::fromLatin1(helpText);
}

QString Arguments::VersionText()
{
    return QString::fromLatin1("priority-dashboard %1\n").arg(QLatin1String(DASHBOARD_VERSION));
}
