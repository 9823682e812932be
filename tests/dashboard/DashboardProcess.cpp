#include "DashboardProcess.h"

void ChangeEnvironment(QProcess *process, const QStringList &changes)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    const QString bus = "DBUS_SYSTEM_BUS_ADDRESS";
    if (!variables.contains(bus)) {
        // The list of a test must not rule the networks of this computer.
        variables.insert(bus, "unix:path=/nowhere");
    }
    for (int i = 0; i < changes.size(); ++i) {
        const QString name = changes.at(i).section('=', 0, 0);
        const QString value = changes.at(i).section('=', 1);
        if (value.isEmpty()) {
            variables.remove(name);
        } else {
            variables.insert(name, value);
        }
    }
    process->setProcessEnvironment(variables);
}

Outcome OutcomeOf(QProcess *process)
{
    const int longEnoughMilliseconds = 120000;
    const bool ended =
        process->waitForFinished(longEnoughMilliseconds) ||
        (process->state() == QProcess::NotRunning && process->error() != QProcess::FailedToStart);
    Outcome outcome;
    outcome.status = ended && process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -1;
    outcome.out = QString::fromUtf8(process->readAllStandardOutput());
    outcome.err = QString::fromUtf8(process->readAllStandardError());
    return outcome;
}

Outcome RunProgram(const QString &program, const QStringList &arguments, const QStringList &environment)
{
    QProcess process;
    ChangeEnvironment(&process, environment);
    process.start(program, arguments);
    return OutcomeOf(&process);
}

Outcome RunDashboard(const QStringList &arguments, const QStringList &environment)
{
    return RunProgram(BUILD_DIRECTORY "/bin/priority-dashboard", arguments, environment);
}
