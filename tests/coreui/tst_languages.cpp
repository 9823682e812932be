#include <Change.h>
#include <HostControl.h>
#include <TextPattern.h>

#include <QDirIterator>
#include <QFile>
#include <QFont>
#include <QFontMetrics>
#include <QMap>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>
#include <QtTest>

namespace
{

/** Texts of a language file: "context/id" and what stands for it. */
typedef QMap<QString, QString> Texts;

Texts TextsOf(const QString &language)
{
    QFile file(QLatin1String(SOURCE_DIRECTORY "/host/languages/") + language + QLatin1String(".ts"));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("a language file is missing");
    }
    Texts texts;
    QXmlStreamReader reader(&file);
    QString context;
    QString id;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (reader.name() == QLatin1String("name")) {
            context = reader.readElementText();
        } else if (reader.name() == QLatin1String("source")) {
            id = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const bool finished = reader.attributes().value(QLatin1String("type")).isEmpty();
            const QString text = reader.readElementText();
            texts.insert(context + QLatin1Char('/') + id, finished ? text : QString());
        }
    }
    if (reader.hasError()) {
        qFatal("a language file is not well-formed");
    }
    return texts;
}

QSet<QString> IdsUsedIn(const QString &directory)
{
    QSet<QString> ids;
    QStringList patterns;
    patterns << QLatin1String("*.cpp") << QLatin1String("*.h");
    QDirIterator files(QLatin1String(SOURCE_DIRECTORY "/") + directory, patterns, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) {
            qFatal("a source file can't be read");
        }
        const QString source = QString::fromUtf8(file.readAll());
        foreach (const QString &id,
                 TextPattern::FindAll(source, QLatin1String("\"(IDS_[A-Z0-9_]*[A-Z0-9])\""))) {
            ids.insert(id);
        }
    }
    return ids;
}

void AddLanguageRows()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << "en";
    QTest::newRow("ar") << "ar";
    QTest::newRow("he") << "he";
}

} // namespace

class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void everyLanguageHasTheSameTexts_data() { AddLanguageRows(); }
    void everyLanguageHasTheSameTexts();
    void noTextIsEmpty_data() { AddLanguageRows(); }
    void noTextIsEmpty();
    void everyTextIsInTheCompiledFile_data() { AddLanguageRows(); }
    void everyTextIsInTheCompiledFile();
    void everyIdInUseHasAText_data();
    void everyIdInUseHasAText();
    void textsFitTheirPlaces_data();
    void textsFitTheirPlaces();
    void keyNoticesTellWhatIsAllowed_data();
    void keyNoticesTellWhatIsAllowed();
};

void TestLanguages::initTestCase()
{
    HostControl::SetLanguageDirectory(QLatin1String(BUILD_DIRECTORY "/share/priority-dashboard/languages"));
}

void TestLanguages::everyLanguageHasTheSameTexts()
{
    QFETCH(QString, language);
    QCOMPARE(QStringList(TextsOf(language).keys()), QStringList(TextsOf(QLatin1String("en")).keys()));
}

void TestLanguages::noTextIsEmpty()
{
    QFETCH(QString, language);
    const Texts texts = TextsOf(language);
    QVERIFY(texts.size() >= 28);
    for (Texts::const_iterator text = texts.begin(); text != texts.end(); ++text) {
        QVERIFY2(!text.value().trimmed().isEmpty(), qPrintable(text.key()));
    }
}

void TestLanguages::everyTextIsInTheCompiledFile()
{
    QFETCH(QString, language);
    QVERIFY(HostControl::SetLanguage(language));
    const Texts texts = TextsOf(language);
    for (Texts::const_iterator text = texts.begin(); text != texts.end(); ++text) {
        const QString context = text.key().section(QLatin1Char('/'), 0, 0);
        const QString id = text.key().section(QLatin1Char('/'), 1);
        QCOMPARE(Change::tr(id, context), text.value());
    }
}

void TestLanguages::everyIdInUseHasAText_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("contexts");
    QTest::newRow("plug-in") << "src/PriorityPlugin"
                             << "PriorityPlugin";
    QTest::newRow("core UI library") << "host/coreui"
                                     << "PriorityPlugin";
    QTest::newRow("dashboard") << "host/dashboard"
                               << "PriorityPlugin Dashboard";
}

void TestLanguages::everyIdInUseHasAText()
{
    QFETCH(QString, directory);
    QFETCH(QString, contexts);
    const Texts texts = TextsOf(QLatin1String("en"));
    const QSet<QString> ids = IdsUsedIn(directory);
    QVERIFY(!ids.isEmpty());
    foreach (const QString &id, ids) {
        bool found = false;
        foreach (const QString &context, contexts.split(QLatin1Char(' '))) {
            found = found || texts.contains(context + QLatin1Char('/') + id);
        }
        QVERIFY2(found, qPrintable(id));
    }
}

void TestLanguages::textsFitTheirPlaces_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("id");
    QTest::addColumn<int>("width");
    const char *const languages[] = {"en", "ar", "he"};
    const char *const labels[] = {"IDS_AUTHENTICATION", "IDS_ENCRYPTION", "IDS_KEYINDEX", "IDS_EAP_METHOD"};
    const char *const buttons[] = {"IDS_PROFILE_UP",     "IDS_PROFILE_DOWN", "IDS_PROFILE_ADD",
                                   "IDS_PROFILE_DELETE", "IDS_PROFILE_NEW",  "IDS_OK",
                                   "IDS_CANCEL"};
    for (const char *language : languages) {
        for (const char *label : labels) {
            QTest::newRow((QByteArray(language) + ' ' + label).constData()) << language << label << 100;
        }
        // A column of 100 pixels less its margins and the button's own.
        for (const char *button : buttons) {
            QTest::newRow((QByteArray(language) + ' ' + button).constData()) << language << button << 66;
        }
    }
}

void TestLanguages::textsFitTheirPlaces()
{
    QFETCH(QString, language);
    QFETCH(QString, id);
    QFETCH(int, width);
    QVERIFY(HostControl::SetLanguage(language));
    const QString text = Change::tr(id, QLatin1String("PriorityPlugin"));
    QFont usual;
    usual.setPixelSize(13);
    const int needed = QFontMetrics(usual).boundingRect(text).width();
    QVERIFY2(needed <= width, qPrintable(QString::number(needed)));
}

void TestLanguages::keyNoticesTellWhatIsAllowed_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("lengths");
    const char *const languages[] = {"en", "ar", "he"};
    for (const char *language : languages) {
        QTest::newRow((QByteArray(language) + " WEP").constData())
            << language << "IDS_ERROR_KEY_WRONG_LENGTH_40"
            << "5 13 10 26 32";
        QTest::newRow((QByteArray(language) + " WPA").constData())
            << language << "IDS_ERROR_KEY_WRONG_LENGTH_128"
            << "8 63 64";
    }
}

void TestLanguages::keyNoticesTellWhatIsAllowed()
{
    QFETCH(QString, language);
    QFETCH(QString, id);
    QFETCH(QString, lengths);
    const QString text = TextsOf(language).value(QLatin1String("PriorityPlugin/") + id);
    foreach (const QString &length, lengths.split(QLatin1Char(' '))) {
        QVERIFY2(TextPattern::IsIn(text, QLatin1String("(^|\\D)") + length + QLatin1String("(\\D|$)")),
                 qPrintable(length));
    }
    const QString signs = QLatin1String("- _ ~ ! @ # $ % ^ & * ( ) + { } [ ] :");
    QVERIFY(text.contains(signs));
}

QTEST_MAIN(TestLanguages)
#include "tst_languages.moc"
