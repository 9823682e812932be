#ifndef PAINTWATCH_H
#define PAINTWATCH_H

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

/** Tells when all that a change to a widget leads to is done: deletions, layout, painting. */
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget *widget) : m_painted(false) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

    /** Returns when the widget was painted and nothing is left to do. */
    void Await()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        bool busy = true;
        while (busy || !m_painted) {
            busy = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
        }
        m_painted = false;
    }

private:
    bool m_painted;
};

#endif
