#include "Screens.h"

#include <Row.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTableWidget>
#include <QTextDocument>
#include <QTextLayout>
#include <QtTest>

namespace
{

int WidthOf(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

QString Told(const QWidget *widget, const QString &text, int needed, int there)
{
    return QString::fromLatin1("%1: \"%2\" needs %3 pixels of %4")
        .arg(widget->objectName(), text)
        .arg(needed)
        .arg(there);
}

/** Lines of another font than the usual one are a little higher, and lose nothing that can be seen. */
const int leading = 2;

void CheckWidth(const QWidget *widget, const QString &text, int needed, int there, QStringList *misfits)
{
    if (needed > there && widget->toolTip().isEmpty()) {
        misfits->append(Told(widget, text, needed, there));
    }
}

/** The size of a label's text when its lines are broken where the label breaks them. */
QSize SizeOfText(const QLabel *label, int width)
{
    if (label->textFormat() == Qt::RichText) {
        QTextDocument document;
        document.setDefaultFont(label->font());
        document.setDocumentMargin(0);
        document.setHtml(label->text());
        document.setTextWidth(width);
        return QSizeF(document.idealWidth(), document.size().height()).toSize();
    }
    const int flags = label->wordWrap() ? static_cast<int>(Qt::TextWordWrap) : 0;
    return label->fontMetrics().boundingRect(QRect(0, 0, width, 1), flags, label->text()).size();
}

void CheckLabel(const QLabel *label, QStringList *misfits)
{
    const QString text = label->text();
    if (text.isEmpty()) {
        return;
    }
    const QRect place =
        label->contentsRect().adjusted(label->margin(), label->margin(), -label->margin(), -label->margin());
    const QSize size = SizeOfText(label, place.width());
    // The blank at which a line is broken may stand in the label's margin.
    const int width = label->wordWrap() ? label->width() - 2 * label->margin() : place.width();
    CheckWidth(label, text, size.width(), width, misfits);
    if (size.height() > place.height() + leading) {
        misfits->append(Told(label, text, size.height(), place.height()));
    }
    const bool isCutOff = text.endsWith(QChar(0x2026));
    if (isCutOff && label->toolTip().isEmpty() && label->parentWidget()->toolTip().isEmpty()) {
        misfits->append(label->objectName() + QLatin1String(" is cut off and has no tool tip"));
    }
}

void CheckButton(const QPushButton *button, QStringList *misfits)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const QRect place = button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
    const int arrow =
        button->menu() ? button->style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, button) : 0;
    CheckWidth(button, button->text(), WidthOf(button, button->text()) + arrow, place.width(), misfits);
}

void CheckBox(const QComboBox *box, QStringList *misfits)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect place =
        box->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, box);
    for (int i = 0; i < box->count() && !box->isEditable(); ++i) {
        CheckWidth(box, box->itemText(i), WidthOf(box, box->itemText(i)), place.width(), misfits);
    }
}

void CheckHeader(const QHeaderView *header, QStringList *misfits)
{
    for (int i = 0; i < header->count(); ++i) {
        const QString text = header->model()->headerData(i, header->orientation()).toString();
        CheckWidth(header, text, header->sectionSizeHint(i), header->sectionSize(i), misfits);
    }
}

/** The names of networks may be cut off, what is told of them may not. */
void CheckEffects(const QTableWidget *table, QStringList *misfits)
{
    const int column = table->columnCount() - 1;
    const int margin = 2 * (table->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, table) + 1);
    for (int row = 0; row < table->rowCount(); ++row) {
        const QString text = table->item(row, column)->text();
        const int needed = WidthOf(table, text) + margin;
        if (needed > table->columnWidth(column)) {
            misfits->append(Told(table, text, needed, table->columnWidth(column)));
        }
    }
}

void CheckPageList(const QListWidget *list, QStringList *misfits)
{
    const int frame = list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list) + 1;
    for (int i = 0; i < list->count(); ++i) {
        const QRect place = list->visualItemRect(list->item(i)).adjusted(frame, 0, -frame, 0);
        const QString text = list->item(i)->text();
        const QSize size =
            list->fontMetrics().boundingRect(QRect(0, 0, place.width(), 1), Qt::TextWordWrap, text).size();
        CheckWidth(list, text, size.width(), place.width(), misfits);
        if (size.height() > place.height() + leading) {
            misfits->append(Told(list, text, size.height(), place.height()));
        }
    }
}

bool HasVisibleChildren(const QWidget *widget)
{
    foreach (const QWidget *child, widget->findChildren<QWidget *>()) {
        if (child->isVisible() && !child->isWindow()) {
            return true;
        }
    }
    return false;
}

