#include "DialogScene.h"

#include <Row.h>
#include <TraceCapture.h>

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QtTest>

static const char secret[] = "Sup3rSecretKey";

/** A key is handed to the WLAN plug-in and shows up nowhere else. */
class tst_KeySecrecy : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void typedKey_data();
    void typedKey();
    void keyOfAProfile();
    void keyOfARepeatedName();
    void keyFieldsShowNoCharacter();
    void keyCannotBeCopied();
    void keyIsNotReadOutByAssistiveTools();

private:
    QLineEdit *Field(const char *name) { return m_scene.Find<QLineEdit>(name); }
    /** Where the key can be read; empty is as it should be. */
    QString Leak(const TraceCapture &trace);

    DialogScene m_scene;
};

void tst_KeySecrecy::init()
{
    m_scene.Begin();
    m_scene.SetMethods(Words("open shared WPAPSK WPA2PSK WPA(EAP) WPA2(EAP)"));
}

void tst_KeySecrecy::cleanup()
{
    m_scene.End();
}

QString tst_KeySecrecy::Leak(const TraceCapture &trace)
{
    if (!trace.Lines().filter(secret).isEmpty()) {
        return "a trace line";
    }
    for (int i = 0; i < StandInHost::messages.size(); ++i) {
        const MessageCall &call = StandInHost::messages.at(i);
        if ((call.title + call.text + call.button1 + call.button2 + call.button3 + call.detail)
                .contains(secret)) {
            return "a message";
        }
    }
    if (m_scene.File().contains(secret)) {
        return "the priority file";
    }
    const QWidgetList widgets = QApplication::allWidgets();
    for (int i = 0; i < widgets.size(); ++i) {
        const QWidget *widget = widgets.at(i);
        const QString texts = widget->windowTitle() + widget->objectName() + widget->toolTip() +
                              widget->whatsThis() + widget->statusTip() + widget->accessibleName() +
                              widget->accessibleDescription();
        const QLabel *label = qobject_cast<const QLabel *>(widget);
        if (texts.contains(secret) || (label && label->text().contains(secret))) {
            return widget->objectName();
        }
    }
    return QString();
}

void tst_KeySecrecy::typedKey_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("encryption");
    QTest::addColumn<QString>("confirmed");
    QTest::addColumn<bool>("created");
    Row("created", "WPA2PSK", "CCMP", secret, true);
    Row("created without encryption", "open", "none", secret, true);
    Row("unfit for WEP", "open", "WEP", secret, false);
    Row("confirmed wrongly", "WPAPSK", "TKIP", QString(secret).toUpper(), false);
}

void tst_KeySecrecy::typedKey()
{
    QFETCH(QString, method);
    QFETCH(QString, encryption);
    QFETCH(QString, confirmed);
    QFETCH(bool, created);
    TraceCapture trace;
    m_scene.Open("newButton");
    QTest::keyClicks(m_scene.Box("networkNameBox"), "Mine");
    m_scene.Box("authenticationBox")->setCurrentIndex(m_scene.Box("authenticationBox")->findText(method));
    m_scene.Box("encryptionBox")->setCurrentIndex(m_scene.Box("encryptionBox")->findText(encryption));
    QTest::keyClicks(Field("keyEdit"), secret);
    QTest::keyClicks(Field("confirmKeyEdit"), confirmed);
    QCOMPARE(Field("keyEdit")->text(), QString(secret));
    QCOMPARE(Leak(trace), QString());
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.size(), created ? 1 : 0);
    QCOMPARE(StandInHost::messages.size(), created ? 0 : 1);
    if (created) {
        QCOMPARE(m_scene.wlan.created.first().keyMaterial, QString(secret));
    }
    QCOMPARE(Leak(trace), QString());
    m_scene.Click("newButton");
    QCOMPARE(Field("keyEdit")->text(), QString());
    QCOMPARE(Leak(trace), QString());
}

void tst_KeySecrecy::keyOfAProfile()
{
    m_scene.AddNetwork("N1");
    m_scene.wlan.profiles.insert("N1", Profile("WPA2PSK", "CCMP", "0", secret));
    TraceCapture trace;
    m_scene.Open("newButton");
    m_scene.Box("networkNameBox")->setCurrentIndex(0);
    QCOMPARE(Field("keyEdit")->text(), QString(secret));
    QCOMPARE(Leak(trace), QString());
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.wlan.created.first().keyMaterial, QString(secret));
    QCOMPARE(Leak(trace), QString());
}

void tst_KeySecrecy::keyOfARepeatedName()
{
    m_scene.Store(Words("Mine"));
    TraceCapture trace;
    m_scene.Open("newButton");
    QTest::keyClicks(m_scene.Box("networkNameBox"), "Mine");
    QTest::keyClicks(Field("keyEdit"), secret);
    QTest::keyClicks(Field("confirmKeyEdit"), secret);
    m_scene.Click("newOkButton");
    QCOMPARE(m_scene.MessageTexts(), QStringList("en:IDS_PROFILE_NAME_REPEAT"));
    QCOMPARE(Leak(trace), QString());
}

void tst_KeySecrecy::keyFieldsShowNoCharacter()
{
    m_scene.Open("newButton");
    const char *const keyFields[] = {"keyEdit", "confirmKeyEdit"};
    for (const char *name : keyFields) {
        QTest::keyClicks(Field(name), secret);
        QCOMPARE(Field(name)->displayText().size(), int(qstrlen(secret)));
        for (int i = 0; i < Field(name)->displayText().size(); ++i) {
            QVERIFY(!QString(secret).contains(Field(name)->displayText().at(i)));
        }
    }
}

void tst_KeySecrecy::keyCannotBeCopied()
{
    m_scene.Open("newButton");
    QTest::keyClicks(Field("keyEdit"), secret);
    Field("keyEdit")->selectAll();
    Field("keyEdit")->copy();
    QTest::keyClick(Field("keyEdit"), Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(m_scene.Box("networkNameBox"), Qt::Key_V, Qt::ControlModifier);
    QVERIFY(!m_scene.Box("networkNameBox")->currentText().contains(secret));
}

void tst_KeySecrecy::keyIsNotReadOutByAssistiveTools()
{
    m_scene.Open("newButton");
    const char *const keyFields[] = {"keyEdit", "confirmKeyEdit"};
    for (const char *name : keyFields) {
        QTest::keyClicks(Field(name), secret);
        QAccessibleInterface *field = QAccessible::queryAccessibleInterface(Field(name));
        QVERIFY(field);
        const QAccessible::Text texts[] = {QAccessible::Name, QAccessible::Description, QAccessible::Value,
                                           QAccessible::Help, QAccessible::Accelerator};
        for (const QAccessible::Text text : texts) {
            QVERIFY(!field->text(text).contains(secret));
        }
        // Were the field no password field to them, its value would be what is typed.
        QCOMPARE(field->text(QAccessible::Value).size(), int(qstrlen(secret)));
    }
}

QTEST_MAIN(tst_KeySecrecy)
#include "tst_keysecrecy.moc"
