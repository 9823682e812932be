#ifndef SETTINGSPAGE_H
#define SETTINGSPAGE_H

#include <QString>

class QWidget;

/** One page of the settings dialog. */
class SettingsPage
{
public:
    enum Answer { Ok, Cancel, NoAnswer };

    virtual ~SettingsPage() {}

    /** In the current language. */
    virtual QString Title() const = 0;

    /** Puts the page into place, which is its own. False: it can't be shown, and ProblemText tells why. */
    virtual bool Show(QWidget *place) = 0;
    virtual QString ProblemText() const = 0;

    /** The dialog goes away: takes the page out of its place. Called once after a Show that was true. */
    virtual void Close(Answer answer) = 0;

    virtual void Retranslate() = 0;

protected:
    SettingsPage() {}

private:
    Q_DISABLE_COPY(SettingsPage)
};

#endif