/** Layouts that have too little room let widgets stand over the edge or over one another. */
void CheckPlace(QWidget *widget, QStringList *misfits)
{
    const QWidget *parent = widget->parentWidget();
    if (!parent->layout() || parent->layout()->indexOf(widget) < 0 || HasVisibleChildren(widget)) {
        return;
    }
    if (!parent->rect().contains(widget->geometry())) {
        misfits->append(widget->objectName() + QLatin1String(" stands over the edge of ") +
                        parent->objectName());
    }
    foreach (const QWidget *other, parent->findChildren<QWidget *>()) {
        if (other != widget && other->parentWidget() == parent && other->isVisible() && !other->isWindow() &&
            !HasVisibleChildren(other) && other->geometry().intersects(widget->geometry())) {
            misfits->append(widget->objectName() + QLatin1String(" stands over ") + other->objectName());
        }
    }
}

QStringList Misfits(const QWidget *window)
{
    QStringList misfits;
    QList<QWidget *> widgets = window->findChildren<QWidget *>();
    foreach (QWidget *widget, widgets) {
        if (!widget->isVisible() || widget->window() != window) {
            continue;
        }
        CheckPlace(widget, &misfits);
        if (const QLabel *label = qobject_cast<const QLabel *>(widget)) {
            CheckLabel(label, &misfits);
        } else if (const QPushButton *button = qobject_cast<const QPushButton *>(widget)) {
            CheckButton(button, &misfits);
        } else if (const QComboBox *box = qobject_cast<const QComboBox *>(widget)) {
            CheckBox(box, &misfits);
        } else if (const QHeaderView *header = qobject_cast<const QHeaderView *>(widget)) {
            CheckHeader(header, &misfits);
        } else if (widget->objectName() == QLatin1String("importList")) {
            CheckEffects(qobject_cast<const QTableWidget *>(widget), &misfits);
        } else if (widget->objectName() == QLatin1String("pageList")) {
            CheckPageList(qobject_cast<const QListWidget *>(widget), &misfits);
        }
    }
    return misfits;
}

/** Whether a screen has the priority page or a dialog of it on it, whose sizes and places are given in
 * pixels. */
bool HasFixedPlaces(const QString &screen)
{
    return screen == QLatin1String("settings, priority page") || screen == QLatin1String("add dialog") ||
           screen.startsWith(QLatin1String("new dialog"));
}

/** The characters of text for which no font that is installed has a glyph. */
QString Unprintable(const QString &text)
{
    QString unprintable;
    foreach (const QChar character, text) {
        QTextLayout layout(QString(character), QApplication::font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        foreach (const QGlyphRun &run, layout.glyphRuns()) {
            if (run.glyphIndexes().contains(0) && !unprintable.contains(character)) {
                unprintable.append(character);
            }
        }
    }
    return unprintable;
}

} // namespace

/** In every language, what is on the screens can be read in full. */
class TestCaptions : public QObject
{
    Q_OBJECT

private slots:
    void captionsFitTheirPlaces_data();
    void captionsFitTheirPlaces();
    void captionsFitWithALargeFont_data();
    void captionsFitWithALargeFont();
    void fontsHaveTheCharacters_data();
    void fontsHaveTheCharacters();
    void explanationHasThreeLinesAtMost_data() { fontsHaveTheCharacters_data(); }
    void explanationHasThreeLinesAtMost();
    void noteHasTwoLinesAtMost_data();
    void noteHasTwoLinesAtMost();
    void menusHaveEachMnemonicOnce_data() { fontsHaveTheCharacters_data(); }
    void menusHaveEachMnemonicOnce();
    void pageHasEachMnemonicOnce_data() { fontsHaveTheCharacters_data(); }
    void pageHasEachMnemonicOnce();

private:
    Screens m_screens;
};

void TestCaptions::captionsFitTheirPlaces_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("screen");
    foreach (const QString &language, Screens::Languages()) {
        foreach (const QString &screen, Screens::Names()) {
            Row((language + QLatin1String(", ") + screen).toLatin1().constData(), language, screen);
        }
    }
}

void TestCaptions::captionsFitTheirPlaces()
{
    QFETCH(QString, language);
    QFETCH(QString, screen);
    QStringList misfits;
    m_screens.Show(screen, language, [&misfits](const QWidget *window) { misfits = Misfits(window); });
    QVERIFY2(misfits.isEmpty(), misfits.join(QLatin1String("\n    ")).toUtf8().constData());
}

void TestCaptions::captionsFitWithALargeFont_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("screen");
    const char *const languages[] = {"en", "ar", "de"};
    for (const char *language : languages) {
        foreach (const QString &screen, Screens::Names()) {
            if (!HasFixedPlaces(screen)) {
                Row((QLatin1String(language) + QLatin1String(", ") + screen).toLatin1().constData(),
                    QString(QLatin1String(language)), screen);
            }
        }
    }
}

