#include "Apart.h"

#include <QHash>
#include <QLibrary>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QtTest>

/**
 * What a compiler makes of the contracts, against the literal tables, records and identifiers that hosts and
 * siblings were built with.
 */
class ContractsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void TextsAndListsHaveTheSizeOfTheirGeneration();
    void OperationsStandAtTheirPositions_data();
    void OperationsStandAtTheirPositions();
    void FieldsStandAtTheirOffsets_data();
    void FieldsStandAtTheirOffsets();
    void RecordsHaveTheirSizes_data();
    void RecordsHaveTheirSizes();
    void IdentifiersAreTheirTexts_data();
    void IdentifiersAreTheirTexts();
    void FramesAddTheirFieldsOnly_data();
    void FramesAddTheirFieldsOnly();
    void FramesAddNoOperation_data();
    void FramesAddNoOperation();
    void NothingElseIsDeclared();

private:
    void CompareWithRow() const;

    QLibrary m_library;
    QMap<QString, QString> m_facts;
};

namespace
{

struct Fact {
    QString what;
    QString value;
};

typedef QList<Fact> Facts;

void Add(Facts *facts, const QString &what, const QString &value)
{
    Fact fact;
    fact.what = what;
    fact.value = value;
    facts->append(fact);
}

void Add(Facts *facts, const QString &what, int value)
{
    Add(facts, what, QString::number(value));
}

const int word = static_cast<int>(sizeof(void *));
const int numberSize = 4;

/**
 * A text is a pointer to shared data in the fourth and fifth generation; in the sixth it is a pointer to the
 * data, a pointer to the first character, and the length. A list is the same of its elements.
 */
int TextSize()
{
    return QString(qVersion()).section('.', 0, 0).toInt() < 6 ? word : 3 * word;
}

int RoundedUpToWords(int bytes)
{
    return (bytes + word - 1) / word * word;
}

/** The operations of an interface, which stand in its table one after the other from a position on. */
void AddOperations(Facts *facts, const QString &interfaceName, int position, const QStringList &operations)
{
    for (int i = 0; i < operations.size(); ++i) {
        Add(facts, interfaceName + "::" + operations.at(i), position + i);
    }
}

QStringList Names(const char *names)
{
    return QString(names).split(' ');
}

Facts Positions()
{
    const int first = 3;
    const QStringList root = Names("Init GetPluginType GetCLSID GetVersion GetPluginName IsAllowRelease "
                                   "QueryInterface");
    Facts facts;
    AddOperations(&facts, "IBaseInterface", first, Names("Release GetLastError (end)"));
    AddOperations(&facts, "IDestroyEvent", first, Names("OnDestroy UnSDKRegisterEvent (end)"));
    AddOperations(&facts, "IBasePlugin", first, Names("Release GetLastError") + root + QStringList("(end)"));
    Add(&facts, "IBasePlugin::OnDestroy", "3 of part 2");
    Add(&facts, "IBasePlugin::UnSDKRegisterEvent", "4 of part 2");
    AddOperations(&facts, "IUIPlugin", first,
                  Names("Release GetLastError") + root +
                      Names("ShowWindow DoModal Hide FitSize IsReady ChangeLang (end)"));
    Add(&facts, "IUIPlugin::OnDestroy", "3 of part 2");
    Add(&facts, "IUIPlugin::UnSDKRegisterEvent", "4 of part 2");
    AddOperations(&facts, "INotify", first, Names("Notify (end)"));
    AddOperations(&facts, "ISettingUIPlugin", first,
                  Names("OnClickSettingOkButton OnClickSettingCancelButton ShowSettingDialog GetModuleName "
                        "HideSetting IsActiveSetting (end)"));
    AddOperations(&facts, "IPriorityPlugin", first,
                  Names("GetPriorityList AddPriorityList AddTopPriority (end)"));
    AddOperations(&facts, "IWLANUIPlugin", first,
                  Names("Reserved3 Reserved4 Reserved5 Reserved6 CreateWLANProfile GetRememberedList "
                        "Reserved9 GetProfileByName GetConfigData Reserved12 Reserved13 Reserved14 "
                        "Reserved15 Reserved16 Reserved17 Reserved18 Reserved19 Reserved20 Reserved21 "
                        "GetAvailableNetworks GetNetworkProfile (end)"));
    AddOperations(&facts, "IPluginContainer", first, Names("GetPluginObject (end)"));
    return facts;
}

void AddFields(Facts *facts, const QString &record, int offset, int size, const QStringList &fields)
{
    for (int i = 0; i < fields.size(); ++i) {
        Add(facts, record + '.' + fields.at(i), offset + i * size);
    }
}

Facts Offsets()
{
    Facts facts;
    AddFields(&facts, "PriorityList", 0, TextSize(), Names("name type"));
    AddFields(&facts, "WLANProfile", 0, TextSize(),
              Names("profileName text1 text2 text3 text4 ssid bssType connectionMode authentication "
                    "encryption keyType keyFlag keyMaterial keyIndex text14 readOnly text16 text17"));
    AddFields(&facts, "WlanAvilableNetworkInfo", 0, TextSize(), Names("networkName"));
    AddFields(&facts, "WlanAvilableNetworkInfo", TextSize(), numberSize,
              Names("value1 value2 value3 value4 value5"));
    AddFields(&facts, "RememberedList", 0, TextSize(), Names("name type"));
    AddFields(&facts, "WisprInfo", 0, TextSize(), Names("wisprText1 wisprText2 wisprText3"));
    AddFields(&facts, "WLANConfigData", 0, word, Names("settings"));
    AddFields(&facts, "WLANConfigData", word, TextSize(),
              Names("authenticationList textList2 textList3 wisprList"));
    return facts;
}

Facts Sizes()
{
    Facts facts;
    Add(&facts, "size of PriorityList", 2 * TextSize());
    Add(&facts, "size of WLANProfile", 18 * TextSize());
    Add(&facts, "size of WlanAvilableNetworkInfo", RoundedUpToWords(TextSize() + 5 * numberSize));
    Add(&facts, "size of RememberedList", 2 * TextSize());
    Add(&facts, "size of WisprInfo", 3 * TextSize());
    Add(&facts, "size of WLANConfigData", word + 4 * TextSize());
    return facts;
}

Facts Identifiers()
{
    Facts facts;
    Add(&facts, "identifier of IBasePlugin", "com.torvik.netquillforge.plugin.IBasePlugin");
    Add(&facts, "identifier of IUIPlugin", "com.torvik.netquillforge.plugin.IUIPlugin");
    Add(&facts, "identifier of INotify", "com.torvik.netquillforge.plugin.INotify");
    Add(&facts, "identifier of ISettingUIPlugin", "com.torvik.netquillforge.plugin.ISettingUIPlugin");
    Add(&facts, "identifier of IPriorityPlugin", "com.torvik.netquillforge.plugin.IPriorityPlugin");
    Add(&facts, "identifier of IWLANUIPlugin", "com.torvik.netquillforge.plugin.IWLANUIPlugin");
    return facts;
}

Facts Frames()
{
    Facts facts;
    Add(&facts, "words that ExtendDialog adds", 1);
    Add(&facts, "words that ExtendLineEdit adds", 0);
    Add(&facts, "enWidgetTypeDialog", 1);
    return facts;
}

QStringList FrameEnds()
{
    return Names("QDialog::(end) ExtendDialog::(end) QLineEdit::(end) ExtendLineEdit::(end)");
}

void AddRows(const Facts &facts)
{
    QTest::addColumn<QString>("value");
    for (int i = 0; i < facts.size(); ++i) {
        QTest::newRow(facts.at(i).what.toLatin1()) << facts.at(i).value;
    }
}

} // namespace

