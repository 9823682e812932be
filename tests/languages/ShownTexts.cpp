#include "ShownTexts.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QTextDocument>
#include <QVariant>
#include <QWidget>

namespace
{

void Add(QList<ShownText> *texts, const QObject *owner, const char *what, const QString &text)
{
    ShownText shown;
    shown.where = owner->objectName() + QLatin1String(", ") + QLatin1String(what);
    shown.text = text;
    if (Qt::mightBeRichText(text)) {
        QTextDocument document;
        document.setHtml(text);
        shown.text = document.toPlainText();
    }
    if (!shown.text.isEmpty()) {
        texts->append(shown);
    }
}

void AddProperties(QList<ShownText> *texts, const QWidget *widget)
{
    const char *const properties[] = {"text",        "title",          "placeholderText",
                                      "windowTitle", "toolTip",        "statusTip",
                                      "whatsThis",   "accessibleName", "accessibleDescription"};
    for (const char *property : properties) {
        // What the user has typed is nobody's to translate.
        const bool isTyped = widget->inherits("QLineEdit") && QByteArray(property) == "text";
        if (!isTyped) {
            Add(texts, widget, property, widget->property(property).toString());
        }
    }
}

void AddActions(QList<ShownText> *texts, const QWidget *widget)
{
    foreach (const QAction *action, widget->actions()) {
        Add(texts, widget, "action", action->text());
        Add(texts, widget, "action's tool tip", action->toolTip());
        Add(texts, widget, "action's status tip", action->statusTip());
    }
}

void AddItems(QList<ShownText> *texts, const QAbstractItemView *view)
{
    const int roles[] = {Qt::DisplayRole,   Qt::ToolTipRole,        Qt::StatusTipRole,
                         Qt::WhatsThisRole, Qt::AccessibleTextRole, Qt::AccessibleDescriptionRole};
    const QAbstractItemModel *model = view->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        for (int column = 0; column < model->columnCount(); ++column) {
            for (int role : roles) {
                Add(texts, view, "item", model->index(row, column).data(role).toString());
            }
        }
    }
}

void AddSections(QList<ShownText> *texts, const QHeaderView *header)
{
    for (int i = 0; i < header->count(); ++i) {
        Add(texts, header, "section", header->model()->headerData(i, header->orientation()).toString());
    }
}

void AddChoices(QList<ShownText> *texts, const QComboBox *box)
{
    for (int i = 0; i < box->count(); ++i) {
        Add(texts, box, "choice", box->itemText(i));
    }
}

} // namespace

QList<ShownText> ShownTexts(const QWidget *window)
{
    QList<ShownText> texts;
    QList<const QWidget *> widgets;
    widgets.append(window);
    foreach (const QWidget *widget, window->findChildren<QWidget *>()) {
        const bool isToolkits = widget->objectName().startsWith(QLatin1String("qt_"));
        if (widget->isVisible() && widget->window() == window && !isToolkits) {
            widgets.append(widget);
        }
    }
    foreach (const QWidget *widget, widgets) {
        AddProperties(&texts, widget);
        AddActions(&texts, widget);
        if (const QHeaderView *header = qobject_cast<const QHeaderView *>(widget)) {
            AddSections(&texts, header);
        } else if (const QAbstractItemView *view = qobject_cast<const QAbstractItemView *>(widget)) {
            AddItems(&texts, view);
        } else if (const QComboBox *box = qobject_cast<const QComboBox *>(widget)) {
            AddChoices(&texts, box);
        }
    }
    return texts;
}
