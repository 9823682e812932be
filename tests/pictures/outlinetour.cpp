#include <MainWindow.h>
#include <Outline.h>
#include <Tour.h>
#include <TourProgram.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontInfo>

#include <cstdio>

namespace
{

bool IsTimeColon(const QString &text, int i)
{
    return i > 0 && i + 1 < text.size() && text.at(i) == QLatin1Char(':') && text.at(i - 1).isDigit() &&
           text.at(i + 1).isDigit();
}

/** Without the times, which are others each time; they stand between brackets or quotation marks. */
QString Lasting(const QString &outline)
{
    QString lasting;
    for (int i = 0; i < outline.size(); ++i) {
        if (!IsTimeColon(outline, i)) {
            lasting.append(outline.at(i));
            continue;
        }
        lasting.truncate(qMax(lasting.lastIndexOf(QLatin1Char('"')), lasting.lastIndexOf(QLatin1Char('('))) +
                         1);
        lasting.append(QLatin1String("<time>"));
        while (i + 1 < outline.size() && outline.at(i + 1) != QLatin1Char('"') &&
               outline.at(i + 1) != QLatin1Char(')')) {
            ++i;
        }
    }
    return lasting;
}

/** The size of desktops, and the family that all machines have on which tests run. */
bool UseDesktopFont()
{
    QFont font(QLatin1String("DejaVu Sans"));
    font.setPointSize(10);
    QApplication::setFont(font);
    return QFontInfo(font).family() == font.family();
}

class OutlineWriter : public QObject
{
public:
    OutlineWriter(const QWidget *window, const QDir &directory)
        : m_window(window), m_directory(directory), m_areAllWritten(true)
    {
    }

    bool AreAllWritten() const { return m_areAllWritten; }

    void Write(const QString &name)
    {
        const QWidget *dialog = QApplication::activeModalWidget();
        const QByteArray outline = Lasting(Outline(dialog ? dialog : m_window)).toUtf8();
        QFile file(m_directory.filePath(name + QLatin1String(".txt")));
        m_areAllWritten =
            file.open(QIODevice::WriteOnly) && file.write(outline) == outline.size() && m_areAllWritten;
    }

private:
    const QWidget *const m_window;
    const QDir m_directory;
    bool m_areAllWritten;
};

} // namespace

/** Takes the tour in a language, and writes an outline of each of its pictures. */
int main(int argc, char **argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: outlinetour TOUR-DIRECTORY OUTLINE-DIRECTORY LANGUAGE\n");
        return 2;
    }
    TourProgram::Options options;
    options.directory = QFile::decodeName(argv[1]);
    options.language = QLatin1String(argv[3]);
    const QDir directory(QFile::decodeName(argv[2]));
    if (!directory.mkpath(QLatin1String("."))) {
        std::fprintf(stderr, "the directory for the outlines can't be made\n");
        return 2;
    }
    TourProgram program(&argc, argv, options);
    if (!UseDesktopFont()) {
        std::fprintf(stderr, "the font DejaVu Sans is missing; install fonts-dejavu-core\n");
        return 2;
    }
    program.Open();
    OutlineWriter writer(program.Window(), directory);
    QObject::connect(program.TheTour(), &Tour::PictureTaken, &writer, &OutlineWriter::Write);
    const int status = program.Run();
    return status == 0 && !writer.AreAllWritten() ? 1 : status;
}
