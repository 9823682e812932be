#include "ElidedLabel.h"

#include <CommonUtils.h>

ElidedLabel::ElidedLabel(const char *name)
{
    setObjectName(QLatin1String(name));
    setTextFormat(Qt::PlainText);
    // However long the text is, it asks for no room of its own.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::SetFullText(const QString &text)
{
    m_fullText = text;
    setAccessibleName(text);
    Fit();
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    Fit();
}

void ElidedLabel::Fit()
{
    CommonUtils::ElidedText(this, m_fullText, Qt::ElideRight);
    setToolTip(text() == m_fullText ? QString() : m_fullText.toHtmlEscaped());
}
