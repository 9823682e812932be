#include "PriorityListItem.h"

#include "FunctonTrick.h"

#include <Change.h>
#include <CommonUtils.h>
#include <ToolkitCompat.h>

#include <QCheckBox>
#include <QLabel>
#include <QPixmap>
#include <QTextDocument>

namespace
{

const int nameWidth = 200;

// Far more than anyone reads; laying out a name of megabytes would hold up the host.
const int longestToolTip = 4096;

QString SourcePath()
{
    return QLatin1String("../../src/PriorityPlugin/PriorityListItem.cpp");
}

bool ReadsRightToLeft(const QString &language)
{
    return language == QLatin1String("ar") || language == QLatin1String("he");
}

void Place(QWidget *child, const QPoint &leftToRight, const QPoint &rightToLeft, bool mirrored)
{
    if (child) {
        child->move(mirrored ? rightToLeft : leftToRight);
    }
}

QLabel *CreateIconLabel(QWidget *row, const QString &iconPath)
{
    QLabel *label = new QLabel(row);
    label->setObjectName(QLatin1String("rowIcon"));
    label->setPixmap(QPixmap(iconPath));
    return label;
}

QLabel *CreateNameLabel(QWidget *row)
{
    QLabel *label = new QLabel(row);
    label->setObjectName(QLatin1String("rowName"));
    // A network may be called "<b>"; its name is never markup.
    label->setTextFormat(Qt::PlainText);
    label->setFixedWidth(nameWidth);
    label->setAlignment(Qt::AlignLeft);
    return label;
}

QString PlainToolTip(const QString &text)
{
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    return QLatin1String("<p>") + ToolkitCompat::PlainTextAsHtml(text) + QLatin1String("</p>");
}

void ShowElidedName(QWidget *row, QLabel *label, const QString &name)
{
    CommonUtils::ElidedText(label, name, Qt::ElideRight);
    row->setAccessibleName(name);
    if (label->text() != name) {
        row->setToolTip(PlainToolTip(name.left(longestToolTip)));
    }
}

} // namespace

PriorityListItem::PriorityListItem() : QWidget(nullptr), m_iconLabel(nullptr), m_nameLabel(nullptr)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("PriorityListItem"), "");
}

PriorityListItem::~PriorityListItem()
{
    CFunctonTrick trick(SourcePath(), QLatin1String("~PriorityListItem"), "");
    delete m_iconLabel;
    m_iconLabel = nullptr;
    delete m_nameLabel;
    m_nameLabel = nullptr;
}

void PriorityListItem::UpdateLabelContents(QString strIcon, QString strName)
{
    CFunctonTrick trick(SourcePath(), QLatin1String("UpdateLabelContents"), ",strIcon:%s,strName:%s",
                        strIcon.toUtf8().constData(), strName.toUtf8().constData());
    m_iconLabel = CreateIconLabel(this, strIcon);
    m_nameLabel = CreateNameLabel(this);
    m_nameLabel->setText(strName);
    ShowElidedName(this, m_nameLabel, strName);

    QString language = Change::GetLangName();
    SetLanguage(language);
}

void PriorityListItem::SetLanguage(QString &lang)
{
    const bool mirrored = ReadsRightToLeft(lang);
    Place(m_iconLabel, QPoint(3, 3), QPoint(270, 3), mirrored);
    Place(m_nameLabel, QPoint(35, 9), QPoint(63, 9), mirrored);
}

RememberListItem::RememberListItem()
    : QWidget(nullptr), m_checkBox(nullptr), m_iconLabel(nullptr), m_nameLabel(nullptr)
{
}

RememberListItem::~RememberListItem()
{
    delete m_checkBox;
    m_checkBox = nullptr;
    delete m_iconLabel;
    m_iconLabel = nullptr;
    delete m_nameLabel;
    m_nameLabel = nullptr;
}

void RememberListItem::UpdateLabelContents(QString strIcon, QString strName)
{
    m_checkBox = new QCheckBox(this);
    m_checkBox->setObjectName(QLatin1String("rowCheckBox"));
    m_checkBox->setAccessibleName(strName);
    m_iconLabel = CreateIconLabel(this, strIcon);
    m_nameLabel = CreateNameLabel(this);
    ShowElidedName(this, m_nameLabel, strName);
    SetLanguage(Change::GetLangName());
}

void RememberListItem::SetLanguage(QString lang)
{
    const bool mirrored = ReadsRightToLeft(lang);
    Place(m_checkBox, QPoint(8, 8), QPoint(270, 8), mirrored);
    Place(m_iconLabel, QPoint(25, 3), QPoint(250, 3), mirrored);
    Place(m_nameLabel, QPoint(55, 8), QPoint(45, 8), mirrored);
}
