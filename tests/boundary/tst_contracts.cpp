#include "Apart.h"

#include <Row.h>

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
    void WordsHaveTheirNumbers_data();
    void WordsHaveTheirNumbers();
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
const int timeSize = 8;

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
    AddOperations(&facts, "IConnectionPlugin", first,
                  Names("GetConnectionState GetActiveConnections GetProfiles GetVisibleNetworks "
                        "LookForNetworks ConnectProfile ConnectNetwork Disconnect GetAttempt CancelAttempt "
                        "GetProfileDetails Forget (end)"));
    AddOperations(&facts, "IOrderPlugin", first,
                  Names("Apply GetOutcome GetStanding SetConnectsByItself (end)"));
    AddOperations(&facts, "IPluginContainer", first, Names("GetPluginObject (end)"));
    return facts;
}

void AddFields(Facts *facts, const QString &record, int offset, int size, const QStringList &fields)
{
    for (int i = 0; i < fields.size(); ++i) {
        Add(facts, record + '.' + fields.at(i), offset + i * size);
    }
}

/** The records of connections: their fields, and for each a letter for its shape. */
struct Shape {
    const char *record;
    const char *fields;
    const char *shapes;
};

const Shape shapes[] = {
    {"ConnectionState", "sourceName source wifi mobile connectivity mayConnect", "Tnnnnb"},
    {"ActiveConnection", "id profileId name type network device stage signal carriesTraffic isVpn",
     "TTTTTTnnbb"},
    {"ConnectionProfile",
     "id name type network security device use signal failure failedAt lastConnected connectsByItself "
     "isHidden lastingId",
     "TTTTTTnnnwwbbT"},
    {"VisibleNetwork", "id name security protection signal profileIds isInUse", "TTTnnTb"},
    {"ConnectAttempt", "name profileId stage failedStage failure", "TTnnn"},
    {"ProfileDetails", "id boundDevice metered change users priority areUsersKnown isPriorityKnown",
     "TTnnTnbb"},
    {"OrderChange", "name before after", "Tnn"},
    {"OrderKept", "name obstacle profileId", "TnT"},
    {"OrderOutcome", "stage failure changes kept", "nnTT"},
};

/** Texts and lists (T) and times (w) begin at whole words, numbers (n) at whole numbers, flags (b) anywhere.
 */
void AddShapes(Facts *offsets, Facts *sizes)
{
    for (const Shape &shape : shapes) {
        const QStringList fields = Names(shape.fields);
        int offset = 0;
        for (int i = 0; i < fields.size(); ++i) {
            const char letter = shape.shapes[i];
            const int size = letter == 'T'   ? TextSize()
                             : letter == 'w' ? timeSize
                             : letter == 'n' ? numberSize
                                             : 1;
            const int step = letter == 'T' ? word : size;
            offset = (offset + step - 1) / step * step;
            Add(offsets, QString(shape.record) + '.' + fields.at(i), offset);
            offset += size;
        }
        Add(sizes, QString("size of ") + shape.record, RoundedUpToWords(offset));
    }
}

struct Number {
    const char *name;
    int value;
};

const Number numbers[] = {
    {"StageNotKnown", 0},
    {"StagePreparing", 1},
    {"StageAuthenticating", 2},
    {"StageGettingAddress", 3},
    {"StageConnected", 4},
    {"StageDisconnecting", 5},
    {"StageDisconnected", 6},
    {"StageFailed", 7},
    {"StageCancelled", 8},
    {"StageForgetting", 9},
    {"StageForgotten", 10},
    {"FailureNone", 0},
    {"FailureOther", 1},
    {"FailureWrongKey", 2},
    {"FailureKeyMissing", 3},
    {"FailureNoAnswer", 4},
    {"FailureNoAddress", 5},
    {"FailureRefused", 6},
    {"FailureSim", 7},
    {"FailureStopped", 8},
    {"FailureDevice", 9},
    {"FailureNotAllowed", 10},
    {"FailureSource", 11},
    {"FailureNotStored", 12},
    {"SourceNotKnown", 0},
    {"SourceGone", 1},
    {"SourceKnown", 2},
    {"RadioNotKnown", 0},
    {"RadioOn", 1},
    {"RadioOff", 2},
    {"RadioBlocked", 3},
    {"RadioMissing", 4},
    {"ConnectivityNotKnown", 0},
    {"ConnectivityNone", 1},
    {"ConnectivityPortal", 2},
    {"ConnectivityLimited", 3},
    {"ConnectivityFull", 4},
    {"UseNotKnown", 0},
    {"UsePossible", 1},
    {"UseHiddenIsTried", 2},
    {"UseOutOfRange", 3},
    {"UseOtherSecurity", 4},
    {"UseOtherDevice", 5},
    {"UseNoDevice", 6},
    {"UseDeviceOff", 7},
    {"UseDeviceBlocked", 8},
    {"UseSimLocked", 9},
    {"UseOtherUsers", 10},
    {"UseNoAccount", 11},
    {"ProtectionNotKnown", 0},
    {"ProtectionOpen", 1},
    {"ProtectionKey", 2},
    {"ProtectionWeakKey", 3},
    {"ProtectionAccount", 4},
    {"MeteredNotKnown", 0},
    {"MeteredYes", 1},
    {"MeteredNo", 2},
    {"MeteredGuessedYes", 3},
    {"MeteredGuessedNo", 4},
    {"ChangeNotKnown", 0},
    {"ChangeAllowed", 1},
    {"ChangeAfterPassword", 2},
    {"ChangeNotAllowed", 3},
    {"RefusedUnknown", -1},
    {"RefusedSource", -2},
    {"RefusedNotAllowed", -3},
    {"RefusedKey", -4},
    {"RefusedAccount", -5},
    {"ObstacleNotKnown", 0},
    {"ObstacleOtherUsers", 1},
    {"ObstaclePassing", 2},
    {"ObstacleNotAllowed", 3},
    {"ObstaclePassword", 4},
    {"ObstacleRefused", 5},
    {"ObstacleNoAnswer", 6},
    {"ObstacleOwnMetric", 7},
    {"StageOrderNotKnown", 0},
    {"StageOrderUnderWay", 1},
    {"StageOrderDone", 2},
    {"StageOrderFailed", 3},
    {"FailureOrderNone", 0},
    {"FailureOrderSource", 1},
    {"FailureOrderList", 2},
};

Facts Numbers()
{
    Facts facts;
    for (const Number &number : numbers) {
        Add(&facts, QString("number of ") + number.name, number.value);
    }
    return facts;
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
    Facts sizes;
    AddShapes(&facts, &sizes);
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
    Facts offsets;
    AddShapes(&offsets, &facts);
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
    Add(&facts, "identifier of IConnectionPlugin", "com.torvik.netquillforge.plugin.IConnectionPlugin");
    Add(&facts, "identifier of IOrderPlugin", "com.torvik.netquillforge.plugin.IOrderPlugin");
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
        Row(facts.at(i).what.toLatin1(), facts.at(i).value);
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

void ContractsTest::WordsHaveTheirNumbers_data()
{
    AddRows(Numbers());
}

void ContractsTest::WordsHaveTheirNumbers()
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
    Row("ExtendDialog", "QDialog");
    Row("ExtendLineEdit", "QLineEdit");
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
    const Facts facts = Positions() + Offsets() + Sizes() + Identifiers() + Numbers() + Frames();
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
