#include <Change.h>

#include "HostState.h"

QString Change::tr(const QString &id, const QString &context)
{
    return HostState::Instance().languages.Text(id, context);
}

QString Change::GetLangName()
{
    return HostState::Instance().languages.NameInUse();
}
