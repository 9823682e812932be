#ifndef DASHBOARDPROCESS_H
#define DASHBOARDPROCESS_H

#include <QProcess>
#include <QString>
#include <QStringList>

/** How a program ended and what it said. */
struct Outcome {
    int status; /**< -1 when it didn't end by itself. */
    QString out;
    QString err;
};

/** Gives a process the environment of this one, changed by "NAME=value", or "NAME=" to take one away. */
void ChangeEnvironment(QProcess *process, const QStringList &changes);

/** Waits until the process ends. */
Outcome OutcomeOf(QProcess *process);

Outcome RunProgram(const QString &program, const QStringList &arguments, const QStringList &environment);

/** Runs the program as from a terminal. */
Outcome RunDashboard(const QStringList &arguments, const QStringList &environment);

#endif
