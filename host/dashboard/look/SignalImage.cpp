#include "SignalImage.h"

#include <QPainter>

SignalImage::SignalImage(int size)
{
    setObjectName(QLatin1String("signalImage"));
    setFixedSize(size, size);
}

void SignalImage::Show(const Glyphs::Signal &signal)
{
    m_signal = signal;
    update();
}

void SignalImage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Glyphs::Draw(&painter, QRectF(rect()), m_signal, Tones::OfApplication());
}
