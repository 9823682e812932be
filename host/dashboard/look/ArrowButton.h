#ifndef ARROWBUTTON_H
#define ARROWBUTTON_H

#include <QToolButton>

class QAction;

/** A small button that does what an action does, with a drawing in the place of its text. */
class ArrowButton : public QToolButton
{
    Q_OBJECT

public:
    enum Shape { Up, Down, Top, End, Cross, Plus };

    /** @param action  not owned; outlives the button. */
    ArrowButton(const char *name, QAction *action, Shape shape);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Shape m_shape;
};

#endif
