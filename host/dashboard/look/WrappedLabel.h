#ifndef WRAPPEDLABEL_H
#define WRAPPEDLABEL_H

#include <QLabel>

/** Plain text over as many lines as it needs, all of which can be seen from right to left too. */
class WrappedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit WrappedLabel(const char *name);

protected:
    void changeEvent(QEvent *event) override;

private:
    void MakeRoom();
};

#endif
