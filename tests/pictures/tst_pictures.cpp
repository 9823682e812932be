#include <OutlineComparison.h>
#include <Row.h>
#include <TemporaryDirectory.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QtTest>

namespace
{

const char *const languages[] = {"en", "ar"};
const int longEnoughMilliseconds = 150000;

QStringList OutlinesIn(const QString &directory)
{
    return QDir(directory).entryList(QStringList(QLatin1String("*.txt")), QDir::Files, QDir::Name);
}

QString ReadText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/** What the most important of the tour's pictures show is what was approved, whatever the font. */
class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void TourSucceeds_data();
    void TourSucceeds();
    void PictureIsAsApproved_data();
    void PictureIsAsApproved();

private:
    QString FoundPath(const QString &language) const { return m_directory.FilePath("found-" + language); }
    static QString ApprovedPath(const QString &language)
    {
        return SOURCE_DIRECTORY "/tests/pictures/approved/" + language;
    }

    const TemporaryDirectory m_directory;
    QMap<QString, int> m_statuses;
    QMap<QString, QString> m_told;
};

void PicturesTest::initTestCase()
{
    for (const char *language : languages) {
        QProcess tour;
        tour.setProcessChannelMode(QProcess::MergedChannels);
        tour.start(OUTLINE_TOUR, QStringList()
                                     << m_directory.FilePath(language) << FoundPath(language) << language);
        const bool hasEnded = tour.waitForFinished(longEnoughMilliseconds);
        m_statuses[language] = hasEnded && tour.exitStatus() == QProcess::NormalExit ? tour.exitCode() : -1;
        m_told[language] = QString::fromUtf8(tour.readAll());
    }
}

void PicturesTest::TourSucceeds_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : languages) {
        Row(language, language);
    }
}

void PicturesTest::TourSucceeds()
{
    QFETCH(QString, language);
    QVERIFY2(m_statuses.value(language) == 0, qPrintable(m_told.value(language)));
}

void PicturesTest::PictureIsAsApproved_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("name");
    for (const char *language : languages) {
        const QStringList names = OutlinesIn(ApprovedPath(language));
        QVERIFY(!names.isEmpty());
        foreach (const QString &name, names) {
            Row(qPrintable(QLatin1String(language) + QLatin1String(", ") + name), language, name);
        }
    }
}

void PicturesTest::PictureIsAsApproved()
{
    QFETCH(QString, language);
    QFETCH(QString, name);
    const QString approved = ReadText(ApprovedPath(language) + '/' + name);
    const QString found = ReadText(FoundPath(language) + '/' + name);
    QVERIFY2(!found.isEmpty(), "the tour lacks this picture");
    const QString difference = OutlineComparison::Difference(approved, found);
    QVERIFY2(difference.isEmpty(),
             qPrintable("\n" + difference + "\nIf it should be so, tests/pictures/approve approves it."));
}

QTEST_GUILESS_MAIN(PicturesTest)
#include "tst_pictures.moc"
