#include "Outline.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>
#include <QStringList>
#include <QStyle>
#include <QTextDocument>
#include <QVector>

#include <algorithm>

namespace
{

// Frames may touch.
const int touchPixels = 3;

typedef QVector<const QWidget *> Widgets;

QString Quoted(QString text)
{
    text.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString PlainText(const QString &text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    QTextDocument document;
    document.setHtml(text);
    return document.toPlainText();
}

QString SideName(Qt::LayoutDirection direction, Qt::Alignment alignment)
{
    const Qt::Alignment seen = QStyle::visualAlignment(direction, alignment);
    if (seen & Qt::AlignHCenter) {
        return QLatin1String("in the middle");
    }
    return QLatin1String(seen & Qt::AlignRight ? "at the right" : "at the left");
}

QString Number(int number, bool isFixed)
{
    return (isFixed ? QString() : QString(QLatin1Char('~'))) + QString::number(number);
}

/** Whether the program has placed the widget by itself. */
bool IsPlacedByHand(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return !widget->isWindow() && parent && !parent->layout() && !parent->inherits("QAbstractScrollArea") &&
           !parent->parentWidget()->inherits("QAbstractScrollArea");
}

/** Whether sizes in widget are given in pixels, as the plug-in gives them; the host's follow the font. */
bool IsPlugins(const QWidget *widget)
{
    const QStringList roots{"priorityPage", "addDialog", "newDialog"};
    return widget && (roots.contains(widget->objectName()) || IsPlugins(widget->parentWidget()));
}

/** @param beginning  what widget's place is told from, in its parent */
QString Place(const QWidget *widget, const QPoint &beginning)
{
    const bool isByHand = IsPlacedByHand(widget);
    const bool isSizedByLayout =
        widget->layout() && widget->layout()->sizeConstraint() == QLayout::SetFixedSize;
    const bool areSizesFixed = !isSizedByLayout && IsPlugins(widget);
    const bool isWidthFixed = areSizesFixed && widget->minimumWidth() == widget->maximumWidth();
    const bool isHeightFixed = areSizesFixed && widget->minimumHeight() == widget->maximumHeight();
    const QRect place = widget->geometry().translated(-beginning);
    QStringList numbers;
    if (!widget->isWindow()) {
        numbers << Number(place.x(), isByHand) << Number(place.y(), isByHand);
    }
    numbers << Number(place.width(), isWidthFixed) << Number(place.height(), isHeightFixed);
    return QLatin1String("at ") + numbers.join(QLatin1String(" "));
}

QString LabelText(const QLabel *label)
{
    if (label->property("pixmap").value<QPixmap>().isNull()) {
        const bool isCut = label->text().contains(QChar(0x2026)) && !label->toolTip().isEmpty();
        // Qt puts plain text to the side where it begins by itself, whatever the label's direction.
        const Qt::LayoutDirection direction =
            label->text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
        return Quoted(isCut ? PlainText(label->toolTip()) : label->text()) + QLatin1Char(' ') +
               SideName(direction, label->alignment());
    }
    return QLatin1String("a picture ") + SideName(label->layoutDirection(), label->alignment());
}

QString BoxText(const QComboBox *box)
{
    QStringList choices;
    for (int i = 0; i < box->count(); ++i) {
        choices.append(Quoted(box->itemText(i)));
    }
    return QString::fromLatin1("%1 of %2").arg(Quoted(box->currentText()), choices.join(QLatin1String(", ")));
}

QString FieldText(const QLineEdit *field)
{
    return field->echoMode() == QLineEdit::Normal
               ? Quoted(field->text())
               : QString::fromLatin1("%1 hidden signs").arg(field->text().size());
}

bool IsLeftOf(const QWidget *a, const QWidget *b)
{
    return a->x() < b->x();
}

bool IsAbove(const QWidget *a, const QWidget *b)
{
    return a->geometry().center().y() < b->geometry().center().y();
}

bool AreSideBySide(const QWidget *a, const QWidget *b)
{
    const int overlap = qMin(a->geometry().bottom(), b->geometry().bottom()) - qMax(a->y(), b->y()) + 1;
    return 2 * overlap >= qMin(a->height(), b->height());
}

/** Whether widget is something that the program has put there, not Qt for its own use. */
bool IsPrograms(const QWidget *widget)
{
    return !widget->objectName().startsWith(QLatin1String("qt_")) && !widget->inherits("QSizeGrip") &&
           !widget->inherits("QRubberBand") && !widget->inherits("QFocusFrame");
}

bool IsWhole(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QLineEdit *>(widget) ||
           qobject_cast<const QAbstractItemView *>(widget) || qobject_cast<const QMenuBar *>(widget);
}

Widgets ChildrenOf(const QWidget *parent)
{
    if (const QScrollArea *area = qobject_cast<const QScrollArea *>(parent)) {
        return area->widget() && area->widget()->isVisible() ? Widgets(1, area->widget()) : Widgets();
    }
    Widgets children;
    const QObjectList &objects = parent->children();
    for (QObject *object : objects) {
        const QWidget *child = qobject_cast<const QWidget *>(object);
        if (child && child->isVisible() && !child->isWindow() && IsPrograms(child) &&
            !child->size().isEmpty()) {
            children.append(child);
        }
    }
    return children;
}

class Outliner
{
public:
    QString Text() const { return m_lines.join(QLatin1String("\n")) + QLatin1Char('\n'); }

    void Add(const QWidget *widget, int depth, const QPoint &beginning = QPoint())
    {
        QStringList line;
        line << QLatin1String(widget->metaObject()->className());
        if (!widget->objectName().isEmpty()) {
            line << widget->objectName();
        }
        AddTexts(&line, widget);
        if (!widget->isEnabled()) {
            line << QLatin1String("disabled");
        }
        // A question is as large as its text in its font.
        if (widget->window()->objectName() != QLatin1String("messageBox")) {
            line << Place(widget, beginning);
        }
        AddLine(depth, line.join(QLatin1String(" ")));
        if (const QAbstractItemView *view = qobject_cast<const QAbstractItemView *>(widget)) {
            AddItems(view, depth + 1);
        }
        if (!IsWhole(widget)) {
            AddChildren(widget, depth + 1);
        }
    }

private:
    static void AddTexts(QStringList *line, const QWidget *widget)
    {
        if (widget->isWindow()) {
            *line << Quoted(widget->windowTitle())
                  << QLatin1String(widget->layoutDirection() == Qt::RightToLeft ? "from right to left"
                                                                                : "from left to right");
        } else if (const QLabel *label = qobject_cast<const QLabel *>(widget)) {
            *line << LabelText(label);
        } else if (const QAbstractButton *button = qobject_cast<const QAbstractButton *>(widget)) {
            *line << Quoted(button->text());
            if (button->isChecked()) {
                *line << QLatin1String("checked");
            }
        } else if (const QComboBox *box = qobject_cast<const QComboBox *>(widget)) {
            *line << BoxText(box);
        } else if (const QLineEdit *field = qobject_cast<const QLineEdit *>(widget)) {
            *line << FieldText(field);
        } else if (const QMenuBar *bar = qobject_cast<const QMenuBar *>(widget)) {
            *line << MenuTexts(bar);
        }
    }

    static QStringList MenuTexts(const QMenuBar *bar)
    {
        QMap<int, QString> texts;
        foreach (QAction *action, bar->actions()) {
            texts.insert(bar->actionGeometry(action).x(), Quoted(action->text()));
        }
        return texts.values();
    }

    void AddLine(int depth, const QString &text)
    {
        m_lines.append(QString(2 * depth, QLatin1Char(' ')) + text);
    }

    void AddChildren(const QWidget *parent, int depth)
    {
        Widgets children = ChildrenOf(parent);
        std::stable_sort(children.begin(), children.end(), IsAbove);
        while (!children.isEmpty()) {
            Widgets row;
            const QWidget *first = children.first();
            foreach (const QWidget *child, children) {
                if (AreSideBySide(first, child)) {
                    row.append(child);
                }
            }
            foreach (const QWidget *child, row) {
                children.remove(children.indexOf(child));
            }
            AddRow(row, depth);
        }
        AddFaults(parent, depth);
    }

    void AddRow(Widgets row, int depth)
    {
        std::stable_sort(row.begin(), row.end(), IsLeftOf);
        if (row.size() > 1) {
            AddLine(depth, QLatin1String("side by side"));
        }
        foreach (const QWidget *widget, row) {
            Add(widget, row.size() > 1 ? depth + 1 : depth);
        }
    }

    void AddFaults(const QWidget *parent, int depth)
    {
        const Widgets children = ChildrenOf(parent);
        for (int i = 0; i < children.size(); ++i) {
            const QRect place = children.at(i)->geometry();
            const QRect room = parent->rect().adjusted(-touchPixels, -touchPixels, touchPixels, touchPixels);
            if (!room.contains(place) && !parent->inherits("QScrollArea")) {
                AddLine(depth, children.at(i)->objectName() + QLatin1String(" sticks out"));
            }
            for (int j = i + 1; j < children.size(); ++j) {
                const QRect common = place & children.at(j)->geometry();
                if (common.width() > touchPixels && common.height() > touchPixels) {
                    AddLine(depth, QString::fromLatin1("%1 and %2 cover each other")
                                       .arg(children.at(i)->objectName(), children.at(j)->objectName()));
                }
            }
        }
    }

    void AddItems(const QAbstractItemView *view, int depth)
    {
        const QAbstractItemModel *model = view->model();
        const QHeaderView *header = view->findChild<QHeaderView *>();
        foreach (const QHeaderView *found, view->findChildren<QHeaderView *>()) {
            header = found->orientation() == Qt::Horizontal ? found : header;
        }
        if (header && header->isVisible() && header->orientation() == Qt::Horizontal) {
            QMap<int, QString> sections;
            for (int i = 0; i < model->columnCount(); ++i) {
                const int alignment = model->headerData(i, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
                sections.insert(header->sectionViewportPosition(i),
                                Quoted(model->headerData(i, Qt::Horizontal).toString()) + QLatin1Char(' ') +
                                    SideName(view->layoutDirection(), Qt::Alignment(alignment)));
            }
            AddLine(depth,
                    QLatin1String("header ") + QStringList(sections.values()).join(QLatin1String(" | ")));
        }
        for (int row = 0; row < model->rowCount(); ++row) {
            AddItemRow(view, row, depth);
        }
    }

    void AddItemRow(const QAbstractItemView *view, int row, int depth)
    {
        QMap<int, QString> cells;
        QRect place;
        bool isSelected = false;
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            const QModelIndex index = view->model()->index(row, column);
            const QRect cell = view->visualRect(index);
            isSelected = isSelected || view->selectionModel()->isSelected(index);
            place |= cell;
            if (!view->indexWidget(index)) {
                cells.insert(cell.x(), ItemText(view, index));
            }
        }
        // Not where it stands: its height times its number, less what is scrolled.
        AddLine(depth, QString::fromLatin1("row %1%2%3 of ~%4 ~%5")
                           .arg(QStringList(cells.values()).join(QLatin1String(" | ")),
                                QLatin1String(cells.isEmpty() ? "" : " "),
                                QLatin1String(isSelected ? "selected" : "not selected"))
                           .arg(place.width())
                           .arg(place.height()));
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            if (const QWidget *widget = view->indexWidget(view->model()->index(row, column))) {
                Add(widget, depth + 1, place.topLeft());
            }
        }
    }

    static QString ItemText(const QAbstractItemView *view, const QModelIndex &index)
    {
        const QVariant accessible = index.data(Qt::AccessibleTextRole);
        const int alignment = index.data(Qt::TextAlignmentRole).toInt();
        return Quoted((accessible.isNull() ? index.data() : accessible).toString()) + QLatin1Char(' ') +
               SideName(view->layoutDirection(), Qt::Alignment(alignment));
    }

    QStringList m_lines;
};

} // namespace

QString Outline(const QWidget *window)
{
    Outliner outliner;
    outliner.Add(window, 0);
    return outliner.Text();
}
