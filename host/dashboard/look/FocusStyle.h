#ifndef FOCUSSTYLE_H
#define FOCUSSTYLE_H

#include <QProxyStyle>

/**
 * Shows where the keyboard is where the style beneath doesn't: on a button that is the default one with or
 * without the focus, and around a list in which no row is chosen.
 */
class FocusStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** Takes ownership of style, which may be null: that of the system is meant then. The caller owns the
     * result. */
    static QStyle *Over(QStyle *style);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    explicit FocusStyle(QStyle *style);
};

#endif
