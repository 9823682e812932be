#ifndef MESSAGEBOX_H
#define MESSAGEBOX_H

#include <ExtendDialog.h>

#include <QMessageBox>
#include <QStringList>

class QHBoxLayout;
class QVBoxLayout;

/** What CommonUtils::ShowMessage shows: an icon, texts, and up to three buttons below them. */
class MessageBox : public ExtendDialog
{
    Q_OBJECT

public:
    /** @param handle  not owned, may be null: where to tell this box's address until it is closed or deleted.
     */
    MessageBox(QWidget *parent, Qt::WindowFlags flags, QDialog **handle);
    ~MessageBox() override;

    void SetContent(QMessageBox::Icon icon, const QString &text, const QString &detail);

    /** An empty caption is no button. */
    void SetButtons(const QString &first, const QString &second, const QString &third);

    /** The answer so far, QMessageBox::Cancel as long as there is none. */
    int Answer() const { return m_answer; }

signals:
    void Closed();

protected:
    void hideEvent(QHideEvent *event) override;

private slots:
    void OnButtonClicked();

private:
    Q_DISABLE_COPY(MessageBox)

    void AddText(const char *name, const QString &text);
    void AddButton(int number, const QString &caption, int answer);
    void ClearHandle();

    QDialog **m_handle;
    int m_answer;
    QHBoxLayout *m_contentRow;
    QVBoxLayout *m_textColumn;
    QHBoxLayout *m_buttonRow;
};

#endif
