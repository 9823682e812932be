#include "MessageReader.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

MessageReader::MessageReader()
{
    QTimer::singleShot(0, this, SLOT(Look()));
}

void MessageReader::Look()
{
    QWidget *box = QApplication::activeModalWidget();
    if (!box || box->objectName() != "messageBox") {
        QTimer::singleShot(5, this, SLOT(Look()));
        return;
    }
    text = box->findChild<QLabel *>("messageText")->text();
    QTest::mouseClick(box->findChild<QPushButton *>("messageButton1"), Qt::LeftButton);
}
