#include "ComplaintLog.h"

#include <QtGlobal>

CComplaintLog::CComplaintLog(const char *source) : m_source(source) {}

void CComplaintLog::Tell(const QStringList &complaints)
{
    for (int i = 0; i < complaints.size(); ++i) {
        if (!m_told.contains(complaints.at(i))) {
            qWarning("%s: %s", m_source, complaints.at(i).toLocal8Bit().constData());
        }
    }
    m_told = complaints;
}

void CComplaintLog::Forget()
{
    m_told.clear();
}
