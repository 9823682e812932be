#ifndef ELIDEDLABEL_H
#define ELIDEDLABEL_H

#include <QLabel>
#include <QString>

/** One line of plain text, cut off where the label ends; a tool tip then has all of it. */
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(const char *name);

    void SetFullText(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void Fit();

    QString m_fullText;
};

#endif
