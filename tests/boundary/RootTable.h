#ifndef ROOTTABLE_H
#define ROOTTABLE_H

#include "Table.h"

#include <QObject>
#include <QRect>
#include <QString>
#include <QWidget>

/* The tables behind a plug-in's root object. */

const char *const rootIdentifier = "com.torvik.netquillforge.plugin.IUIPlugin";
const char *const notifyIdentifier = "com.torvik.netquillforge.plugin.INotify";

namespace RootTable
{

const int release = 3;
const int getLastError = 4;
const int init = 5;
const int getPluginType = 6;
const int getClassId = 7;
const int getVersion = 8;
const int getPluginName = 9;
const int isAllowRelease = 10;
const int queryInterface = 11;
const int showWindow = 12;
const int doModal = 13;
const int hide = 14;
const int fitSize = 15;
const int isReady = 16;
const int changeLanguage = 17;

} // namespace RootTable

/** The table of the root's next part. */
namespace DestroyTable
{

const int onDestroy = 3;
const int unregisterEvent = 4;

} // namespace DestroyTable

namespace NotifyTable
{

const int notify = 3;

} // namespace NotifyTable

typedef QString (*TextOperation)(void *part);
typedef bool (*QueryOperation)(void *part, int number, QObject **object);
typedef bool (*ShowOperation)(void *part, QWidget *parent, QRect &rect);
typedef void (*FitOperation)(void *part, QRect &rect);
typedef bool (*LanguageOperation)(void *part, const QString &language);
typedef int (*NotifyOperation)(void *part, unsigned int event, unsigned int first, unsigned int second);

#endif
