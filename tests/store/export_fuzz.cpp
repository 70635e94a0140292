// What users take away of their notes: all of it, whatever they wrote.
//
// The first byte says how the rest is read, as UTF-8 or as the UTF-16 that a clipboard may hold,
// half characters included. The pieces between NUL characters become notes, ids and names of types.

#include "content/contentlibrary.h"
#include "content/text.h"
#include "store/storetesting.h"
#include "store/textfile.h"
#include "store/userstore.h"
#include "support/fuzz.h"
#include "support/testcourse.h"

#include <QStringDecoder>
#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;
using namespace StoreTesting;
using Fuzz::expect;

namespace {

const ContentLibrary &library()
{
    static const QTemporaryDir folder;
    static const ContentLibrary library = [] {
        TestCourse::write(folder.path());
        return ContentLibrary(folder.path());
    }();
    return library;
}

QString decoded(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        return {};
    const QByteArrayView rest = bytes.sliced(1);
    if (bytes.front() % 2 == 0)
        return QString::fromUtf8(rest);
    QString text(rest.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(ushort(uchar(rest[2 * i]) | uchar(rest[2 * i + 1]) << 8));
    return text;
}

// A text as it comes back from a file: half a character can't be written.
QString writable(const QString &text)
{
    // Not QString::fromUtf8(), which drops a byte order mark that begins the text.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(text.toUtf8());
}

void empty(UserStore &store)
{
    for (const Note &note : store.notes())
        store.deleteNote(note.id);
    for (const Bookmark &bookmark : store.bookmarks())
        store.setBookmark(bookmark.targetType, bookmark.targetID, false);
    for (const QString &lesson : store.completedLessons())
        store.setComplete(lesson, false);
}

} // namespace

void Fuzz::tryOut(QByteArrayView bytes)
{
    static const Folder folder;
    static UserStore store(folder.url(u"Progress.sqlite"_s));

    const QStringList pieces = decoded(bytes).split(QChar::Null);
    QStringList bodies;
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        Note note{ .targetType = pieces.value(i + 1, u"gear"_s),
            .targetID = pieces.value(i + 2, u"tripod"_s),
            .body = pieces[i] };
        const QString body = Text::trimmedBlanksAndLines(note.body).toString();
        const bool fits = !body.isEmpty() && Text::characterCount(body) <= UserStore::longestNote;
        const std::optional<HVError> refusal = errorOf([&] { store.save(note); });
        expect(fits == !refusal, "a note is saved unless it is empty or too long");
        if (!fits)
            continue;
        expect(note.body == body && store.note(note.id)->body == writable(body),
            "a note comes back as it was written");
        bodies.append(note.body);
        store.setBookmark(note.targetType, note.targetID, true);
        store.setComplete(note.targetID, true);
    }
    expect(store.notes().size() == bodies.size(), "there are as many notes as were saved");

    const QString text = store.exportText(library());
    expect(text.startsWith(u"CRVN Halvorin — my notes and progress\n"_s), "an export has its head");
    for (const QString &body : bodies)
        expect(text.contains(u")\n" + writable(body) + u'\n'), "each note is exported whole");
    for (const Bookmark &bookmark : store.bookmarks())
        expect(text.contains(u"• "
                   + UserStore::title(bookmark.targetType, bookmark.targetID, library()) + u'\n'),
            "each bookmark is exported");

    const QString path = folder.path(u"Halvorin notes.txt"_s);
    Store::writeTextFile(path, text);
    const std::optional<QString> written = Text::decodedUtf8(fileBytes(path));
    expect(written == text, "the file is the text in valid UTF-8");

    const QString digest = store.digest();
    for (const QString &body : bodies)
        expect(digest.contains(u':' + writable(body)), "each note is in the digest");
    empty(store);
    expect(store.digest().startsWith(u"##"), "nothing stays of what was deleted");
}
