#include <ListDocument.h>
#include <LoadedPlugin.h>
#include <Row.h>
#include <StandInHost.h>
#include <TemporaryDirectory.h>
#include <TraceCapture.h>

#include <QLabel>
#include <QScopedPointer>
#include <QTableWidget>
#include <QtTest>

/** The priority file cut off behind each of its bytes, as a program that is stopped in the middle of writing
 * leaves it. */
class tst_TruncatedFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void everyWholeEntryIsRead_data();
    void everyWholeEntryIsRead();
    void everyWholeEntrySurvivesTheNextChange_data() { everyWholeEntryIsRead_data(); }
    void everyWholeEntrySurvivesTheNextChange();
    void movingWritesNothing_data() { Documents(); }
    void movingWritesNothing();

private:
    /** One row for each document with entries. */
    static void Documents();
    void Put(const Model::Document &document);
    QStringList Rows();
    static QStringList Texts(const Model::Entries &entries);
    static QStringList Names(const Model::Entries &entries);

    TemporaryDirectory m_directory;
    QScopedPointer<QWidget> m_window;
    LoadedPlugin m_plugin;
};

Q_DECLARE_METATYPE(Model::Document)

void tst_TruncatedFile::initTestCase()
{
    StandInHost::Reset(m_directory.Path());
    m_window.reset(new QWidget);
    m_window->resize(500, 400);
    m_window->show();
    m_plugin.Plugin()->Init();
}

void tst_TruncatedFile::cleanupTestCase()
{
    m_plugin.Setting()->HideSetting();
    m_plugin.Plugin()->OnDestroy();
}

void tst_TruncatedFile::Put(const Model::Document &document)
{
    m_directory.Write("Priority.xml", QByteArray(document.bytes.data(), int(document.bytes.size())));
}

static QString ToText(const Model::Text &text)
{
    return QString(reinterpret_cast<const QChar *>(text.data()), int(text.size()));
}

QStringList tst_TruncatedFile::Texts(const Model::Entries &entries)
{
    QStringList texts;
    for (const Model::Entry &entry : entries) {
        texts << ToText(entry.name) + QLatin1Char('/') + ToText(entry.type);
    }
    return texts;
}

QStringList tst_TruncatedFile::Names(const Model::Entries &entries)
{
    QStringList names;
    for (const Model::Entry &entry : entries) {
        names << ToText(entry.name);
    }
    return names;
}

QStringList tst_TruncatedFile::Rows()
{
    const QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
    QStringList names;
    for (int row = 0; row < table->rowCount(); ++row) {
        names << table->cellWidget(row, 0)->accessibleName();
    }
    return names;
}

void tst_TruncatedFile::Documents()
{
    QTest::addColumn<Model::Document>("document");
    const Model::Entries entries = {{u"Home", u"1"},
                                    {u"Caf\u00e9 \u0634\u0628\u0643\u0629", u"1"},
                                    {u"<&\"\t\U0001f4f6>", u"2"},
                                    {u"", u""}};
    Row("written by the plug-in", Model::ProductDocument(entries));
    Row("written by another program", Model::ForeignDocument(entries));
}

void tst_TruncatedFile::everyWholeEntryIsRead_data()
{
    Documents();
    Row("empty list", Model::ProductDocument(Model::Entries()));
}

void tst_TruncatedFile::everyWholeEntryIsRead()
{
    QFETCH(Model::Document, document);
    const QString errorLine =
        "../../src/PriorityPlugin/PriorityXMLParser.cpp: ReadPriorityItem: Read Error: n";
    for (std::size_t size = 0; size <= document.bytes.size(); ++size) {
        const Model::Document cut = Model::Truncated(document, size);
        Put(cut);
        TraceCapture trace;
        QList<PriorityList> list;
        const int code = m_plugin.Priority()->GetPriorityList(&list);
        QVERIFY2(code == (cut.IsSound() ? 0 : 6), qPrintable(QString("%1 bytes: %2").arg(size).arg(code)));
        QCOMPARE(AsTexts(list), Texts(cut.entries));
        QCOMPARE(trace.Lines().contains(errorLine), !cut.IsSound());
        QRect rect;
        m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
        QCOMPARE(Rows(), Names(cut.entries));
        QCOMPARE(m_directory.Read("Priority.xml").size(), int(size));
    }
}

void tst_TruncatedFile::everyWholeEntrySurvivesTheNextChange()
{
    QFETCH(Model::Document, document);
    for (std::size_t size = 0; size <= document.bytes.size(); ++size) {
        const Model::Document cut = Model::Truncated(document, size);
        Put(cut);
        m_plugin.Priority()->AddTopPriority(Entry("New"));
        Model::Entries expected = cut.entries;
        expected.insert(expected.begin(), Model::Entry{u"New", u"1"});
        const Model::Document healed = Model::ProductDocument(expected);
        QCOMPARE(m_directory.Read("Priority.xml"), QByteArray(healed.bytes.data(), int(healed.bytes.size())));
    }
}

void tst_TruncatedFile::movingWritesNothing()
{
    QFETCH(Model::Document, document);
    for (std::size_t size = 0; size < document.soundSize; ++size) {
        // The page has the whole list when the file is cut behind its back.
        Put(document);
        QRect rect;
        m_plugin.Setting()->ShowSettingDialog(m_window.data(), rect);
        QTableWidget *table = m_window->findChild<QTableWidget *>("priorityTable");
        QCOMPARE(Rows(), Names(document.entries));
        QTest::mouseClick(table->cellWidget(1, 0)->findChild<QLabel *>("rowName"), Qt::LeftButton);
        QCOMPARE(table->currentRow(), 1);
        Put(Model::Truncated(document, size));
        QTest::keyClick(table, size % 2 == 0 ? Qt::Key_Up : Qt::Key_Down);
        QCOMPARE(m_directory.Read("Priority.xml"), QByteArray(document.bytes.data(), int(size)));
    }
}

QTEST_MAIN(tst_TruncatedFile)
#include "tst_truncatedfile.moc"
