#ifndef TEXTBUTTON_H
#define TEXTBUTTON_H

#include <QPushButton>

/** A button with room beside its text. Filled, it is the one that helps now. */
class TextButton : public QPushButton
{
    Q_OBJECT

public:
    enum Look { Plain, Filled };

    explicit TextButton(const char *name, Look look = Plain);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Look m_look;
};

#endif