void TestCaptions::captionsFitWithALargeFont()
{
    QFETCH(QString, language);
    QFETCH(QString, screen);
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 1.4);
    QApplication::setFont(large);
    QStringList misfits;
    m_screens.Show(screen, language, [&misfits](const QWidget *window) { misfits = Misfits(window); });
    QApplication::setFont(usual);
    QVERIFY2(misfits.isEmpty(), misfits.join(QLatin1String("\n    ")).toUtf8().constData());
}

void TestCaptions::fontsHaveTheCharacters_data()
{
    QTest::addColumn<QString>("language");
    foreach (const QString &language, Screens::Languages()) {
        Row(language.toLatin1().constData(), language);
    }
}

void TestCaptions::fontsHaveTheCharacters()
{
    QFETCH(QString, language);
    QString texts;
    const char *const screens[] = {"list", "settings, priority page", "notice, WPA key", "connect dialog"};
    for (const char *screen : screens) {
        m_screens.Show(QLatin1String(screen), language, [&texts](const QWidget *window) {
            foreach (const QLabel *label, window->findChildren<QLabel *>()) {
                texts += label->text();
            }
        });
    }
    QVERIFY(texts.size() > 20);
    const QString unprintable = Unprintable(texts);
    QVERIFY2(
        unprintable.isEmpty(),
        (unprintable + QLatin1String(": install a font for them, such as fonts-dejavu-core or, for Chinese "
                                     "and Japanese, fonts-wqy-microhei"))
            .toUtf8()
            .constData());
}

void TestCaptions::explanationHasThreeLinesAtMost()
{
    // Every line more is half a row less of the list below it.
    QFETCH(QString, language);
    int lines = 0;
    m_screens.Show(QLatin1String("settings, priority page"), language, [&lines](const QWidget *window) {
        const QLabel *label = window->findChild<QLabel *>(QLatin1String("infoLabel"));
        lines = SizeOfText(label, label->width()).height() / label->fontMetrics().lineSpacing();
    });
    QVERIFY2(lines >= 1 && lines <= 3, QByteArray::number(lines).constData());
}

void TestCaptions::noteHasTwoLinesAtMost_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("screen");
    const char *const screens[] = {"list", "list, NetworkManager"};
    foreach (const QString &language, Screens::Languages()) {
        for (const char *screen : screens) {
            Row((language.toLatin1() + ", " + screen).constData(), language, QString(QLatin1String(screen)));
        }
    }
}

void TestCaptions::noteHasTwoLinesAtMost()
{
    QFETCH(QString, language);
    QFETCH(QString, screen);
    int lines = 0;
    m_screens.Show(screen, language, [&lines](const QWidget *window) {
        const QLabel *label = window->findChild<QLabel *>(QLatin1String("noteLabel"));
        lines =
            SizeOfText(label, label->contentsRect().width()).height() / label->fontMetrics().lineSpacing();
    });
    QVERIFY2(lines >= 1 && lines <= 2, QByteArray::number(lines).constData());
}

void TestCaptions::menusHaveEachMnemonicOnce()
{
    QFETCH(QString, language);
    QStringList problems;
    m_screens.Show(QLatin1String("list"), language, [&problems](const QWidget *window) {
        QList<QWidget *> menus;
        foreach (QMenu *menu, window->findChildren<QMenu *>()) {
            // Languages are called by names, which have none.
            if (menu->objectName() != QLatin1String("languageMenu")) {
                menus.append(menu);
            }
        }
        menus.append(window->findChild<QWidget *>(QLatin1String("menuBar")));
        foreach (const QWidget *menu, menus) {
            QStringList keys;
            foreach (const QAction *action, menu->actions()) {
                if (action->isSeparator()) {
                    continue;
                }
                const QString key =
                    action->text().mid(action->text().indexOf(QLatin1Char('&')) + 1, 1).toLower();
                if (!action->text().contains(QLatin1Char('&')) || keys.contains(key)) {
                    problems.append(menu->objectName() + QLatin1String(": ") + action->text());
                }
                keys.append(key);
            }
        }
    });
    QVERIFY2(problems.isEmpty(), problems.join(QLatin1String("\n    ")).toUtf8().constData());
}

void TestCaptions::pageHasEachMnemonicOnce()
{
    QFETCH(QString, language);
    QStringList keys;
    m_screens.Show(QLatin1String("settings, priority page"), language, [&keys](const QWidget *window) {
        foreach (const QAbstractButton *button, window->findChildren<QAbstractButton *>()) {
            const int ampersand = button->text().indexOf(QLatin1Char('&'));
            if (ampersand >= 0) {
                keys.append(button->text().mid(ampersand + 1, 1).toLower());
            }
        }
    });
    // Up, Down, Add, Remove and New.
    QCOMPARE(keys.size(), 5);
    QCOMPARE(keys.removeDuplicates(), 0);
}

QTEST_MAIN(TestCaptions)
#include "tst_captions.moc"
