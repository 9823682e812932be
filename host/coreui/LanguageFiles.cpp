#include "LanguageFiles.h"

#include "CompiledLanguage.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTranslator>

namespace
{

QLatin1String EnglishName()
{
    return QLatin1String("en");
}

QLatin1String Suffix()
{
    return QLatin1String(".qm");
}

} // namespace

/**
 * One language file, read as a whole: a file that is replaced while the dashboard runs does not pull the
 * texts from under it, and QTranslator's own search, which falls back to other file names, has no part in it.
 */
class Language
{
public:
    explicit Language(const QByteArray &bytes) : m_bytes(bytes)
    {
        m_usable = IsIntactCompiledLanguage(m_bytes) &&
                   m_translator.load(reinterpret_cast<const uchar *>(m_bytes.constData()), m_bytes.size()) &&
                   !m_translator.isEmpty();
    }

    bool IsUsable() const { return m_usable; }

    /** Empty when the language has no such text. */
    QString Text(const QByteArray &id, const QByteArray &context) const
    {
        return m_translator.translate(context.constData(), id.constData());
    }

private:
    Q_DISABLE_COPY(Language)

    // The translator works in these bytes.
    const QByteArray m_bytes;
    QTranslator m_translator;
    bool m_usable;
};

LanguageFiles::LanguageFiles() : m_nameInUse(EnglishName()) {}

LanguageFiles::~LanguageFiles() = default;

void LanguageFiles::SetDirectory(const QString &directory)
{
    m_directory = directory;
    m_english.reset(Load(EnglishName()));
}

QStringList LanguageFiles::Names() const
{
    QStringList names;
    if (m_directory.isEmpty()) {
        return names;
    }
    const QStringList pattern(QString(QLatin1Char('*')) + Suffix());
    names = QDir(m_directory).entryList(pattern, QDir::Files | QDir::Readable, QDir::Name);
    for (int i = 0; i < names.size(); ++i) {
        names[i].chop(QString(Suffix()).size());
    }
    names.removeAll(QString());
    names.sort();
    return names;
}

bool LanguageFiles::Use(const QString &name)
{
    // Only what lies in the directory itself is a language; no name leads out of it.
    if (!Names().contains(name)) {
        return false;
    }
    std::unique_ptr<Language> language(Load(name));
    if (!language) {
        return false;
    }
    m_inUse.swap(language);
    m_nameInUse = name;
    return true;
}

QString LanguageFiles::Text(const QString &id, const QString &context) const
{
    const QByteArray idBytes = id.toUtf8();
    const QByteArray contextBytes = context.toUtf8();
    QString text;
    if (m_inUse) {
        text = m_inUse->Text(idBytes, contextBytes);
    }
    if (text.isEmpty() && m_english) {
        text = m_english->Text(idBytes, contextBytes);
    }
    return text.isEmpty() ? id : text;
}

Language *LanguageFiles::Load(const QString &name) const
{
    QFile file(QDir(m_directory).filePath(name + Suffix()));
    if (m_directory.isEmpty() || !file.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    std::unique_ptr<Language> language(new Language(file.readAll()));
    return language->IsUsable() ? language.release() : nullptr;
}
