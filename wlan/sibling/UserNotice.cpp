#include "UserNotice.h"

#include <Change.h>
#include <CommonUtils.h>

#include <QApplication>
#include <QDialog>
#include <QPointer>

namespace
{

QString Text(const char *id)
{
    return Change::tr(QLatin1String(id), QLatin1String("WLAN"));
}

/** A name that stays whole and reads in its own direction where the text reads in the other one. */
QString InOwnDirection(const QString &name)
{
    const ushort leftToRightEmbedding = 0x202a;
    const ushort rightToLeftEmbedding = 0x202b;
    const ushort endOfEmbedding = 0x202c;
    return QChar(name.isRightToLeft() ? rightToLeftEmbedding : leftToRightEmbedding) + name +
           QChar(endOfEmbedding);
}

/** A text with a name in it, which may begin with the name and reads in the language's direction all the
 * same.
 */
QString WithDirection(const QString &text)
{
    const ushort leftToRightMark = 0x200e;
    const ushort rightToLeftMark = 0x200f;
    return QChar(QApplication::isRightToLeft() ? rightToLeftMark : leftToRightMark) + text;
}

/** What the user has to do with now; null where there is no window. */
QWidget *WindowInFront()
{
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) {
        return nullptr;
    }
    QWidgetList windows = QApplication::topLevelWidgets();
    windows.prepend(QApplication::activeWindow());
    windows.prepend(QApplication::activeModalWidget());
    for (int i = 0; i < windows.size(); ++i) {
        if (windows.at(i) && windows.at(i)->isVisible()) {
            return windows.at(i);
        }
    }
    return nullptr;
}

} // namespace

CUserNotice::CUserNotice(const char *title) : m_title(title), m_open(nullptr) {}

CUserNotice::~CUserNotice()
{
    if (m_open) {
        m_open->reject();
    }
}

bool CUserNotice::HasAudience()
{
    return WindowInFront() != nullptr;
}

void CUserNotice::Tell(const char *id, const QString &name, const QString &other)
{
    const Notice notice = {id, name, other};
    m_waiting.append(notice);
    QMetaObject::invokeMethod(this, "Show", Qt::QueuedConnection);
}

void CUserNotice::Show()
{
    const QPointer<CUserNotice> self(this);
    while (self && !m_open && !m_waiting.isEmpty()) {
        const Notice notice = m_waiting.takeFirst();
        QWidget *window = WindowInFront();
        if (!window) {
            continue;
        }
        QString text = Text(notice.id);
        text = notice.other.isNull() ? text.arg(InOwnDirection(notice.name))
                                     : text.arg(InOwnDirection(notice.name), InOwnDirection(notice.other));
        // This object may be gone when it returns.
        CommonUtils::ShowMessage(QMessageBox::Information, window, Text(m_title), WithDirection(text),
                                 QLatin1String("IDS_OK"), QString::fromLatin1(""), QString::fromLatin1(""),
                                 true, Qt::WindowCloseButtonHint, &m_open, QString(), true);
    }
}
