#ifndef PRIORITYLISTITEM_H
#define PRIORITYLISTITEM_H

#include <QWidget>

class QCheckBox;
class QLabel;

/**
 * One row of the priority page's table: an icon and a name at fixed places, mirrored for right-to-left
 * languages. Made without a parent; the table owns it once it is a cell widget.
 */
class PriorityListItem : public QWidget
{
public:
    PriorityListItem();
    ~PriorityListItem() override;

    /** Makes and fills the labels; to be called once. An icon that can't be loaded stays empty. */
    void UpdateLabelContents(QString strIcon, QString strName);

    void SetLanguage(QString &lang);

    /** Null before UpdateLabelContents. */
    QLabel *GetLabelIcon() const { return m_iconLabel; }
    QLabel *GetLabelName() const { return m_nameLabel; }

private:
    Q_DISABLE_COPY(PriorityListItem)

    QLabel *m_iconLabel;
    QLabel *m_nameLabel;
};

/** One row of the add dialog's table: as above, with a check box before the icon. */
class RememberListItem : public QWidget
{
public:
    RememberListItem();
    ~RememberListItem() override;

    /** Makes and fills the children; to be called once. An icon that can't be loaded stays empty. */
    void UpdateLabelContents(QString strIcon, QString strName);

    void SetLanguage(QString lang);

    /** Null before UpdateLabelContents. */
    QCheckBox *GetChechItem() const { return m_checkBox; }

private:
    Q_DISABLE_COPY(RememberListItem)

    QCheckBox *m_checkBox;
    QLabel *m_iconLabel;
    QLabel *m_nameLabel;
};

#endif
