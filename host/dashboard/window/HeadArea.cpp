#include "HeadArea.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <ElidedLabel.h>
#include <ListChangeText.h>
#include <OverviewText.h>
#include <SignalImage.h>
#include <TextButton.h>
#include <WrappedLabel.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QVBoxLayout>

namespace
{

/** What the drawing shows: what is in use, or coming up. */
Glyphs::Signal SignalOf(const Overview &overview)
{
    const ActiveConnection *inUse = overview.connections.InUse();
    const ActiveConnection *shown = inUse ? inUse : overview.ComingUp();
    Glyphs::Signal signal;
    signal.isInUse = inUse;
    signal.kind = shown ? Glyphs::KindOf(shown->type) : Glyphs::Wifi;
    signal.percent = shown ? shown->signal : -1;
    signal.reach = shown ? Glyphs::InReach : Glyphs::OutOfReach;
    if (!overview.connections.AreKnown()) {
        signal.reach = Glyphs::ReachNotKnown;
    }
    return signal;
}

} // namespace

HeadArea::HeadArea()
    : m_signal(new SignalImage(40)), m_headline(new ElidedLabel("headlineLabel")),
      m_explanation(new WrappedLabel("explanationLabel")),
      m_switch(new TextButton("switchButton", TextButton::Filled)),
      m_stop(new TextButton("stopButton", TextButton::Filled)), m_connect(new TextButton("connectButton"))
{
    setObjectName(QLatin1String("head"));
    m_explanation->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    connect(m_switch, &QPushButton::clicked, this, &HeadArea::SwitchWanted);
    connect(m_stop, &QPushButton::clicked, this, &HeadArea::StopWanted);
    connect(m_connect, &QPushButton::clicked, this, &HeadArea::ConnectWanted);

    QVBoxLayout *texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(m_headline);
    texts->addWidget(m_explanation);
    QHBoxLayout *told = new QHBoxLayout;
    told->setSpacing(12);
    told->addWidget(m_signal, 0, Qt::AlignTop);
    told->addLayout(texts, 1);
    QHBoxLayout *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    for (QPushButton *button : {m_switch, m_stop, m_connect}) {
        buttons->addWidget(button, 0, Qt::AlignTop);
    }
    m_parts = new QBoxLayout(QBoxLayout::LeftToRight, this);
    m_parts->setContentsMargins(0, 0, 0, 0);
    m_parts->setSpacing(16);
    m_parts->addLayout(told, 1);
    m_parts->addLayout(buttons);
    MakeFonts();
}

void HeadArea::Show(const Overview &overview, bool isSwitching, bool mayStop)
{
    m_signal->Show(SignalOf(overview));
    m_headline->SetFullText(OverviewText::Headline(overview));
    m_explanation->setText(OverviewText::Explanation(overview));
    setToolTip(m_explanation->text().toHtmlEscaped());
    ShowButtons(overview, isSwitching, mayStop);
}

void HeadArea::SetBrief(bool isBrief)
{
    m_explanation->setVisible(!isBrief);
    m_parts->setSpacing(isBrief ? 6 : 16);
}

void HeadArea::ShowButtons(const Overview &overview, bool isSwitching, bool mayStop)
{
    const bool areKnown = overview.connections.AreKnown();
    const bool canStop = mayStop && !overview.connections.InUse() && overview.ComingUp();
    m_switch->setVisible(overview.CanSwitch());
    m_switch->setEnabled(!isSwitching);
    if (overview.CanSwitch()) {
        const QString what =
            DashboardText("IDS_SWITCH_TO").arg(ListChangeText::Name(overview.Choice()->entry));
        QString caption = fontMetrics().elidedText(what, Qt::ElideRight, DialogParts::ForFont(220));
        m_switch->setText(caption.replace(QLatin1Char('&'), QLatin1String("&&")));
        m_switch->setAccessibleName(what);
        m_switch->setToolTip(what.toHtmlEscaped());
    }
    m_stop->setVisible(canStop);
    m_stop->setText(DashboardText("IDS_CONNECT_STOP"));
    m_connect->setText(DashboardText("IDS_BUTTON_CONNECT"));
    m_connect->setEnabled(areKnown);
    m_connect->setToolTip(areKnown ? QString() : OverviewText::Explanation(overview).toHtmlEscaped());
}

void HeadArea::MakeFonts()
{
    QFont large = DialogParts::Scaled(font(), 1.4);
    large.setBold(true);
    m_headline->setFont(large);
    // One line more or less below the headline would move the list.
    m_explanation->setMinimumHeight(2 * fontMetrics().lineSpacing());
}

void HeadArea::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        MakeFonts();
    }
}

void HeadArea::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool isNarrow = width() < DialogParts::ForFont(528);
    m_parts->setDirection(isNarrow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}
