#include "ComplaintLog.h"

#include <QtGlobal>

void CComplaintLog::Tell(const QStringList &complaints)
{
    for (int i = 0; i < complaints.size(); ++i) {
        if (!m_told.contains(complaints.at(i))) {
            qWarning("WLANStored: %s", complaints.at(i).toLocal8Bit().constData());
        }
    }
    m_told = complaints;
}

void CComplaintLog::Forget()
{
    m_told.clear();
}
