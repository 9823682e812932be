#include "KeyMaterial.h"

#include <QEvent>
#include <QLineEdit>

namespace
{

class HideWatch : public QObject
{
public:
    explicit HideWatch(QLineEdit *field) : QObject(field), m_field(field) { field->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous()) {
            KeyMaterial::Wipe(m_field);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QLineEdit *m_field;
};

} // namespace

QString KeyMaterial::Unshared(const QString &text)
{
    return QString(text.constData(), text.size());
}

void KeyMaterial::Wipe(QString *text)
{
    if (text->isDetached()) {
        // Volatile: nobody reads it again, so that an ordinary write could be left out.
        volatile ushort *units = reinterpret_cast<ushort *>(text->data());
        for (int i = 0; i < text->size(); ++i) {
            units[i] = 0;
        }
    }
    text->clear();
}

void KeyMaterial::Wipe(QLineEdit *field)
{
    QString text = field->text();
    // The field lets go of it first, undo steps included.
    field->setText(QString());
    Wipe(&text);
}

void KeyMaterial::WipeWhenHidden(QLineEdit *field)
{
    new HideWatch(field);
}
