#include "TextButton.h"

#include "Tones.h"

#include <QPainter>
#include <QStyle>

TextButton::TextButton(const char *name, Look look) : m_look(look)
{
    setObjectName(QLatin1String(name));
}

QSize TextButton::sizeHint() const
{
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    return QPushButton::sizeHint().expandedTo(
        QSize(qMax(80, text.width() + 24), qMax(32, text.height() + 12)));
}

void TextButton::paintEvent(QPaintEvent *event)
{
    if (m_look == Plain || !isEnabled()) {
        QPushButton::paintEvent(event);
        return;
    }
    // Styles paint buttons lighter than the palette has them, and then their text can't be read.
    const Tones tones = Tones::OfApplication();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isDown() || underMouse() ? Tones::Blend(Qt::black, tones.filled, 0.15) : tones.filled);
    painter.drawRoundedRect(rect(), 4, 4);
    painter.setPen(tones.onFilled);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 3, 3);
    }
}
