#include "MessageBox.h"

#include <Change.h>

#include <QHBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace
{

const int narrowestText = 200;
const int widestText = 330;
const int overhang = 6;
const int tallestText = 200;

const char *const answerProperty = "answer";

QPixmap PixmapOf(QMessageBox::Icon icon, const QWidget *widget)
{
    QStyle::StandardPixmap pixmap;
    switch (icon) {
    case QMessageBox::Information:
        pixmap = QStyle::SP_MessageBoxInformation;
        break;
    case QMessageBox::Warning:
        pixmap = QStyle::SP_MessageBoxWarning;
        break;
    case QMessageBox::Critical:
        pixmap = QStyle::SP_MessageBoxCritical;
        break;
    case QMessageBox::Question:
        pixmap = QStyle::SP_MessageBoxQuestion;
        break;
    case QMessageBox::NoIcon:
    default:
        return QPixmap();
    }
    const int size = widget->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, widget);
    return widget->style()->standardIcon(pixmap, nullptr, widget).pixmap(size, size);
}

} // namespace

MessageBox::MessageBox(QWidget *parent, Qt::WindowFlags flags, QDialog **handle)
    : ExtendDialog(parent, flags, enWidgetTypeDialog), m_handle(handle), m_answer(QMessageBox::Cancel),
      m_contentRow(nullptr), m_textColumn(nullptr), m_buttonRow(nullptr)
{
    setObjectName(QLatin1String("messageBox"));
    if (m_handle) {
        *m_handle = this;
    }

    QWidget *body = new QWidget(this);
    body->setObjectName(QLatin1String("messageBody"));
    QVBoxLayout *column = new QVBoxLayout(body);
    column->setContentsMargins(14, 14, 14, 12);
    column->setSpacing(14);
    m_contentRow = new QHBoxLayout;
    m_contentRow->setSpacing(12 - overhang);
    m_textColumn = new QVBoxLayout;
    m_textColumn->setSpacing(8);
    m_buttonRow = new QHBoxLayout;
    m_buttonRow->addStretch(1);
    column->addLayout(m_contentRow);
    column->addStretch(1);
    column->addLayout(m_buttonRow);
    AddMainWidget(body);
}

MessageBox::~MessageBox()
{
    ClearHandle();
}

void MessageBox::SetContent(QMessageBox::Icon icon, const QString &text, const QString &detail)
{
    const QPixmap pixmap = PixmapOf(icon, this);
    if (!pixmap.isNull()) {
        QLabel *iconLabel = new QLabel;
        iconLabel->setObjectName(QLatin1String("messageIcon"));
        iconLabel->setPixmap(pixmap);
        m_contentRow->addWidget(iconLabel, 0, Qt::AlignTop);
    }
    m_contentRow->addLayout(m_textColumn, 1);
    AddText("messageText", text);
    if (!detail.isEmpty()) {
        AddText("messageDetail", detail);
    }
}

void MessageBox::AddText(const char *name, const QString &text)
{
    QLabel *label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeading | Qt::AlignTop);
    label->setText(text);
    // The blank at which a line of right-to-left text is broken pushes the line out at its far end.
    label->setContentsMargins(overhang, 0, overhang, 0);

    // Measured here because a window's layout doesn't take back the height that a wrapped text might have
    // needed.
    const QRect bounds =
        label->fontMetrics().boundingRect(QRect(0, 0, widestText, 1), Qt::TextWordWrap, text);
    const int width = qBound(narrowestText, bounds.width() + 2, widestText) + 2 * overhang;
    const int height = qMax(label->heightForWidth(width), label->fontMetrics().height());
    if (height <= tallestText && bounds.width() <= widestText) {
        label->setFixedSize(width, height);
        m_textColumn->addWidget(label, 0, Qt::AlignLeft);
        return;
    }

    // However long a text is, the buttons stay on the screen.
    const int fullWidth = qMax(widestText, bounds.width() + 2) + 2 * overhang;
    label->setFixedSize(fullWidth, label->heightForWidth(fullWidth));
    QScrollArea *area = new QScrollArea;
    area->setObjectName(QLatin1String(name) + QLatin1String("Area"));
    area->setAccessibleName(text);
    area->setFrameStyle(QFrame::NoFrame);
    area->setWidget(label);
    area->viewport()->setAutoFillBackground(false);
    label->setAutoFillBackground(false);
    const int scrollBar = area->verticalScrollBar()->sizeHint().width();
    area->setFixedSize(widestText + 2 * overhang + scrollBar, qMin(label->height() + scrollBar, tallestText));
    m_textColumn->addWidget(area, 0, Qt::AlignLeft);
}

void MessageBox::SetButtons(const QString &first, const QString &second, const QString &third)
{
    AddButton(1, first, QMessageBox::Ok);
    AddButton(2, second, QMessageBox::Cancel);
    AddButton(3, third, QMessageBox::Ignore);
}

void MessageBox::AddButton(int number, const QString &caption, int answer)
{
    if (caption.isEmpty()) {
        return;
    }
    QPushButton *button = new QPushButton;
    button->setObjectName(QString::fromLatin1("messageButton%1").arg(number));
    button->setText(Change::tr(caption, QLatin1String("PriorityPlugin")));
    button->setMinimumWidth(80);
    button->setProperty(answerProperty, answer);
    m_buttonRow->addWidget(button);
    connect(button, SIGNAL(clicked()), this, SLOT(OnButtonClicked()));
    if (number == 1) {
        button->setDefault(true);
        button->setFocus();
    }
}

void MessageBox::OnButtonClicked()
{
    m_answer = sender()->property(answerProperty).toInt();
    accept();
}

void MessageBox::hideEvent(QHideEvent *event)
{
    ExtendDialog::hideEvent(event);
    // A spontaneous one comes from the window system, when the user minimises the dashboard.
    if (!event->spontaneous()) {
        ClearHandle();
        emit Closed();
    }
}

void MessageBox::ClearHandle()
{
    // At once, not when ShowMessage returns: the caller that owns the pointer may be gone by then.
    if (m_handle) {
        *m_handle = nullptr;
        m_handle = nullptr;
    }
}
