#include "LanguageFiles.h"

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
        m_usable = m_translator.load(reinterpret_cast<const uchar *>(m_bytes.constData()), m_bytes.size()) &&
                   !m_translator.isEmpty();
    }

    bool IsUsable() const { return m_usable; }

    /** Empty when the language has no such text. */
    QString Text(const QString &id, const QString &context) const
    {
        return m_translator.translate(context.toUtf8().constData(), id.toUtf8().constData());
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
    LanguageProblem ignored;
    m_english = Load(EnglishName(), &ignored);
}

QStringList LanguageFiles::Listed() const
{
    QStringList names;
    if (m_directory.isEmpty()) {
        return names;
    }
    const QStringList pattern(QString(QLatin1Char('*')) + Suffix());
    names = QDir(m_directory).entryList(pattern, QDir::Files, QDir::Name);
    for (int i = 0; i < names.size(); ++i) {
        names[i].chop(QString(Suffix()).size());
    }
    names.removeAll(QString());
    names.sort();
    return names;
}

QString LanguageFiles::PathOf(const QString &name) const
{
    return QDir(m_directory).filePath(name + Suffix());
}

QStringList LanguageFiles::Names() const
{
    QStringList names;
    const QStringList listed = Listed();
    for (int i = 0; i < listed.size(); ++i) {
        LanguageProblem ignored;
        if (Load(listed.at(i), &ignored)) {
            names.append(listed.at(i));
        }
    }
    return names;
}

QList<LanguageProblem> LanguageFiles::Problems() const
{
    QList<LanguageProblem> problems;
    const QStringList listed = Listed();
    for (int i = 0; i < listed.size(); ++i) {
        LanguageProblem problem;
        if (!Load(listed.at(i), &problem)) {
            problems.append(problem);
        }
    }
    return problems;
}

bool LanguageFiles::Use(const QString &name)
{
    // Only what lies in the directory itself is a language; no name leads out of it.
    LanguageProblem ignored;
    std::unique_ptr<Language> language =
        Listed().contains(name) ? Load(name, &ignored) : std::unique_ptr<Language>();
    if (!language) {
        return false;
    }
    m_inUse.swap(language);
    m_nameInUse = name;
    return true;
}

QString LanguageFiles::Text(const QString &id, const QString &context) const
{
    QString text;
    if (m_inUse) {
        text = m_inUse->Text(id, context);
    }
    if (text.isEmpty() && m_english) {
        text = m_english->Text(id, context);
    }
    return text.isEmpty() ? id : text;
}

QString LanguageFiles::TextIn(const QString &name, const QString &id, const QString &context) const
{
    LanguageProblem ignored;
    const std::unique_ptr<Language> language =
        Listed().contains(name) ? Load(name, &ignored) : std::unique_ptr<Language>();
    return language ? language->Text(id, context) : QString();
}

std::unique_ptr<Language> LanguageFiles::Load(const QString &name, LanguageProblem *problem) const
{
    if (m_directory.isEmpty()) {
        return std::unique_ptr<Language>();
    }
    problem->path = PathOf(name);
    QFile file(problem->path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFile::NoError) {
        problem->kind = LanguageProblem::Unreadable;
        problem->reason = file.errorString();
        return std::unique_ptr<Language>();
    }
    std::unique_ptr<Language> language(new Language(bytes));
    if (!language->IsUsable()) {
        problem->kind = LanguageProblem::NoTexts;
        return std::unique_ptr<Language>();
    }
    return language;
}
