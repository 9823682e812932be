#include <ExtendDialog.h>

#include "TitleBar.h"

#include <QFrame>
#include <QVBoxLayout>

ExtendDialog::ExtendDialog(QWidget *parent, Qt::WindowFlags flags, enWidgetType)
    : QDialog(parent, flags | Qt::Dialog | Qt::FramelessWindowHint), m_titleLabel(nullptr)
{
    // The window system draws no border around a frameless window.
    QFrame *frame = new QFrame(this);
    frame->setObjectName(QLatin1String("dialogFrame"));
    frame->setFrameStyle(QFrame::Box | QFrame::Plain);
    frame->setForegroundRole(QPalette::Mid);

    QVBoxLayout *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);

    TitleBar *titleBar = new TitleBar(frame, flags & Qt::WindowCloseButtonHint);
    m_titleLabel = titleBar->Label();
    QVBoxLayout *column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(titleBar);
}

ExtendDialog::~ExtendDialog() = default;

void ExtendDialog::AddMainWidget(QWidget *body)
{
    if (body) {
        QWidget *frame = m_titleLabel->parentWidget()->parentWidget();
        static_cast<QVBoxLayout *>(frame->layout())->addWidget(body, 1);
    }
}

void ExtendDialog::setWindowTitle(const QString &title)
{
    QDialog::setWindowTitle(title);
    m_titleLabel->setText(title);
}
