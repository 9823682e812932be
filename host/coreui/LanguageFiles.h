#ifndef LANGUAGEFILES_H
#define LANGUAGEFILES_H

#include "HostControl.h"

#include <QList>
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

    /** Only those that can be used. */
    QStringList Names() const;

    /** Of the files that are there but can't be used. */
    QList<LanguageProblem> Problems() const;

    /** False, and nothing changes, when there is no usable file of that name. */
    bool Use(const QString &name);
    QString NameInUse() const { return m_nameInUse; }

    /** The id itself when neither language has a text for it. */
    QString Text(const QString &id, const QString &context) const;

    /** The text in a language that need not be the one in use; empty when that has none. */
    QString TextIn(const QString &name, const QString &id, const QString &context) const;

private:
    Q_DISABLE_COPY(LanguageFiles)

    QStringList Listed() const;
    QString PathOf(const QString &name) const;
    /** Null with a problem, when the file can't be used. */
    std::unique_ptr<Language> Load(const QString &name, LanguageProblem *problem) const;

    QString m_directory;
    QString m_nameInUse;
    std::unique_ptr<Language> m_inUse;
    std::unique_ptr<Language> m_english;
};

#endif
