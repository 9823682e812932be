#ifndef TOOLKITCOMPAT_H
#define TOOLKITCOMPAT_H

/*
 * Everything in which Qt 4.8, 5.15 and 6 differ for the plug-in and the host's two libraries, as named
 * helpers. None of these looks at Qt's version elsewhere. Comparisons use plain hexadecimal numbers because
 * the moc of Qt 4.8 expands no function-like macro.
 */

#include <QAbstractItemView>
#include <QComboBox>
#include <QMouseEvent>
#include <QString>
#include <QWidget>

#include <cstdarg>

#if QT_VERSION < 0x050000
#include <QTextDocument>
#endif
#if QT_VERSION < 0x060000
#include <QRegExpValidator>
#else
#include <QRegularExpressionValidator>
#endif
#if QT_VERSION >= 0x050f00
#include <QWindow>
#endif

namespace ToolkitCompat
{

/** printf formatting; a text for %s is read as UTF-8 by each of them. */
inline QString FormatText(const char *format, va_list arguments)
{
#if QT_VERSION >= 0x050500
    return QString::vasprintf(format, arguments);
#else
    QString text;
    text.vsprintf(format, arguments);
    return text;
#endif
}

/** The text of zero-terminated UTF-16 code units. */
inline QString FromUtf16(const unsigned short *units)
{
    return QString(reinterpret_cast<const QChar *>(units));
}

/** Lets negative contents margins of widget take effect, as they do without asking in Qt 4.8.
 */
inline void AllowNegativeMargins(QWidget *widget)
{
#if QT_VERSION >= 0x050a00
    widget->setAttribute(Qt::WA_ContentsMarginsRespectsSafeArea, false);
#else
    Q_UNUSED(widget);
#endif
}

/** Text that stays what it is where rich text is recognised, as in a tool tip. */
inline QString PlainTextAsHtml(const QString &text)
{
#if QT_VERSION >= 0x050000
    return text.toHtmlEscaped();
#else
    return Qt::escape(text);
#endif
}

/**
 * Lets the window system move a window along with the mouse button that is down, which is the only way under
 * some of them. False: it can't, and whoever asks moves the window itself.
 */
inline bool LetSystemMove(QWidget *window)
{
#if QT_VERSION >= 0x050f00
    return window->windowHandle() && window->windowHandle()->startSystemMove();
#else
    Q_UNUSED(window);
    return false;
#endif
}

/** Where the mouse was, in the screen's coordinates. */
inline QPoint GlobalPosition(const QMouseEvent *event)
{
#if QT_VERSION >= 0x060000
    return event->globalPosition().toPoint();
#else
    return event->globalPos();
#endif
}

/**
 * Calls receiver's slot, which takes a QString, with the text of every item of a box that can't be edited:
 * when the user's choice moves over the item in the open list, and when it becomes the current one.
 */
inline void ConnectItemTexts(QComboBox *box, QObject *receiver, const char *slot)
{
#if QT_VERSION >= 0x060000
    // The signals with texts can't be relied upon: that of a moving choice comes for a closed list, too, and
    // that of the current text not for another item of the same text.
    const QByteArray signature(slot);
    const QByteArray name = signature.mid(1, signature.indexOf('(') - 1);
    QObject::connect(box, &QComboBox::textHighlighted, receiver, [box, receiver, name](const QString &text) {
        if (box->view()->isVisible()) {
            QMetaObject::invokeMethod(receiver, name.constData(), Q_ARG(QString, text));
        }
    });
    QObject::connect(box, &QComboBox::currentIndexChanged, receiver, [box, receiver, name](int index) {
        QMetaObject::invokeMethod(receiver, name.constData(), Q_ARG(QString, box->itemText(index)));
    });
#else
    QObject::connect(box, SIGNAL(highlighted(QString)), receiver, slot);
    QObject::connect(box, SIGNAL(currentIndexChanged(QString)), receiver, slot);
#endif
}

#if QT_VERSION >= 0x060000
/** Knows characters by their 16-bit units, as QRegExp does: those beyond U+FFFF are no word characters. */
class UnitPatternValidator : public QRegularExpressionValidator
{
public:
    UnitPatternValidator(const QRegularExpression &pattern, QObject *parent)
        : QRegularExpressionValidator(pattern, parent)
    {
    }

    State validate(QString &text, int &position) const override
    {
        for (const QChar unit : text) {
            if (unit.isSurrogate()) {
                return Invalid;
            }
        }
        return QRegularExpressionValidator::validate(text, position);
    }
};
#endif

/**
 * Accepts texts that match pattern as a whole. A \w in pattern stands inside a set, and for the letters,
 * digits and marks of all scripts and the underscore.
 */
inline QValidator *NewPatternValidator(const QString &pattern, QObject *parent)
{
#if QT_VERSION >= 0x060000
    QString expression = pattern;
    expression.replace(QLatin1String("\\w"), QLatin1String("\\p{L}\\p{N}\\p{M}_"));
    return new UnitPatternValidator(QRegularExpression(expression), parent);
#else
    return new QRegExpValidator(QRegExp(pattern), parent);
#endif
}

} // namespace ToolkitCompat

#endif
