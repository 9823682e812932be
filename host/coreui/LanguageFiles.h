#ifndef LANGUAGEFILES_H
#define LANGUAGEFILES_H

#include <QString>
#include <QStringList>

#include <memory>

class Language;

/** The compiled language files of a directory: one of them in use, English behind it. */
class LanguageFiles
{
public:
    LanguageFiles();
    ~LanguageFiles();

    void SetDirectory(const QString &directory);
    QStringList Names() const;

    /** False, and nothing changes, when there is no usable file of that name. */
    bool Use(const QString &name);
    QString NameInUse() const { return m_nameInUse; }

    /** The id itself when neither language has a text for it. */
    QString Text(const QString &id, const QString &context) const;

private:
    Q_DISABLE_COPY(LanguageFiles)

    Language *Load(const QString &name) const;

    QString m_directory;
    QString m_nameInUse;
    std::unique_ptr<Language> m_inUse;
    std::unique_ptr<Language> m_english;
};

#endif
