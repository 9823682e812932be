#include <CommonUtils.h>

#include "HostState.h"
#include "MessageBox.h"

#include <Change.h>

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFontMetrics>
#include <QLabel>
#include <QPointer>

namespace
{

// Far more than fits; laying out a text of megabytes would hold up the dashboard.
const int mostCharactersShown = 4096;

/** The ends of text that mode shows, with an ellipsis in the place of the rest. */
QString ShownEnds(const QString &text, Qt::TextElideMode mode)
{
    const QChar ellipsis(0x2026);
    if (text.size() <= mostCharactersShown) {
        return text;
    }
    if (mode == Qt::ElideLeft) {
        return ellipsis + text.right(mostCharactersShown);
    }
    if (mode == Qt::ElideMiddle) {
        return text.left(mostCharactersShown / 2) + ellipsis + text.right(mostCharactersShown / 2);
    }
    return text.left(mostCharactersShown) + ellipsis;
}

/** One line as it reads: line breaks, tabs and other control characters are shown as blanks. */
QString OneLine(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar::Category category = text.at(i).category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph) {
            text[i] = QLatin1Char(' ');
        }
    }
    return text;
}

int TextWidth(const QLabel *label)
{
    const int indent = qMax(0, label->indent());
    return qMax(0, label->contentsRect().width() - 2 * label->margin() - indent);
}

QString Elided(const QString &text, Qt::TextElideMode mode, const QFontMetrics &metrics, int width)
{
    QString shown = metrics.elidedText(text, mode, width);
    // Joined letters that are cut apart can come out wider than Qt took them to be.
    for (int room = width - 1; room > 0 && shown != text && metrics.boundingRect(shown).width() > width;
         --room) {
        shown = metrics.elidedText(text, mode, room);
    }
    return shown;
}

/** The caption of a question's first button. Whoever asks may only know "OK"; what it does is clearer. */
QString CaptionOfAct(const QString &caption, const QString &question)
{
    const QString removal = Change::tr(QLatin1String("IDS_WARNING_DELETE"), QLatin1String("PriorityPlugin"));
    return caption == QLatin1String("IDS_OK") && question == removal ? QLatin1String("IDS_PROFILE_DELETE")
                                                                     : caption;
}

} // namespace

QString CommonUtils::GetPluginLibraryPath()
{
    const QString path = HostState::Instance().pluginLibraryPath;
    return path.isNull() ? QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/.."))
                         : path;
}

void CommonUtils::ElidedText(QLabel *label, QString text, Qt::TextElideMode mode)
{
    if (!label) {
        return;
    }
    label->setTextFormat(Qt::PlainText);
    const QString line = OneLine(ShownEnds(text, mode));
    label->setText(Elided(line, mode, label->fontMetrics(), TextWidth(label)));
}

int CommonUtils::ShowMessage(QMessageBox::Icon icon, QWidget *parent, QString title, QString text,
                             QString button1, QString button2, QString button3, bool modal,
                             Qt::WindowFlags flags, QDialog **dialog, QString detail, bool onTop)
{
    QWidget *belongsTo = parent ? parent : QApplication::activeWindow();
    // A modal window lets input through to its own children only.
    const bool child = onTop || QApplication::activeModalWidget();

    const QPointer<MessageBox> box = new MessageBox(child ? belongsTo : nullptr, flags, dialog);
    box->setWindowTitle(title);
    box->SetContent(icon, text, detail);
    box->SetButtons(CaptionOfAct(button1, text), button2, button3);
    box->setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);

    QEventLoop answered;
    QObject::connect(box, SIGNAL(Closed()), &answered, SLOT(quit()));
    QObject::connect(box, SIGNAL(destroyed()), &answered, SLOT(quit()));
    if (belongsTo && !child) {
        QObject::connect(belongsTo, SIGNAL(destroyed()), box, SLOT(reject()));
    }
    box->show();
    answered.exec(QEventLoop::DialogExec);

    const int answer = box ? box->Answer() : QMessageBox::Cancel;
    delete box;
    return answer;
}
