#ifndef RULEDDIALOG_H
#define RULEDDIALOG_H

#include "ByItselfOrder.h"

#include <RuledPlaces.h>

#include <QDialog>
#include <QList>
#include <QString>

class QLabel;
class QPushButton;
class QScrollArea;

/** Tells what the list rules, which places of it have no effect, and what can be done about that. */
class RuledDialog : public QDialog
{
    Q_OBJECT

public:
    explicit RuledDialog(QWidget *parent);

    /** @param isForThisWindow  the list has its effect only while the window is open. */
    void Show(const QList<PlaceWithoutEffect> &places, bool isForThisWindow);

    void Retranslate();

signals:
    void ConnectWanted(const QString &name, const QString &profileId);
    void SettingsWanted();

private:
    struct Row {
        QString title;
        QString reason;
        QString button;
        PlaceWithoutEffect place;
    };

    QWidget *CreateRow(const Row &row);
    void Help(const PlaceWithoutEffect &place);

    QLabel *m_text;
    QScrollArea *m_area;
    QLabel *m_problem;
    QPushButton *m_closeButton;
    /** As they are shown. */
    QString m_shown;
    ByItselfOrder m_order;
};

#endif
