#ifndef SERVICETABLE_H
#define SERVICETABLE_H

#include "Records.h"
#include "Table.h"

#include <QRect>
#include <QWidget>

/* The tables behind the priority plug-in's service. */

const char *const settingIdentifier = "com.torvik.netquillforge.plugin.ISettingUIPlugin";
const char *const priorityIdentifier = "com.torvik.netquillforge.plugin.IPriorityPlugin";

const int settingNumber = 4098;
const int priorityNumber = 4103;

namespace SettingTable
{

const int okButton = 3;
const int cancelButton = 4;
const int show = 5;
const int moduleName = 6;
const int hide = 7;
const int isActive = 8;

} // namespace SettingTable

namespace PriorityTable
{

const int getList = 3;
const int addList = 4;
const int addTop = 5;

} // namespace PriorityTable

typedef QString (*ModuleNameOperation)(void *part);
typedef bool (*ShowPageOperation)(void *part, QWidget *parent, QRect &rect);
typedef int (*GetListOperation)(void *part, QList<Entry> *list);
typedef void (*AddListOperation)(void *part, QList<Entry> &entries);
typedef void (*AddTopOperation)(void *part, Entry entry);

#endif
