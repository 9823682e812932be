#ifndef SIGNALIMAGE_H
#define SIGNALIMAGE_H

#include "Glyphs.h"

#include <QWidget>

/** The drawing of one connection. */
class SignalImage : public QWidget
{
    Q_OBJECT

public:
    explicit SignalImage(int size);

    void Show(const Glyphs::Signal &signal);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Glyphs::Signal m_signal;
};

#endif
