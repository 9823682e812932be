#ifndef NAMEDELEGATE_H
#define NAMEDELEGATE_H

#include <QStyledItemDelegate>

/** Lets every name in a list read in its own direction, whichever one the row has. */
class NameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit NameDelegate(QObject *parent);

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};

#endif
