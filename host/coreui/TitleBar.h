#ifndef TITLEBAR_H
#define TITLEBAR_H

#include <QLabel>
#include <QPoint>
#include <QToolButton>
#include <QWidget>

/** Shows its text cut off with an ellipsis where there is no room, and never asks for more room because of
 * it. */
class TitleLabel : public QLabel
{
public:
    explicit TitleLabel(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/** The cross at the end of a title bar, in the palette's colours. */
class CloseButton : public QToolButton
{
public:
    explicit CloseButton(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/** Title and close button of a frameless window, which is moved by it. */
class TitleBar : public QWidget
{
public:
    TitleBar(QWidget *parent, bool closable);

    QLabel *Label() const { return m_label; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QLabel *m_label;
    bool m_dragging;
    QPoint m_grip;
};

#endif
