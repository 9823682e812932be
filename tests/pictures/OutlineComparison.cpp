#include "OutlineComparison.h"

#include <QStringList>
#include <QVector>

namespace
{

const int contextLines = 2;

bool IsNear(const QString &approved, const QString &found)
{
    if (!approved.startsWith(QLatin1Char('~')) || !found.startsWith(QLatin1Char('~'))) {
        return false;
    }
    bool areNumbers[] = {false, false};
    const int numbers[] = {approved.mid(1).toInt(&areNumbers[0]), found.mid(1).toInt(&areNumbers[1])};
    const int tolerated =
        qMax(OutlineComparison::tolerance, qAbs(numbers[0]) / OutlineComparison::tolerancePart);
    return areNumbers[0] && areNumbers[1] && qAbs(numbers[0] - numbers[1]) <= tolerated;
}

bool IsSame(const QString &approved, const QString &found)
{
    if (approved == found) {
        return true;
    }
    const QStringList approvedWords = approved.split(QLatin1Char(' '));
    const QStringList foundWords = found.split(QLatin1Char(' '));
    bool isSame = approvedWords.size() == foundWords.size();
    for (int i = 0; isSame && i < approvedWords.size(); ++i) {
        isSame = approvedWords.at(i) == foundWords.at(i) || IsNear(approvedWords.at(i), foundWords.at(i));
    }
    return isSame;
}

/** [i][j]: how many lines the rest of approved from i and the rest of found from j have in common. */
QVector<QVector<int>> CommonLines(const QStringList &approved, const QStringList &found)
{
    QVector<QVector<int>> common(approved.size() + 1, QVector<int>(found.size() + 1, 0));
    for (int i = approved.size() - 1; i >= 0; --i) {
        for (int j = found.size() - 1; j >= 0; --j) {
            common[i][j] = IsSame(approved.at(i), found.at(j))
                               ? common.at(i + 1).at(j + 1) + 1
                               : qMax(common.at(i + 1).at(j), common.at(i).at(j + 1));
        }
    }
    return common;
}

QStringList MarkedLines(const QStringList &approved, const QStringList &found)
{
    const QVector<QVector<int>> common = CommonLines(approved, found);
    QStringList lines;
    int i = 0;
    int j = 0;
    while (i < approved.size() || j < found.size()) {
        const bool areBoth = i < approved.size() && j < found.size();
        if (areBoth && IsSame(approved.at(i), found.at(j))) {
            lines.append(QLatin1String("  ") + found.at(j));
            ++i;
            ++j;
        } else if (j == found.size() || (areBoth && common.at(i + 1).at(j) >= common.at(i).at(j + 1))) {
            lines.append(QLatin1String("- ") + approved.at(i++));
        } else {
            lines.append(QLatin1String("+ ") + found.at(j++));
        }
    }
    return lines;
}

} // namespace

QString OutlineComparison::Difference(const QString &approved, const QString &found)
{
    const QStringList lines = MarkedLines(approved.split(QLatin1Char('\n')), found.split(QLatin1Char('\n')));
    QStringList shown;
    int shownUpTo = 0;
    for (int i = 0; i < lines.size(); ++i) {
        if (lines.at(i).startsWith(QLatin1Char(' '))) {
            continue;
        }
        const int from = qMax(shownUpTo, i - contextLines);
        if (from > shownUpTo) {
            shown.append(QLatin1String("  ..."));
        }
        const int to = qMin(i + contextLines + 1, lines.size());
        shown += lines.mid(from, to - from);
        shownUpTo = qMax(shownUpTo, to);
    }
    return shown.join(QLatin1String("\n"));
}