void ContractsTest::initTestCase()
{
    m_library.setFileName(BUILD_DIRECTORY "/tests/boundary/libBoundaryContracts.so");
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    typedef const char *(*Contracts)();
    const Contracts contracts = reinterpret_cast<Contracts>(m_library.resolve("boundary_contracts"));
    QVERIFY(contracts);
    const QStringList lines = QString(contracts()).trimmed().split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        m_facts.insert(lines.at(i).section(" = ", 0, 0), lines.at(i).section(" = ", 1));
    }
    QCOMPARE(m_facts.size(), lines.size());
}

void ContractsTest::CompareWithRow() const
{
    QFETCH(QString, value);
    QCOMPARE(m_facts.value(QTest::currentDataTag(), "not declared"), value);
}

void ContractsTest::TextsAndListsHaveTheSizeOfTheirGeneration()
{
    QCOMPARE(static_cast<int>(sizeof(QString)), TextSize());
    QCOMPARE(static_cast<int>(sizeof(QList<QString>)), TextSize());
    QCOMPARE(static_cast<int>(sizeof(QHash<QString, QString>)), word);
    QCOMPARE(static_cast<int>(sizeof(int)), numberSize);
}

void ContractsTest::OperationsStandAtTheirPositions_data()
{
    AddRows(Positions());
}

void ContractsTest::OperationsStandAtTheirPositions()
{
    CompareWithRow();
}

void ContractsTest::FieldsStandAtTheirOffsets_data()
{
    AddRows(Offsets());
}

void ContractsTest::FieldsStandAtTheirOffsets()
{
    CompareWithRow();
}

void ContractsTest::RecordsHaveTheirSizes_data()
{
    AddRows(Sizes());
}

void ContractsTest::RecordsHaveTheirSizes()
{
    CompareWithRow();
}

void ContractsTest::IdentifiersAreTheirTexts_data()
{
    AddRows(Identifiers());
}

void ContractsTest::IdentifiersAreTheirTexts()
{
    CompareWithRow();
}

void ContractsTest::FramesAddTheirFieldsOnly_data()
{
    AddRows(Frames());
}

void ContractsTest::FramesAddTheirFieldsOnly()
{
    CompareWithRow();
}

void ContractsTest::FramesAddNoOperation_data()
{
    QTest::addColumn<QString>("base");
    QTest::newRow("ExtendDialog") << "QDialog";
    QTest::newRow("ExtendLineEdit") << "QLineEdit";
}

void ContractsTest::FramesAddNoOperation()
{
    QFETCH(QString, base);
    const QString end = m_facts.value(base + "::(end)");
    QVERIFY2(end.toInt() > 2, qPrintable(end));
    QCOMPARE(m_facts.value(QString(QTest::currentDataTag()) + "::(end)"), end);
}

void ContractsTest::NothingElseIsDeclared()
{
    const Facts facts = Positions() + Offsets() + Sizes() + Identifiers() + Frames();
    QStringList expected = FrameEnds();
    for (int i = 0; i < facts.size(); ++i) {
        expected.append(facts.at(i).what);
    }
    expected.sort();
    const QStringList declared = m_facts.keys();
    QCOMPARE(declared.join("\n"), expected.join("\n"));
}

QTEST_APPLESS_MAIN(ContractsTest)
#include "tst_contracts.moc"
