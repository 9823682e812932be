#include "Banner.h"

#include "TextButton.h"
#include "WrappedLabel.h"

#include <DashboardText.h>

#include <QAccessible>
#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QStyle>
#include <QVBoxLayout>

namespace
{

const int margin = 12;
const int markSize = 20;

Tones::Trouble ColoursOf(Glyphs::Mark mark)
{
    const Tones tones = Tones::OfApplication();
    return mark == Glyphs::MarkError ? tones.error : tones.warning;
}

QList<QByteArray> Kinds(const QList<Banner::Problem> &problems)
{
    QList<QByteArray> kinds;
    for (const Banner::Problem &problem : problems) {
        kinds.append(problem.kind);
    }
    return kinds;
}

} // namespace

Banner::Banner()
    : m_title(new WrappedLabel("bannerTitle")), m_text(new WrappedLabel("bannerText")),
      m_remedy(new TextButton("bannerRemedyButton")), m_next(new TextButton("bannerNextButton"))
{
    setObjectName(QLatin1String("banner"));
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    connect(m_remedy, &QPushButton::clicked, this, &Banner::Remedy);
    connect(m_next, &QPushButton::clicked, this, &Banner::ShowNext);

    QVBoxLayout *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_title);
    texts->addWidget(m_text);
    QHBoxLayout *layout = new QHBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(8);
    layout->addSpacing(markSize + layout->spacing());
    layout->addLayout(texts, 1);
    layout->addWidget(m_remedy, 0, Qt::AlignTop);
    layout->addWidget(m_next, 0, Qt::AlignTop);
    hide();
}

void Banner::Show(const QList<Problem> &problems)
{
    // What has been turned to stays, until others come or go.
    m_place = Kinds(problems) == Kinds(m_problems) ? m_place : 0;
    m_problems = problems;
    setVisible(!m_problems.isEmpty());
    if (!m_problems.isEmpty()) {
        ShowPlace();
    }
}

void Banner::ShowPlace()
{
    const Problem &problem = m_problems.at(m_place);
    const bool isNew = m_title->text() != problem.title || m_text->text() != problem.text;
    m_title->setText(problem.title);
    m_text->setText(problem.text);
    m_text->setVisible(!problem.text.isEmpty() && !m_isBrief);
    m_title->setToolTip(problem.text.toHtmlEscaped());
    QPalette readable = palette();
    readable.setColor(QPalette::WindowText, ColoursOf(problem.mark).text);
    m_title->setPalette(readable);
    m_text->setPalette(readable);
    m_remedy->setVisible(problem.remedy);
    if (problem.remedy) {
        m_remedy->setText(problem.remedy->text());
    }
    m_next->setVisible(m_problems.size() > 1);
    m_next->setText(DashboardText("IDS_BANNER_COUNT")
                        .arg(DashboardNumber(m_place + 1), DashboardNumber(m_problems.size())) +
                    QString::fromUtf8(" ›"));
    m_next->setAccessibleName(DashboardText("IDS_BANNER_NEXT"));
    m_next->setToolTip(DashboardText("IDS_BANNER_NEXT"));
    update();
    if (isNew) {
        QAccessibleEvent event(m_title, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    }
}

void Banner::SetBrief(bool isBrief)
{
    m_isBrief = isBrief;
    if (!m_problems.isEmpty()) {
        ShowPlace();
    }
}

void Banner::ShowNext()
{
    m_place = (m_place + 1) % m_problems.size();
    ShowPlace();
}

void Banner::Remedy()
{
    if (QAction *remedy = m_problems.value(m_place).remedy) {
        remedy->trigger();
    }
}

void Banner::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_problems.isEmpty()) {
        ShowPlace();
    }
}

void Banner::paintEvent(QPaintEvent *)
{
    const Glyphs::Mark mark = m_problems.value(m_place).mark;
    const Tones::Trouble colours = ColoursOf(mark);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colours.mark, 1));
    painter.setBrush(colours.ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    const QRect square =
        QStyle::visualRect(layoutDirection(), rect(), QRect(margin, margin, markSize, markSize));
    Glyphs::Draw(&painter, QRectF(square), mark, colours.mark, colours.ground);
}
