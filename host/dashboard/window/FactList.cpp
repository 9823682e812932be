#include "FactList.h"

#include <DashboardText.h>
#include <DialogParts.h>
#include <WrappedLabel.h>

#include <QGridLayout>

FactList::FactList(const char *name) : m_layout(new QGridLayout(this))
{
    setObjectName(QLatin1String(name));
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(12);
    m_layout->setVerticalSpacing(6);
    m_layout->setColumnStretch(1, 1);
}

void FactList::Tell(const char *captionId, const QString &value)
{
    const QString key = QLatin1String(captionId);
    if (!m_rows.contains(key)) {
        const Row row = {new QLabel, new WrappedLabel(captionId)};
        row.caption->setObjectName(key + QLatin1String("_caption"));
        row.caption->setTextFormat(Qt::PlainText);
        const int place = static_cast<int>(m_rows.size());
        m_layout->addWidget(row.caption, place, 0, Qt::AlignLeading | Qt::AlignTop);
        m_layout->addWidget(row.value, place, 1);
        m_rows.insert(key, row);
    }
    const Row &row = m_rows[key];
    row.caption->setText(DashboardText(captionId));
    row.value->setText(value);
    row.value->setAlignment(DialogParts::Beginning(this) | Qt::AlignTop);
    row.value->setAccessibleName(row.caption->text() + QLatin1Char(' ') + value);
    row.caption->setVisible(!value.isEmpty());
    row.value->setVisible(!value.isEmpty());
}
