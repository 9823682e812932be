#ifndef TONES_H
#define TONES_H

#include <QColor>
#include <QList>
#include <QPalette>

/** The colours of the main window: those of the application's palette, each moved towards black or white
 * until it can be read on what it stands on. */
struct Tones {
    /** A warning or an error: its ground, its text, and its mark and frame. */
    struct Trouble {
        QColor ground;
        QColor text;
        QColor mark;
    };

    static Tones OfApplication();
    static Tones Of(const QPalette &palette);

    /** The ratio of two colours, as the Web Content Accessibility Guidelines define it: 1 to 21. */
    static qreal Contrast(const QColor &one, const QColor &other);

    /** colour, as far towards black or white as its ratio to each of grounds asks. */
    static QColor Readable(const QColor &colour, const QList<QColor> &grounds, qreal ratio);

    static QColor Blend(const QColor &over, const QColor &under, qreal share);

    // What a row stands on.
    QColor base;
    QColor selected;
    QColor inUse;

    // On each of these, and on the window.
    QColor text;
    QColor faint;
    QColor accent;
    QColor frame;

    QColor filled;
    QColor onFilled;
    QColor separator;
    Trouble warning;
    Trouble error;
};

#endif
