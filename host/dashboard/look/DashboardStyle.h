#ifndef DASHBOARDSTYLE_H
#define DASHBOARDSTYLE_H

#include <QProxyStyle>

/**
 * What styles leave to be wished. Underlined letters of captions: where a language joins its letters, the
 * style beneath would draw the underlined one by itself and break the word, so none is underlined; the key
 * works as ever. Where the keyboard is, which Fusion doesn't show: on a button that is the default one with
 * or without the focus, and around a list in which no row is chosen.
 */
class DashboardStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** Takes ownership of style, which may be null: that of the system is meant then. The caller owns the
     * result. */
    static QStyle *Over(QStyle *style);

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;

private:
    explicit DashboardStyle(QStyle *style);
};

#endif
