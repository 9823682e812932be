#include "WrappedLabel.h"

#include <QEvent>

WrappedLabel::WrappedLabel(const char *name)
{
    setObjectName(QLatin1String(name));
    setWordWrap(true);
    setTextFormat(Qt::PlainText);
    MakeRoom();
}

void WrappedLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange) {
        MakeRoom();
    }
}

void WrappedLabel::MakeRoom()
{
    // Qt draws the blank that ends a right-to-left line with a left-to-right name at its right, and
    // all before it further left by that much: a full line would lose its end.
    const int blank = fontMetrics().size(Qt::TextSingleLine, QLatin1String(" ")).width() + 1;
    setContentsMargins(isRightToLeft() ? blank : 0, 0, 0, 0);
}
