#include "NameDelegate.h"

#include "BidiText.h"

NameDelegate::NameDelegate(QObject *parent) : QStyledItemDelegate(parent) {}

QString NameDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return InOwnDirection(value.toString());
}
