#ifndef GLYPHS_H
#define GLYPHS_H

#include "Tones.h"

#include <QRectF>

class QPainter;

/** The small drawings of the main window. Each changes the painter's pen and brush. */
namespace Glyphs
{

/** Whether a network could be used now. */
enum Reach { InReach, OutOfReach, ReachNotKnown };

/** What is to be said of a row besides its words. */
enum Mark { NoMark, MarkInUse, MarkWarning, MarkError };

enum Kind { Wifi, Mobile, OtherKind };

/** @param type  as in the list: "1" is Wi-Fi, "2" mobile broadband. */
Kind KindOf(const QString &type);

/** A connection: arcs above a dot, bars, or a plug. */
struct Signal {
    Kind kind = Wifi;
    Reach reach = InReach;
    /** Percent, or -1. */
    int percent = -1;
    bool isInUse = false;
};

void Draw(QPainter *painter, const QRectF &square, const Signal &signal, const Tones &tones);

/** A tick, a triangle or a cross; ground is what is behind it. */
void Draw(QPainter *painter, const QRectF &square, Mark mark, const QColor &colour, const QColor &ground);

} // namespace Glyphs

#endif
