#ifndef HEADAREA_H
#define HEADAREA_H

#include <Overview.h>

#include <QWidget>

class ElidedLabel;
class QBoxLayout;
class QLabel;
class SignalImage;
class TextButton;

/** What is in use and how that stands to the list, with the button that helps now. */
class HeadArea : public QWidget
{
    Q_OBJECT

public:
    HeadArea();

    /** @param isSwitching  an order is under way. @param mayStop  what is coming up can be stopped. */
    void Show(const Overview &overview, bool isSwitching, bool mayStop);

    /** Without the reason, where there is little room; it is the headline's tool tip then. */
    void SetBrief(bool isBrief);

signals:
    void SwitchWanted();
    void StopWanted();
    void ConnectWanted();

protected:
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void ShowButtons(const Overview &overview, bool isSwitching, bool mayStop);
    void MakeFonts();

    SignalImage *m_signal;
    ElidedLabel *m_headline;
    QLabel *m_explanation;
    TextButton *m_switch;
    TextButton *m_stop;
    TextButton *m_connect;
    QBoxLayout *m_parts;
};

#endif
