// The table of films: lines and columns against ones cut plainly, and what is told of them.

#include "content/contentlibrary.h"
#include "content/text.h"
#include "coursefolder.h"
#include "support/fuzz.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;
using Fuzz::expect;

namespace {

QList<QStringList> usableLines(const QString &table)
{
    QList<QStringList> lines;
    for (const QString &line : table.split(u'\n').sliced(1)) {
        const QStringList columns = line.split(u'\t');
        if (columns.size() >= 8 && !columns.first().isEmpty())
            lines.append(columns);
    }
    return lines;
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    static const CourseFolder folder;
    folder.write(u"videos.tsv"_s, bytes.toByteArray());
    const CourseContent course = Content::readCourse(folder.path());
    const std::optional<QString> text = Text::decodedUtf8(bytes);
    expect(course.loadErrors.size() == (text ? 0 : 1), "what isn't UTF-8 is told");
    const QList<QStringList> lines = text ? usableLines(*text) : QList<QStringList>();

    expect(course.videos.size() == lines.size(), "each usable line is a film");
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const Video &video = course.videos[i];
        const QStringList &line = lines[i];
        expect(QStringList({ video.id, video.title, video.channel, video.moduleID, video.topic })
                == line.first(5),
            "texts stand as they are written");
        expect(
            video.seconds == Text::wholeNumber(line[5]).value_or(0) && video.published == line[6],
            "seconds and day are those of the line");
        expect(video.checked == Text::trimmedBlanksAndLines(line[7]), "the last column is trimmed");
        expect(video.length().contains(u':'), "a length is minutes and seconds");
    }

    const ContentLibrary library(folder.path());
    expect(library.videos() == course.videos, "the library has the same films");
    for (const Video &video : library.videos())
        expect(library.video(video.id), "a film is found by its id");
    expect(std::ranges::none_of(library.problems(), &QString::isEmpty), "a problem has words");
}
