#include "HostServices.h"
#include "LoadedLibrary.h"
#include "RootTable.h"
#include "ServiceTable.h"

#include <TemporaryDirectory.h>

#include <QPointer>
#include <QtTest>

/**
 * The destructor's two positions in the tables of the service. The plug-in knows nothing of a service that is
 * destroyed this way, so each function is a test with a process of its own.
 */
class ServiceDestructorsTest : public QObject
{
    Q_OBJECT

public:
    ServiceDestructorsTest() : m_library("PriorityPlugin") {}

private slots:
    void CompleteOfTheSettingPage() { Destroy(settingIdentifier, completeDestructor); }
    void DeletingOfTheSettingPage() { Destroy(settingIdentifier, deletingDestructor); }
    void CompleteOfThePriorityList() { Destroy(priorityIdentifier, completeDestructor); }
    void DeletingOfThePriorityList() { Destroy(priorityIdentifier, deletingDestructor); }

private:
    void Destroy(const char *identifier, int position);

    TemporaryDirectory m_directory;
    LoadedLibrary m_library;
};

void ServiceDestructorsTest::Destroy(const char *identifier, int position)
{
    HostServices::Reset(m_directory.Path());
    void *root = m_library.Root()->qt_metacast(rootIdentifier);
    QPointer<QObject> service;
    QObject *object = nullptr;
    QVERIFY(At<QueryOperation>(root, RootTable::queryInterface)(root, priorityNumber, &object));
    service = object;
    void *part = object->qt_metacast(identifier);
    At<Destructor>(part, position)(part);
    QVERIFY(!service);
    if (position == completeDestructor) {
        operator delete(static_cast<void *>(object));
    }
}

QTEST_MAIN(ServiceDestructorsTest)
#include "tst_servicedestructors.moc"
