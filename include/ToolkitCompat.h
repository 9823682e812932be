#ifndef TOOLKITCOMPAT_H
#define TOOLKITCOMPAT_H

/*
 * Everything in which the supported generations of the toolkit differ, as named helpers. No other file looks
 * at the toolkit's version. Comparisons use plain hexadecimal numbers because the oldest moc expands no
 * function-like macro.
 */

#include <QString>
#include <QWidget>

#include <cstdarg>

#if QT_VERSION < 0x050000
#include <QTextDocument>
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
