#include "FileFaultText.h"

#include <DashboardText.h>

namespace
{

QString ReasonText(const FileFault &fault)
{
    switch (fault.kind) {
    case FileFault::Declaration:
        return DashboardText("IDS_FAULT_DECLARATION");
    case FileFault::UnexpectedElement:
        return DashboardText("IDS_FAULT_ELEMENT").arg(fault.detail);
    case FileFault::UnexpectedText:
        return DashboardText("IDS_FAULT_TEXT");
    case FileFault::MissingAttribute:
        return DashboardText("IDS_FAULT_ATTRIBUTE").arg(fault.detail);
    case FileFault::WrongValue:
        return DashboardText("IDS_FAULT_VALUE").arg(fault.detail);
    case FileFault::TooMany:
        return DashboardText("IDS_FAULT_TOO_MANY").arg(fault.detail);
    case FileFault::NotWellFormed:
    case FileFault::None:
        break;
    }
    return DashboardText("IDS_FAULT_XML");
}

} // namespace

QString FileFaultText(const FileFault &fault)
{
    return DashboardText("IDS_FAULT_LINE").arg(DashboardNumber(fault.line), ReasonText(fault));
}
