#include "KeyMaterial.h"

#include <QLineEdit>

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
