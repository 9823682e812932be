#ifndef TOOLKITCOMPAT_H
#define TOOLKITCOMPAT_H

/*
 * Everything in which the supported generations of the toolkit differ, as named helpers. No other file looks
 * at the toolkit's version. Comparisons use plain hexadecimal numbers because the oldest moc expands no
 * function-like macro.
 */

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QString>
#include <QWidget>

#include <cstdarg>

#if QT_VERSION < 0x050000
#include <QTextDocument>
#endif
#if QT_VERSION < 0x060000
#include <QRegExpValidator>
#include <QTextCodec>
#else
#include <QRegularExpressionValidator>
#include <QStringDecoder>
#endif
#if QT_VERSION >= 0x050000
#include <QGuiApplication>
#endif
#if QT_VERSION >= 0x050f00
#include <QWindow>
#endif

namespace ToolkitCompat
{

/** printf formatting; a text for %s is read as UTF-8 by every generation. */
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

/** Whether bytes, from the first to the last, are UTF-8. */
inline bool IsUtf8(const QByteArray &bytes)
{
#if QT_VERSION >= 0x060000
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(bytes);
    Q_UNUSED(text);
    return !decoder.hasError();
#else
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
#endif
}

/** Lets negative contents margins of widget take effect, as they do without asking in the oldest generation.
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

/** Where the translations of the toolkit's own texts are installed. */
inline QString TranslationDirectory()
{
#if QT_VERSION >= 0x060000
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
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

/** Whether there is something to show windows on; the toolkit aborts the program when there is nothing. */
inline bool HasDisplay()
{
#if QT_VERSION >= 0x050000
    return !qgetenv("QT_QPA_PLATFORM").isEmpty() || !qgetenv("DISPLAY").isEmpty() ||
           !qgetenv("WAYLAND_DISPLAY").isEmpty();
#else
    return !qgetenv("DISPLAY").isEmpty();
#endif
}

/**
 * Lets windows follow the scale of their screens, 150 % as well as 200 %. Call it before the QApplication is
 * made. The oldest generation knows no scale.
 */
inline void FollowScreenScale()
{
#if QT_VERSION >= 0x050e00
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#endif
#if QT_VERSION >= 0x050600 && QT_VERSION < 0x060000
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/** An empty image to paint something of that size on, with as many pixels as the widget's screen would have.
 */
inline QImage ImageFor(const QWidget *widget, const QSize &size)
{
#if QT_VERSION >= 0x050600
    const qreal scale = widget->devicePixelRatioF();
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
#else
    Q_UNUSED(widget);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
#endif
    image.fill(0);
    return image;
}

/** Gives the keyboard to a window, before this returns where the window system is quick enough. */
inline void ActivateWindow(QWidget *window)
{
#if QT_VERSION >= 0x060500
    window->activateWindow();
    QGuiApplication::sync();
#else
    QApplication::setActiveWindow(window);
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

/** Receives every message of qDebug and its relatives; may be called on any thread. */
typedef void (*TextMessageHandler)(QtMsgType type, const QString &text);

inline TextMessageHandler &CurrentTextMessageHandler()
{
    static TextMessageHandler handler = nullptr;
    return handler;
}

#if QT_VERSION >= 0x050000
inline void ForwardMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    CurrentTextMessageHandler()(type, text);
}
#else
inline void ForwardMessage(QtMsgType type, const char *text)
{
    CurrentTextMessageHandler()(type, QString::fromLocal8Bit(text));
}
#endif

/** Sends all messages to handler instead of the standard error output; null restores the toolkit's own
 * handling. */
inline void InstallTextMessageHandler(TextMessageHandler handler)
{
    CurrentTextMessageHandler() = handler;
#if QT_VERSION >= 0x050000
    qInstallMessageHandler(handler ? ForwardMessage : nullptr);
#else
    qInstallMsgHandler(handler ? ForwardMessage : nullptr);
#endif
}

} // namespace ToolkitCompat

#endif
