#include "TextPattern.h"

#include <regex>
#include <string>

namespace
{

std::string Utf8(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return std::string(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

QString FromUtf8(const std::string &bytes)
{
    return QString::fromUtf8(bytes.c_str());
}

} // namespace

bool TextPattern::Fits(const QString &text, const QString &pattern)
{
    return std::regex_match(Utf8(text), std::regex(Utf8(pattern)));
}

bool TextPattern::IsIn(const QString &text, const QString &pattern)
{
    return std::regex_search(Utf8(text), std::regex(Utf8(pattern)));
}

QStringList TextPattern::FindAll(const QString &text, const QString &pattern)
{
    const std::string bytes = Utf8(text);
    const std::regex expression(Utf8(pattern));
    const int group = expression.mark_count() > 0 ? 1 : 0;
    QStringList found;
    for (std::sregex_iterator match(bytes.begin(), bytes.end(), expression), end; match != end; ++match) {
        found.append(FromUtf8(match->str(group)));
    }
    return found;
}

QString TextPattern::Replaced(const QString &text, const QString &pattern, const QString &replacement)
{
    return FromUtf8(std::regex_replace(Utf8(text), std::regex(Utf8(pattern)), Utf8(replacement)));
}
