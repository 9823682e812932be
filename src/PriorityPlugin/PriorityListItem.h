#ifndef PRIORITYLISTITEM_H
#define PRIORITYLISTITEM_H

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QWidget>

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

    QPointer<QLabel> m_iconLabel;
    QPointer<QLabel> m_nameLabel;
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

    QPointer<QCheckBox> m_checkBox;
    QPointer<QLabel> m_iconLabel;
    QPointer<QLabel> m_nameLabel;
};

#endif
